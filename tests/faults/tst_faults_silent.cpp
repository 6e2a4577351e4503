#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// No answer comes while the window itself asks, or none that can be told to be one.
class TestFaultsSilent : public FaultMatrix {
    Q_OBJECT

private slots:
    void aCommandWithoutAnAnswerEndsInItsTimeout_data();
    void aCommandWithoutAnAnswerEndsInItsTimeout();
};

void TestFaultsSilent::aCommandWithoutAnAnswerEndsInItsTimeout_data()
{
    addCells(windowMoments(), silentFaults());
}

void TestFaultsSilent::aCommandWithoutAnAnswerEndsInItsTimeout()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsSilent)
#include "tst_faults_silent.moc"
