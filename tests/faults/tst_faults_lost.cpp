#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// The daemon goes before, in, or right after its answer, and comes back.
class TestFaultsLost : public FaultMatrix {
    Q_OBJECT

private slots:
    void aLossIsShownAndTheNextConnectionServes_data();
    void aLossIsShownAndTheNextConnectionServes();
};

void TestFaultsLost::aLossIsShownAndTheNextConnectionServes_data()
{
    addCells(allMoments(), lossFaults());
}

void TestFaultsLost::aLossIsShownAndTheNextConnectionServes()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsLost)
#include "tst_faults_lost.moc"
