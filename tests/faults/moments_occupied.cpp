#include "moments.h"

#include "dragfixture.h"
#include "mcsgrouptreewidget.h"

#include <QAbstractButton>
#include <QTest>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

/// The rows as the one-second update leaves them; everything else stays.
Views afterTick(const Stage &stage)
{
    Views views = stage.before();
    if (stage.fault().outcome == Outcome::Answered)
        views.rows = stage.content.withStatuses(views.rows);
    return stage.fault().outcome == Outcome::LostAndBack ? stage.newest() : views;
}

// The update goes on under the drag, and so does everything that comes of it.
void meetDrag(Stage &stage)
{
    const Outcome outcome = stage.fault().outcome;
    auto *tree = stage.widget<MCsGroupTreeWidget>("groupTree");
    const QPoint position = tree->visualItemRect(tree->topLevelItem(0)).center();
    Drag drag(tree, "t2");
    drag.enter(position);
    drag.move(position);
    QVERIFY(isHighlighted(tree->topLevelItem(0)));
    ModalDriver driver;
    stage.window->onUpdateTaskStatus();
    if (outcome != Outcome::AnsweredThenLost)
        stage.expect(afterTick(stage));
    if (outcome == Outcome::Lost)
        driver.expectBox(QMessageBox::Critical, u"Error"_s, u"Failed to move task to group 'Work'."_s);
    else if (outcome == Outcome::AnsweredThenLost || stage.fault().lasts)
        stage.mend();
    stage.daemon.clearRequests();
    QCOMPARE(drag.drop(position), accepted);
    QVERIFY2(driver.finished(), driver.problems());
    if (outcome == Outcome::Lost) {
        stage.expect(afterTick(stage));
        return;
    }
    QCOMPARE(stage.payloadOf(u"task.moveToGroup"_s), QJsonObject({{u"taskId"_s, u"t2"_s}, {u"groupId"_s, u"g1"_s}}));
    stage.expect(stage.newest());
}

void meetQuestion(Stage &stage)
{
    const Outcome outcome = stage.fault().outcome;
    const QString text = u"Are you sure you want to delete task '%1'?"_s.arg(stage.table()->item(0, 0)->text());
    ModalDriver driver;
    driver.expectDialog<QMessageBox>(u"Confirm Delete"_s, [&](const QMessageBox *box) {
        stage.window->onUpdateTaskStatus();
        if (outcome != Outcome::AnsweredThenLost)
            stage.expect(afterTick(stage));
        stage.mend();
        QVERIFY(box->isVisible());
        QCOMPARE(box->text(), text);
        stage.daemon.clearRequests();
        click(box->button(QMessageBox::No));
    });
    click(stage.window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(stage.daemon.commands(), QStringList());
}

} // namespace

QList<Moment> occupiedMoments()
{
    Moment drag{"under a drag", u"task.listByType"_s};
    drag.lists = true;
    drag.meet = meetDrag;
    Moment question{"under a question", u"task.listByType"_s};
    question.lists = true;
    question.prepare = [](Stage &stage) { stage.selectTask(0); };
    question.meet = meetQuestion;
    return {drag, question};
}

} // namespace TestSupport
