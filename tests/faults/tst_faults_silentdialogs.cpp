#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// No answer comes while a dialog asks, or none that can be told to be one.
class TestFaultsSilentDialogs : public FaultMatrix {
    Q_OBJECT

private slots:
    void aCommandWithoutAnAnswerEndsInItsTimeout_data();
    void aCommandWithoutAnAnswerEndsInItsTimeout();
};

void TestFaultsSilentDialogs::aCommandWithoutAnAnswerEndsInItsTimeout_data()
{
    addCells(dialogMoments(), silentFaults());
}

void TestFaultsSilentDialogs::aCommandWithoutAnAnswerEndsInItsTimeout()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsSilentDialogs)
#include "tst_faults_silentdialogs.moc"
