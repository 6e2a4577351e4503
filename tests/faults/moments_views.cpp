#include "moments.h"

#include "mcsschedulerclient.h"

#include <QTest>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

/// What a view shows, by what has become of its request.
struct Shown {
    using Look = std::function<Views(const Stage &)>;

    Look answered;
    Look failed; ///< no answer, a refusal, or data that reads as nothing
    Look odd;    ///< blank records
    Look lost;   ///< until the next connection
};

Shown::Look beforeBut(const std::function<void(Views &, const Stage &)> &change)
{
    return [change](const Stage &stage) {
        Views views = stage.before();
        change(views, stage);
        return views;
    };
}

Shown::Look newestBut(const std::function<void(Views &, const Stage &)> &change)
{
    return [change](const Stage &stage) {
        Views views = stage.newest();
        change(views, stage);
        return views;
    };
}

Views unchanged(const Stage &stage)
{
    return stage.before();
}

Views renewed(const Stage &stage)
{
    return stage.newest();
}

void clearRows(Views &views, const Stage & /*stage*/)
{
    views.rows.clear();
    views.count = u"Tasks: 0"_s;
}

void blankRows(Views &views, const Stage & /*stage*/)
{
    views.rows = QStringList(oddElementCount, u"  Disabled"_s);
    views.count = u"Tasks: %1"_s.arg(oddElementCount);
}

/// The connection went right behind the answer, so that what has been seen of it is a matter of luck.
void expectOneOf(const Stage &stage, const QList<Views> &looks)
{
    const Views shown = Views::of(*stage.window);
    const auto isAmong = [&looks](const auto &part, auto Views::*member) {
        return std::ranges::any_of(looks, [&](const Views &look) { return look.*member == part; });
    };
    QVERIFY2(isAmong(shown.rows, &Views::rows), qPrintable(shown.rows.join(u';')));
    QVERIFY2(isAmong(shown.count, &Views::count), qPrintable(shown.count));
    QVERIFY2(isAmong(shown.groups, &Views::groups), qPrintable(shown.groups.join(u';')));
    QVERIFY2(isAmong(shown.log, &Views::log) || shown.log.isEmpty(), qPrintable(shown.log.join(u';')));
}

void expectShown(const Stage &stage, const Shown &shown)
{
    switch (stage.fault().outcome) {
    case Outcome::Answered:
        stage.expect(shown.answered(stage));
        break;
    case Outcome::Silent:
    case Outcome::Refused:
        QCOMPARE(stage.client->lastError(), stage.reason());
        stage.expect(shown.failed(stage));
        break;
    case Outcome::Hollow:
        stage.expect(shown.failed(stage));
        break;
    case Outcome::OddElements:
        stage.expect(shown.odd(stage));
        break;
    case Outcome::Lost:
        stage.expect(shown.lost(stage));
        break;
    case Outcome::LostAndBack:
        stage.expect(stage.newest());
        break;
    case Outcome::AnsweredThenLost:
        expectOneOf(stage, {stage.before(), shown.answered(stage), shown.lost(stage), stage.newest()});
        break;
    }
}

/// Acts, and no box comes.
std::function<void(Stage &)> quietly(const std::function<void(Stage &)> &act, const Shown &shown)
{
    return [act, shown](Stage &stage) {
        ModalDriver driver;
        act(stage);
        QVERIFY2(driver.finished(), driver.problems());
        expectShown(stage, shown);
    };
}

std::function<void(Stage &)> pressing(const char *button)
{
    return [button](Stage &stage) { click(stage.window.get(), button); };
}

Moment tableMoment()
{
    Moment moment{"table refresh", u"task.listByType"_s};
    moment.lists = moment.asksMore = true;
    moment.meet = quietly(pressing("refreshButton"), {renewed, newestBut(clearRows), newestBut(blankRows), unchanged});
    return moment;
}

Moment groupMoment()
{
    Moment moment{"table of a group", u"task.listByGroupAndType"_s};
    moment.lists = true;
    const auto inGroup = [](Views &views, const Stage & /*stage*/) { views.count += u" (in Work)"_s; };
    const auto answered = beforeBut([inGroup](Views &views, const Stage &stage) {
        views.rows = stage.newest().rows;
        inGroup(views, stage);
    });
    const auto cleared = beforeBut([inGroup](Views &views, const Stage &stage) {
        clearRows(views, stage);
        inGroup(views, stage);
    });
    const auto blank = beforeBut([inGroup](Views &views, const Stage &stage) {
        blankRows(views, stage);
        inGroup(views, stage);
    });
    const auto select = [](Stage &stage) { stage.tree()->setCurrentItem(stage.tree()->topLevelItem(0)); };
    moment.meet = quietly(select, {answered, cleared, blank, unchanged});
    return moment;
}

