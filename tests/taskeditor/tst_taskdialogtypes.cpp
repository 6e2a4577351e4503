#include "mcsdynamicformwidget.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include <functional>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString allTypes = u"task_type.all"_s;
const QString screen = u"task_type.screen_record"_s;
const QString audio = u"task_type.audio_record"_s;
const QString listCommand = u"group.listByTaskType"_s;

} // namespace

/// A user's choice of another task type.
class TestTaskDialogTypes : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void choiceRebuildsTheFormAndDropsWhatWasTyped();
    void choiceFromTheListCounts();
    void sameChoiceAgainRebuildsTheForm();
    void changeFromCodeRebuildsNothing();
    void choiceListsTheGroupsOfTheNewType();
    void choiceKeepsTheParametersOfTheHost();
    void choiceTakesNoLastValues();
    void choiceOfAnUnreachableDaemonStillBuildsTheForm();
    void secondChoiceDuringTheFirstListingWins_data();
    void secondChoiceDuringTheFirstListingWins();

private:
    /// Each type has a group of its own, and one that both have.
    void answerGroupsByType() const;
    [[nodiscard]] QComboBox *types() const;
    [[nodiscard]] QStringList groups() const;
    /// What the form holds now.
    [[nodiscard]] QJsonObject values() const;
    /// The types that groups were asked for.
    [[nodiscard]] QStringList listedTypes() const;
};

void TestTaskDialogTypes::answerGroupsByType() const
{
    m_daemon->respondWith(listCommand, [](const QJsonObject &payload) {
        const QString type = payload.value("taskType"_L1).toString();
        const QJsonArray found{taskGroupJson(u"both"_s, u"Both"_s), taskGroupJson(u"of_"_s + type, u"Of "_s + type)};
        return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"groups"_s, found}}}};
    });
}

QComboBox *TestTaskDialogTypes::types() const
{
    return widget<QComboBox>("typeCombo");
}

QStringList TestTaskDialogTypes::groups() const
{
    const auto *const combo = widget<QComboBox>("groupCombo");
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

QJsonObject TestTaskDialogTypes::values() const
{
    return m_dialog->findChild<MCsDynamicFormWidget *>()->collectValues();
}

QStringList TestTaskDialogTypes::listedTypes() const
{
    QStringList asked;
    const QList<QJsonObject> requests = m_daemon->requests(listCommand);
    for (const QJsonObject &request : requests)
        asked.append(request.value("payload"_L1).toObject().value("taskType"_L1).toString());
    return asked;
}

void TestTaskDialogTypes::choiceRebuildsTheFormAndDropsWhatWasTyped()
{
    setClientType(allTypes);
    openForCreate();
    const auto *const form = m_dialog->findChild<MCsDynamicFormWidget *>();
    const QJsonObject untouched = values();
    for (QLineEdit *edit : form->findChildren<QLineEdit *>()) {
        if (edit->accessibleName() == "title"_L1)
            QTest::keyClicks(edit, u"typed"_s);
    }
    QVERIFY(values() != untouched);

    QTest::keyClick(types(), Qt::Key_Down);
    QCOMPARE(types()->currentData().toString(), audio);
    QVERIFY(!form->hasFields());
    QVERIFY(form->isHidden());
    QTest::keyClick(types(), Qt::Key_Up);
    QCOMPARE(types()->currentData().toString(), screen);
    QVERIFY(form->isVisible());
    QCOMPARE(values(), untouched);
    QCOMPARE(m_dialog->collectTaskDocument().value("type"_L1).toString(), screen);
}

void TestTaskDialogTypes::choiceFromTheListCounts()
{
    setClientType(allTypes);
    openForCreate();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_daemon->clearRequests();
    types()->showPopup();
    QAbstractItemView *const popup = types()->view();
    QVERIFY(QTest::qWaitForWindowExposed(popup->window()));
    QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
    QTRY_VERIFY(!popup->isVisible());
    QTRY_COMPARE(listedTypes(), QStringList{audio});
    QVERIFY(values().isEmpty());
}

void TestTaskDialogTypes::sameChoiceAgainRebuildsTheForm()
{
    setClientType(allTypes);
    openForCreate();
    m_dialog->findChild<MCsDynamicFormWidget *>()->applyValues({{u"fps"_s, 60}}, {});
    m_daemon->clearRequests();
    types()->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(types()->view()->window()));
    QTest::keyClick(types()->view(), Qt::Key_Return);
    QTRY_COMPARE(listedTypes(), QStringList{screen});
    QCOMPARE(values().value("fps"_L1).toInt(), 30);
}

