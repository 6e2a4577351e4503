#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// The good answer comes among lines that are none, while a dialog asks.
class TestFaultsGarbageDialogs : public FaultMatrix {
    Q_OBJECT

private slots:
    void aGoodAnswerIsFoundAmongGarbage_data();
    void aGoodAnswerIsFoundAmongGarbage();
};

void TestFaultsGarbageDialogs::aGoodAnswerIsFoundAmongGarbage_data()
{
    addCells(dialogMoments(), garbageFaults());
}

void TestFaultsGarbageDialogs::aGoodAnswerIsFoundAmongGarbage()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsGarbageDialogs)
#include "tst_faults_garbagedialogs.moc"
