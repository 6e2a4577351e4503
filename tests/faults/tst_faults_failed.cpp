#include "matrix.h"
#include "testmain.h"

#include <QApplication>

using namespace TestSupport;

/// The answer is a refusal, or its parts are of other types than they should be.
class TestFaultsFailed : public FaultMatrix {
    Q_OBJECT

private slots:
    void anAnswerOfAnotherFormFailsOrReadsAsNothing_data();
    void anAnswerOfAnotherFormFailsOrReadsAsNothing();
};

void TestFaultsFailed::anAnswerOfAnotherFormFailsOrReadsAsNothing_data()
{
    addCells(allMoments(), failedFaults());
}

void TestFaultsFailed::anAnswerOfAnotherFormFailsOrReadsAsNothing()
{
    runCell();
}

ORVEL_TEST_MAIN(QApplication, TestFaultsFailed)
#include "tst_faults_failed.moc"