void TestTaskDialogTypes::changeFromCodeRebuildsNothing()
{
    setClientType(allTypes);
    openForCreate();
    m_daemon->clearRequests();
    const QJsonObject before = values();
    types()->setCurrentIndex(1);
    QCOMPARE(types()->currentData().toString(), audio);
    QCOMPARE(values(), before);
    QCOMPARE(widget<QListWidget>("navList")->count(), 8);
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestTaskDialogTypes::choiceListsTheGroupsOfTheNewType()
{
    setClientType(allTypes);
    answerGroupsByType();
    openForCreate(u"both"_s);
    QCOMPARE(groups(), (QStringList{u"Ungrouped"_s, u"Both"_s, u"Of "_s + screen}));
    m_daemon->clearRequests();
    QTest::keyClick(types(), Qt::Key_Down);
    QCOMPARE(m_daemon->commands(), QStringList{listCommand});
    QCOMPARE(listedTypes(), QStringList{audio});
    QCOMPARE(groups(), (QStringList{u"Ungrouped"_s, u"Both"_s, u"Of "_s + audio}));
    QCOMPARE(widget<QComboBox>("groupCombo")->currentIndex(), 0);
}

void TestTaskDialogTypes::choiceKeepsTheParametersOfTheHost()
{
    setClientType(allTypes);
    openForCreate({}, uR"({"fps": {"defaultValue": "77"}})"_s);
    const QJsonObject before = values();
    QTest::keyClick(types(), Qt::Key_Down);
    QTest::keyClick(types(), Qt::Key_Up);
    QCOMPARE(values(), before);
    QCOMPARE(before.value("fps"_L1).toInt(), 77);
}

void TestTaskDialogTypes::choiceTakesNoLastValues()
{
    setClientType(allTypes);
    MCsLastTaskDefaults().saveDefaults(
        screen, {{u"paramsJson"_s, QJsonObject{{u"dynamicParams"_s, QJsonObject{{u"fps"_s, 99}}}}}});
    openForCreate();
    QCOMPARE(values().value("fps"_L1).toInt(), 99);
    QTest::keyClick(types(), Qt::Key_Down);
    QTest::keyClick(types(), Qt::Key_Up);
    QCOMPARE(values().value("fps"_L1).toInt(), 30);
}

void TestTaskDialogTypes::choiceOfAnUnreachableDaemonStillBuildsTheForm()
{
    setClientType(allTypes);
    openForCreate();
    const QStringList before = groups();
    m_client->disconnectFromDaemon();
    QTest::keyClick(types(), Qt::Key_Down);
    QVERIFY(values().isEmpty());
    QCOMPARE(widget<QListWidget>("navList")->count(), 7);
    QCOMPARE(groups(), before);
}

void TestTaskDialogTypes::secondChoiceDuringTheFirstListingWins_data()
{
    QTest::addColumn<bool>("newestFirst");
    QTest::newRow("answers in order") << false;
    QTest::newRow("newest answer first") << true;
}

void TestTaskDialogTypes::secondChoiceDuringTheFirstListingWins()
{
    QFETCH(const bool, newestFirst);
    setClientType(allTypes);
    answerGroupsByType();
    openForCreate();
    m_daemon->clearRequests();
    m_daemon->hold(listCommand);
    const auto later = [this](const std::function<void()> &action) {
        QMetaObject::invokeMethod(m_daemon.get(), action, Qt::QueuedConnection);
    };
    m_daemon->onRequest(listCommand, [&](const QJsonObject &) {
        if (listedTypes().size() == 1) {
            later([this] { QTest::keyClick(types(), Qt::Key_Up); });
            return;
        }
        later([this, newestFirst] {
            if (newestFirst)
                m_daemon->releaseNewest();
            m_daemon->release(listCommand);
        });
    });
    QTest::keyClick(types(), Qt::Key_Down);
    QCOMPARE(listedTypes(), (QStringList{audio, screen}));
    QCOMPARE(types()->currentData().toString(), screen);
    QCOMPARE(groups(), (QStringList{u"Ungrouped"_s, u"Both"_s, u"Of "_s + screen}));
    QCOMPARE(widget<QListWidget>("navList")->count(), 8);
    QVERIFY(!values().isEmpty());
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogTypes)
#include "tst_taskdialogtypes.moc"
