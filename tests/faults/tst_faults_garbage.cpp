#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// The good answer comes among lines that are none, while the window itself asks.
class TestFaultsGarbage : public FaultMatrix {
    Q_OBJECT

private slots:
    void aGoodAnswerIsFoundAmongGarbage_data();
    void aGoodAnswerIsFoundAmongGarbage();
};

void TestFaultsGarbage::aGoodAnswerIsFoundAmongGarbage_data()
{
    addCells(windowMoments(), garbageFaults());
}

void TestFaultsGarbage::aGoodAnswerIsFoundAmongGarbage()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsGarbage)
#include "tst_faults_garbage.moc"
