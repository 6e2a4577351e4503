#include "moments.h"

#include "mcsschedulerclient.h"
#include "mcstaskdialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

struct Kind {
    const char *button;
    QString title;
    QString saveCommand;
    QString success;
};

const Kind &creation()
{
    static const Kind kind{"createButton", u"Create Task"_s, u"task.create"_s, u"Task created successfully."_s};
    return kind;
}

const Kind &editing()
{
    static const Kind kind{"editButton", u"Edit Task"_s, u"task.update"_s, u"Task updated successfully."_s};
    return kind;
}

QStringList itemsOf(MCsTaskDialog *dialog, const char *combo)
{
    const auto *box = require<QComboBox>(dialog, combo);
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items.append(box->itemText(i));
    return items;
}

QLineEdit *nameEdit(MCsTaskDialog *dialog)
{
    return require<QLineEdit>(dialog, "nameEdit");
}

void save(MCsTaskDialog *dialog)
{
    click(require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Save));
}

void selectFirstTask(Stage &stage)
{
    stage.selectTask(0);
}

/// Opens the dialog while nothing is wrong, and finds everything in it.
void openInPeace(Stage &stage, const Kind &kind)
{
    QString name;
    if (&kind == &editing()) {
        stage.table()->clearSelection();
        stage.selectTask(0);
        name = u"Stored "_s + stage.table()->item(0, 0)->data(Qt::UserRole).toString();
    }
    ModalDriver driver;
    driver.expectDialog<MCsTaskDialog>(kind.title, [name](MCsTaskDialog *dialog) {
        QCOMPARE(itemsOf(dialog, "typeCombo"), QStringList({u"Screen Recorder"_s}));
        QCOMPARE(itemsOf(dialog, "groupCombo"), QStringList({u"Ungrouped"_s, u"Work"_s}));
        QCOMPARE(nameEdit(dialog)->text(), name);
        dialog->reject();
    });
    click(stage.window.get(), kind.button);
    QVERIFY2(driver.finished(), driver.problems());
}

/// What the dialog holds when one of the requests that fill it has gone wrong.
struct Filling {
    QStringList types{u"Screen Recorder"_s};
    QStringList groups{u"Ungrouped"_s, u"Work"_s};
    bool knowsTask = true;
    bool knowsType = true;
};

Filling fillingOf(Outcome outcome, const QString &command)
{
    Filling filling;
    if (outcome == Outcome::Answered || outcome == Outcome::AnsweredThenLost)
        return filling;
    if (command == "tasktype.list"_L1) {
        filling.types.clear();
        filling.knowsType = false;
        // Without a connection nothing more is asked for.
        if (outcome == Outcome::Lost)
            filling.groups.clear();
    }
    if (command == "group.listByTaskType"_L1) {
        filling.groups = {u"Ungrouped"_s};
        if (outcome == Outcome::OddElements)
            filling.groups += QStringList(oddElementCount, QString());
    }
    if (command == "task.get"_L1)
        filling.knowsTask = false;
    // A task that could not be asked for is not looked at, either.
    return filling;
}

void expectTypeBoxes(ModalDriver &driver, const Filling &filling)
{
    const auto expect = [&driver](const QString &text) {
        driver.expectBox(QMessageBox::Critical, u"Critical Error!"_s, text);
    };
    if (!filling.knowsTask)
        expect(u"Task type mismatch!"_s);
    if (!filling.knowsTask || !filling.knowsType)
        expect(u"Task type not accepted!"_s);
}

