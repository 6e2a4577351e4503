#include "taskdialogfixture.h"
#include "testmain.h"

#include <QCheckBox>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString onSheet = u"font-size: 12px; font-weight: bold; color: #4cd964;"_s;
const QString offSheet = u"font-size: 12px; font-weight: bold; color: #999999;"_s;

} // namespace

/// What the radio buttons and the switch show, hide, enable and disable.
class TestTaskDialogModes : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void startModeShowsItsPanelOnly_data();
    void startModeShowsItsPanelOnly();
    void stopModeShowsItsPanelOnly_data();
    void stopModeShowsItsPanelOnly();
    void storedHiddenModeShowsItsPanel_data();
    void storedHiddenModeShowsItsPanel();
    void leavingAHiddenModeTakesItsPanelAway();
    void groupsOfRadiosAreIndependent();
    void customOutputEnablesItsPanel();
    void switchDimsThePageButNotTheButtons();
    void storedTaskThatIsOffIsDimmed();

private:
    /// The panels of these that a user can see.
    [[nodiscard]] QStringList visibleOf(const QStringList &panels) const;
    void pick(const QString &radio) const;
    [[nodiscard]] double opacityOf(const char *name) const;
    void verifyEnabled(bool enabled) const;

    const QStringList m_startPanels{u"specifiedTimeWidget"_s, u"everyDayWidget"_s, u"everyWeekWidget"_s,
                                    u"monitorAppWidget"_s, u"monitorFolderWidget"_s};
    const QStringList m_stopPanels{u"byDurationWidget"_s, u"byFileSizeWidget"_s, u"atTimeWidget"_s};
};

QStringList TestTaskDialogModes::visibleOf(const QStringList &panels) const
{
    QStringList visible;
    for (const QString &panel : panels) {
        if (widget<QWidget>(qPrintable(panel))->isVisible())
            visible.append(panel);
    }
    return visible;
}

/// As a user does; a mode that is not offered is checked from code, as a stored task does.
void TestTaskDialogModes::pick(const QString &radio) const
{
    if (widget<QRadioButton>(qPrintable(radio))->isVisible())
        click(m_dialog.get(), qPrintable(radio));
    else
        choose(qPrintable(radio));
}

double TestTaskDialogModes::opacityOf(const char *name) const
{
    const auto *const effect = qobject_cast<QGraphicsOpacityEffect *>(widget<QWidget>(name)->graphicsEffect());
    return effect == nullptr ? -1.0 : effect->opacity();
}

void TestTaskDialogModes::startModeShowsItsPanelOnly_data()
{
    QTest::addColumn<QString>("panel");
    QTest::newRow("startModeSpecifiedTime") << u"specifiedTimeWidget"_s;
    QTest::newRow("startModeEveryDay") << u"everyDayWidget"_s;
    QTest::newRow("startModeEveryWeek") << u"everyWeekWidget"_s;
    QTest::newRow("startModeMonitorApp") << u"monitorAppWidget"_s;
    QTest::newRow("startModeMonitorFolder") << u"monitorFolderWidget"_s;
}