Moment tickMoment()
{
    Moment moment{"status tick", u"task.listByType"_s};
    moment.lists = true;
    const auto answered =
        beforeBut([](Views &views, const Stage &stage) { views.rows = stage.content.withStatuses(views.rows); });
    const auto tick = [](Stage &stage) { stage.window->onUpdateTaskStatus(); };
    moment.meet = quietly(tick, {answered, unchanged, unchanged, unchanged});
    return moment;
}

Moment countsMoment()
{
    Moment moment{"counts, second group", u"task.countByGroupAndType"_s, 2, false};
    moment.asksMore = true;
    const auto failed =
        newestBut([](Views &views, const Stage & /*stage*/) { views.groups[1] = u"ungrouped Ungrouped (0)"_s; });
    const auto lost = newestBut([](Views &views, const Stage &stage) {
        views.groups[1] = stage.before().groups.at(1);
        views.log = stage.before().log;
    });
    moment.meet = quietly(pressing("refreshButton"), {renewed, failed, {}, lost});
    return moment;
}

Moment treeMoment()
{
    Moment moment{"tree rebuild", u"group.listByTaskType"_s};
    moment.lists = true;
    const auto answered = beforeBut([](Views &views, const Stage &stage) { views.groups = stage.newest().groups; });
    const auto cleared = beforeBut([](Views &views, const Stage & /*stage*/) { views.groups.clear(); });
    const auto blank = beforeBut(
        [](Views &views, const Stage & /*stage*/) { views.groups = QStringList(oddElementCount, u"  (0)"_s); });
    moment.meet = quietly(pressing("refreshGroupButton"), {answered, cleared, blank, cleared});
    return moment;
}

Moment logMoment()
{
    Moment moment{"activity log", u"audit.list"_s};
    moment.lists = true;
    const auto answered = beforeBut([](Views &views, const Stage &stage) { views.log = stage.newest().log; });
    const auto cleared = beforeBut([](Views &views, const Stage & /*stage*/) { views.log.clear(); });
    const auto blank =
        beforeBut([](Views &views, const Stage & /*stage*/) { views.log = QStringList(oddElementCount, QString()); });
    moment.meet = quietly(pressing("refreshLogButton"), {answered, cleared, blank, cleared});
    return moment;
}

// The filter is filled when a connection begins, twice. So it needs another connection to be right again.
Moment filterMoment()
{
    Moment moment{"filter refresh", u"tasktype.list"_s, 2, false};
    moment.lists = moment.asksMore = true;
    const auto failed = newestBut([](Views &views, const Stage & /*stage*/) { views.filter = {u"All Types"_s}; });
    const auto reconnect = [](Stage &stage) {
        stage.loseConnection();
        stage.seekConnection();
        QTRY_VERIFY(stage.hasStruck());
    };
    const auto look = quietly(reconnect, {renewed, failed, failed, failed});
    moment.meet = [look](Stage &stage) {
        look(stage);
        stage.mend();
        stage.loseConnection();
        stage.seekConnection();
        stage.settle();
    };
    return moment;
}

// A count that failed reads as no tasks.
Moment promptMoment()
{
    Moment moment{"count after connecting", u"task.countByType"_s};
    moment.meet = [](Stage &stage) {
        const Outcome outcome = stage.fault().outcome;
        ModalDriver driver;
        if (outcome == Outcome::Silent || outcome == Outcome::Refused || outcome == Outcome::Hollow)
            driver.expectBox(QMessageBox::Question, u"No Tasks Found"_s,
                             u"No scheduled tasks were found.\n\nWould you like to create one now?"_s,
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        stage.window->checkEmptyTasksAndPrompt();
        QVERIFY2(driver.finished(), driver.problems());
        stage.expect(outcome == Outcome::LostAndBack ? stage.newest() : stage.before());
    };
    return moment;
}

} // namespace

QList<Moment> viewMoments()
{
    return {tableMoment(), groupMoment(), tickMoment(),   countsMoment(),
            treeMoment(),  logMoment(),   filterMoment(), promptMoment()};
}

} // namespace TestSupport
