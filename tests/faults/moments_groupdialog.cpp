#include "moments.h"

#include "mcsgroupdialog.h"
#include "mcsschedulerclient.h"

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
};

const Kind &creation()
{
    static const Kind kind{"createGroupButton", u"Create Group"_s, u"group.create"_s};
    return kind;
}

const Kind &editing()
{
    static const Kind kind{"editGroupButton", u"Edit Group"_s, u"group.update"_s};
    return kind;
}

QLineEdit *nameEdit(MCsGroupDialog *dialog)
{
    return require<QLineEdit>(dialog, "nameEdit");
}

QComboBox *parentCombo(MCsGroupDialog *dialog)
{
    return require<QComboBox>(dialog, "parentCombo");
}

void save(MCsGroupDialog *dialog)
{
    click(require<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Save));
}

void selectWork(Stage &stage)
{
    stage.selectGroup(0);
}

int parentsOf(const Kind &kind, Outcome outcome)
{
    switch (outcome) {
    case Outcome::Answered:
        return &kind == &creation() ? 2 : 1; // a group is no parent of itself
    case Outcome::OddElements:
        return &kind == &creation() ? 1 : 1 + int(oddElementCount); // a new group's id is as blank as theirs
    default:
        return 1;
    }
}

/// Opens the dialog while nothing is wrong, and finds everything in it.
void openInPeace(Stage &stage, const Kind &kind)
{
    if (&kind == &editing())
        stage.selectGroup(0);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(kind.title, [&kind](MCsGroupDialog *dialog) {
        QCOMPARE(parentCombo(dialog)->count(), parentsOf(kind, Outcome::Answered));
        QCOMPARE(nameEdit(dialog)->text(), &kind == &editing() ? u"Stored g1"_s : QString());
        dialog->reject();
    });
    click(stage.window.get(), kind.button);
    QVERIFY2(driver.finished(), driver.problems());
}

/// The dialog comes with what it could be filled with, keeps what is typed, and can be left.
void openUnderFault(Stage &stage, const Kind &kind, const QString &command)
{
    const Outcome outcome = stage.fault().outcome;
    const bool parents = command == "group.listByTaskType"_L1;
    const bool answered = outcome == Outcome::Answered;
    const bool stored = &kind == &editing() && (parents ? !isGone(outcome) : answered);
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(kind.title, [&](MCsGroupDialog *dialog) {
        if (outcome != Outcome::AnsweredThenLost) { // what else was asked for may have come or not
            QCOMPARE(parentCombo(dialog)->count(), parentsOf(kind, parents ? outcome : Outcome::Answered));
            QCOMPARE(nameEdit(dialog)->text(), stored ? u"Stored g1"_s : QString());
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
}

void meetOpening(Stage &stage, const Kind &kind, const QString &command)
{
    openUnderFault(stage, kind, command);
    if (!QTest::currentTestFailed())
        openInPeace(stage, kind);
}

void meetSaving(Stage &stage, const Kind &kind)
{
    const Outcome outcome = stage.fault().outcome;
    const bool fails = isFailure(outcome) || (outcome == Outcome::Hollow && &kind == &creation());
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(kind.title, [&](MCsGroupDialog *dialog) {
        nameEdit(dialog)->setText(u"Typed"_s);
        stage.hasten();
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
    if (fails)
        driver.expectBox(QMessageBox::Critical, u"Error"_s,
                         u"Failed to save group. Please check the error log for details."_s);
    stage.mendWhenCovered();
    click(stage.window.get(), kind.button);
    QVERIFY2(driver.finished(), driver.problems());
    if (fails) {
        const QJsonObject group = stage.payloadOf(kind.saveCommand).value("group"_L1).toObject();
        QCOMPARE(group.value("name"_L1).toString(), u"Typed"_s);
    }
    if (outcome != Outcome::AnsweredThenLost)
        stage.expect(stage.newest());
}

Moment openingMoment(const QByteArray &name, const Kind &kind, const QString &command)
{
    const bool parents = command == "group.listByTaskType"_L1;
    Moment moment{name, command, 1, parents};
    moment.lists = parents;
    moment.asksMore = parents && &kind == &editing();
    if (&kind == &editing())
        moment.prepare = selectWork;
    moment.meet = [&kind, command](Stage &stage) { meetOpening(stage, kind, command); };
    return moment;
}

Moment savingMoment(const QByteArray &name, const Kind &kind)
{
    Moment moment{name, kind.saveCommand, 1, false};
    if (&kind == &editing())
        moment.prepare = selectWork;
    moment.meet = [&kind](Stage &stage) { meetSaving(stage, kind); };
    return moment;
}

} // namespace

QList<Moment> groupDialogMoments()
{
    return {openingMoment("new group, parents", creation(), u"group.listByTaskType"_s),
            openingMoment("edited group, parents", editing(), u"group.listByTaskType"_s),
            openingMoment("edited group, itself", editing(), u"group.get"_s),
            savingMoment("saving a new group", creation()), savingMoment("saving an edited group", editing())};
}

} // namespace TestSupport
