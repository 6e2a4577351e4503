#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// The good answer comes in an unusual way: in pieces, twice, out of order.
class TestFaultsHarmless : public FaultMatrix {
    Q_OBJECT

private slots:
    void aGoodAnswerIsFoundInWhateverItComes_data();
    void aGoodAnswerIsFoundInWhateverItComes();
};

void TestFaultsHarmless::aGoodAnswerIsFoundInWhateverItComes_data()
{
    addCells(allMoments(), harmlessFaults());
}

void TestFaultsHarmless::aGoodAnswerIsFoundInWhateverItComes()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsHarmless)
#include "tst_faults_harmless.moc"
