#include "matrix.h"

#include <QTest>

Q_DECLARE_METATYPE(TestSupport::Moment)
Q_DECLARE_METATYPE(TestSupport::Fault)

namespace TestSupport {

namespace {

bool canMeet(const Moment &moment, const Fault &fault, bool isFirstFault)
{
    if (fault.outcome == Outcome::OddElements && !moment.lists)
        return false;
    if (fault.stopsReading && (!moment.comesFirst || moment.connects))
        return false;
    if (fault.lasts && moment.asksMore)
        return false;
    // Whether what is asked next is still sent is a matter of luck, and so are the boxes that follow.
    if (fault.outcome == Outcome::AnsweredThenLost && moment.asksMore && moment.warns)
        return false;
    // The refresh behind the pause would fall into a later cell.
    if (moment.pauses && fault.outcome == Outcome::AnsweredThenLost)
        return false;
    return isFailure(fault.outcome) || !moment.pauses || isFirstFault;
}

/// Everything that the daemon has can be had, and nothing is left over.
void expectPeace(Stage &stage)
{
    stage.renew();
    ModalDriver driver;
    stage.table()->clearSelection();
    click(stage.window.get(), "refreshGroupButton");
    click(stage.window.get(), "refreshButton");
    stage.expect(stage.newest());
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(openWindows(), QStringList{describe(stage.window.get())});
}

} // namespace

void FaultMatrix::cleanupTestCase()
{
    m_stage.reset();
    QCOMPARE(openWindows(), QStringList());
}

void FaultMatrix::addCells(const QList<Moment> &moments, const QList<Fault> &faults)
{
    QTest::addColumn<Moment>("moment");
    QTest::addColumn<Fault>("fault");
    for (const Moment &moment : moments) {
        for (const Fault &fault : faults) {
            if (canMeet(moment, fault, &fault == &faults.first()))
                QTest::newRow((moment.name + ": " + fault.name).constData()) << moment << fault;
        }
    }
}

Stage *FaultMatrix::stage()
{
    if (m_stage == nullptr) {
        m_stage = std::make_unique<Stage>();
        if (!m_stage->setUp())
            fail(QStringLiteral("the window does not show what the daemon has"));
    }
    return m_stage.get();
}

void FaultMatrix::runCell()
{
    QFETCH(Moment, moment);
    QFETCH(Fault, fault);
    runCell(moment, fault);
    if (QTest::currentTestFailed())
        m_stage.reset();
}

void FaultMatrix::runCell(const Moment &moment, const Fault &fault)
{
    Stage *at = stage();
    if (moment.prepare)
        moment.prepare(*at);
    at->renew();
    at->arm(fault, moment.command, moment.number, moment.comesFirst);
    moment.meet(*at);
    if (QTest::currentTestFailed())
        return;
    QVERIFY2(at->hasStruck(), "the moment has not asked for what was to go wrong");
    at->mend();
    if (!QTest::currentTestFailed())
        expectPeace(*at);
}

} // namespace TestSupport