/// The dialog comes with what it could be filled with, keeps what is typed, and can be left.
void openUnderFault(Stage &stage, const Kind &kind, const QString &command)
{
    const Outcome outcome = stage.fault().outcome;
    const Filling filling = fillingOf(outcome, command);
    const bool edits = &kind == &editing();
    // Only a connection that stands is asked for the task.
    const bool asksForTask = edits && (command == "task.get"_L1 || !isGone(outcome));
    ModalDriver driver;
    if (asksForTask)
        expectTypeBoxes(driver, filling);
    driver.expectDialog<MCsTaskDialog>(kind.title, [&](MCsTaskDialog *dialog) {
        if (outcome != Outcome::AnsweredThenLost) { // what else was asked for may have come or not
            QCOMPARE(itemsOf(dialog, "typeCombo"), filling.types);
            QCOMPARE(itemsOf(dialog, "groupCombo"), filling.groups);
            QCOMPARE(nameEdit(dialog)->text().startsWith(u"Stored "_s), asksForTask && filling.knowsTask);
        }
        nameEdit(dialog)->setText(u"Typed"_s);
        stage.mend();
        QCOMPARE(nameEdit(dialog)->text(), u"Typed"_s);
        stage.daemon.clearRequests();
        dialog->reject();
    });
    stage.mendWhenCovered();
    click(stage.window.get(), kind.button);
    QVERIFY2(driver.finished(), driver.problems());
    // A cancelled dialog is followed by nothing. The covered one was left while the next connection was still loading.
    if (outcome != Outcome::AnsweredThenLost)
        QCOMPARE(stage.daemon.commands(), QStringList());
    stage.expect(outcome == Outcome::LostAndBack || isGone(outcome) ? stage.newest() : stage.before());
}

void meetOpening(Stage &stage, const Kind &kind, const QString &command)
{
    openUnderFault(stage, kind, command);
    if (!QTest::currentTestFailed())
        openInPeace(stage, kind);
}

QString failureText(const Stage &stage, const QString &lastError)
{
    // A success without an id has no reason of its own.
    const bool hollow = stage.fault().outcome == Outcome::Hollow;
    return u"Failed to save task. reason : "_s + (hollow ? lastError : stage.reason());
}

void meetSaving(Stage &stage, const Kind &kind)
{
    const Outcome outcome = stage.fault().outcome;
    const bool fails = isFailure(outcome) || (outcome == Outcome::Hollow && &kind == &creation());
    const QString lastError = stage.client->lastError();
    ModalDriver driver;
    driver.expectDialog<MCsTaskDialog>(kind.title, [&](MCsTaskDialog *dialog) {
        nameEdit(dialog)->setText(u"Typed"_s);
        stage.hasten();
        if (fails)
            driver.expectBox(QMessageBox::Warning, u"Error"_s, failureText(stage, lastError));
        driver.expectBox(QMessageBox::Information, u"Success"_s, kind.success);
        save(dialog);
        if (!fails)
            return;
        QVERIFY(dialog->isVisible());
        QCOMPARE(nameEdit(dialog)->text(), u"Typed"_s);
        stage.mend();
        QVERIFY(dialog->isVisible());
        QCOMPARE(nameEdit(dialog)->text(), u"Typed"_s);
        stage.daemon.clearRequests();
        save(dialog);
    });
    stage.mendWhenCovered();
    click(stage.window.get(), kind.button);
    QVERIFY2(driver.finished(), driver.problems());
    if (fails) {
        const QJsonObject document = stage.payloadOf(kind.saveCommand).value("task"_L1).toObject();
        QCOMPARE(document.value("name"_L1).toString(), u"Typed"_s);
    }
    if (outcome != Outcome::AnsweredThenLost)
        stage.expect(stage.newest());
}

Moment openingMoment(const QByteArray &name, const Kind &kind, const QString &command, bool comesFirst)
{
    Moment moment{name, command, 1, comesFirst};
    const bool edits = &kind == &editing();
    moment.lists = command != "task.get"_L1;
    moment.asksMore = command == "tasktype.list"_L1 || (edits && moment.lists);
    moment.warns = edits;
    if (edits)
        moment.prepare = selectFirstTask;
    moment.meet = [&kind, command](Stage &stage) { meetOpening(stage, kind, command); };
    return moment;
}

Moment savingMoment(const QByteArray &name, const Kind &kind)
{
    Moment moment{name, kind.saveCommand, 1, false};
    if (&kind == &editing())
        moment.prepare = selectFirstTask;
    moment.meet = [&kind](Stage &stage) { meetSaving(stage, kind); };
    return moment;
}

} // namespace

QList<Moment> taskDialogMoments()
{
    return {openingMoment("new task, types", creation(), u"tasktype.list"_s, true),
            openingMoment("new task, groups", creation(), u"group.listByTaskType"_s, false),
            openingMoment("edited task, types", editing(), u"tasktype.list"_s, true),
            openingMoment("edited task, groups", editing(), u"group.listByTaskType"_s, false),
            openingMoment("edited task, itself", editing(), u"task.get"_s, false),
            savingMoment("saving a new task", creation()),
            savingMoment("saving an edited task", editing())};
}

} // namespace TestSupport