void TestTaskDialogModes::startModeShowsItsPanelOnly()
{
    QFETCH(const QString, panel);
    openForCreate();
    QCOMPARE(visibleOf(m_startPanels), QStringList{u"specifiedTimeWidget"_s});
    pick(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(visibleOf(m_startPanels), QStringList{panel});
    QCOMPARE(visibleOf(m_stopPanels), QStringList());
    pick(u"startModeEveryDay"_s);
    QCOMPARE(visibleOf(m_startPanels), QStringList{u"everyDayWidget"_s});
}

void TestTaskDialogModes::stopModeShowsItsPanelOnly_data()
{
    QTest::addColumn<QStringList>("panels");
    QTest::newRow("stopModeNone") << QStringList();
    QTest::newRow("stopModeByDuration") << QStringList{u"byDurationWidget"_s};
    QTest::newRow("stopModeByFileSize") << QStringList{u"byFileSizeWidget"_s};
    QTest::newRow("stopModeAtTime") << QStringList{u"atTimeWidget"_s};
}

void TestTaskDialogModes::stopModeShowsItsPanelOnly()
{
    QFETCH(const QStringList, panels);
    openForCreate();
    QCOMPARE(visibleOf(m_stopPanels), QStringList());
    pick(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(visibleOf(m_stopPanels), panels);
    QCOMPARE(visibleOf(m_startPanels), QStringList{u"specifiedTimeWidget"_s});
    pick(u"stopModeNone"_s);
    QCOMPARE(visibleOf(m_stopPanels), QStringList());
}

void TestTaskDialogModes::storedHiddenModeShowsItsPanel_data()
{
    QTest::addColumn<QString>("block");
    QTest::addColumn<QString>("panel");
    QTest::addColumn<QString>("radio");
    QTest::newRow("monitorApp") << u"startRecordingOn"_s << u"monitorAppWidget"_s << u"startModeMonitorApp"_s;
    QTest::newRow("monitorFolder") << u"startRecordingOn"_s << u"monitorFolderWidget"_s << u"startModeMonitorFolder"_s;
    QTest::newRow("AtTime") << u"autoStopCondition"_s << u"atTimeWidget"_s << u"stopModeAtTime"_s;
}

void TestTaskDialogModes::storedHiddenModeShowsItsPanel()
{
    QFETCH(const QString, block);
    QFETCH(const QString, panel);
    QFETCH(const QString, radio);
    const QString mode = QString::fromLatin1(QTest::currentDataTag());
    openForEdit({{block, QJsonObject{{u"mode"_s, mode}}}});
    const QStringList expected =
        block == "startRecordingOn"_L1 ? QStringList{panel} : QStringList{u"specifiedTimeWidget"_s, panel};
    QCOMPARE(visibleOf(m_startPanels + m_stopPanels), expected);
    QVERIFY(widget<QRadioButton>(qPrintable(radio))->isChecked());
    QVERIFY(!widget<QRadioButton>(qPrintable(radio))->isVisible());
}

void TestTaskDialogModes::leavingAHiddenModeTakesItsPanelAway()
{
    openForEdit({{u"startRecordingOn"_s, QJsonObject{{u"mode"_s, u"monitorFolder"_s}}}});
    click(m_dialog.get(), "startModeEveryWeek");
    QCOMPARE(visibleOf(m_startPanels), QStringList{u"everyWeekWidget"_s});
    QVERIFY(!widget<QRadioButton>("startModeMonitorFolder")->isChecked());
}

void TestTaskDialogModes::groupsOfRadiosAreIndependent()
{
    openForCreate();
    const QStringList chosen{u"useCustomOutputRadio"_s, u"startModeEveryWeek"_s, u"stopModeByFileSize"_s,
                             u"afterActionShutdown"_s, u"displayModeHide"_s};
    for (const QString &radio : chosen)
        click(m_dialog.get(), qPrintable(radio));
    QStringList checked;
    const QList<QRadioButton *> radios = m_dialog->findChildren<QRadioButton *>();
    for (const QRadioButton *radio : radios) {
        if (radio->isChecked())
            checked.append(radio->objectName());
    }
    QCOMPARE(QSet<QString>(checked.cbegin(), checked.cend()), QSet<QString>(chosen.cbegin(), chosen.cend()));
    QCOMPARE(checked.size(), chosen.size());
}

void TestTaskDialogModes::customOutputEnablesItsPanel()
{
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QWidget, panel, m_dialog.get(), "customOutputWidget");
    click(m_dialog.get(), "useCustomOutputRadio");
    QVERIFY(panel->isEnabled());
    QVERIFY(widget<QLineEdit>("customFolderEdit")->isEnabled());
    click(m_dialog.get(), "useDefaultOutputRadio");
    QVERIFY(!panel->isEnabled());
    QVERIFY(panel->isVisible());
}

void TestTaskDialogModes::verifyEnabled(bool enabled) const
{
    QCOMPARE(widget<QScrollArea>("scrollArea")->isEnabled(), enabled);
    QCOMPARE(widget<QListWidget>("navList")->isEnabled(), enabled);
    QCOMPARE(opacityOf("scrollArea"), enabled ? 1.0 : 0.4);
    QCOMPARE(opacityOf("navList"), enabled ? 1.0 : 0.4);
    QCOMPARE(widget<QLabel>("enabledStatusLabel")->text(), enabled ? u"ON"_s : u"OFF"_s);
    QCOMPARE(widget<QLabel>("enabledStatusLabel")->styleSheet(), enabled ? onSheet : offSheet);
    QVERIFY(widget<QCheckBox>("enabledCheck")->isEnabled());
    QVERIFY(button(QDialogButtonBox::Save)->isEnabled());
    QVERIFY(button(QDialogButtonBox::Cancel)->isEnabled());
}

void TestTaskDialogModes::switchDimsThePageButNotTheButtons()
{
    openForCreate();
    verifyEnabled(true);
    click(m_dialog.get(), "enabledCheck");
    verifyEnabled(false);
    click(m_dialog.get(), "enabledCheck");
    verifyEnabled(true);
}

void TestTaskDialogModes::storedTaskThatIsOffIsDimmed()
{
    openForEdit({}, {{u"enabled"_s, false}});
    QVERIFY(!widget<QCheckBox>("enabledCheck")->isChecked());
    verifyEnabled(false);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogModes)
#include "tst_taskdialogmodes.moc"
