#include "mcsdynamicformwidget.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QSplitter>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

/// The object name of what a layout holds at a place; "(space)" for a spacer.
QString nameOf(const QLayoutItem *item)
{
    auto *const place = const_cast<QLayoutItem *>(item); // the getters are not const
    if (place == nullptr)
        return u"(nothing)"_s;
    if (place->spacerItem() != nullptr)
        return u"(space)"_s;
    if (place->widget() != nullptr)
        return place->widget()->objectName();
    return place->layout()->objectName();
}

QStringList namesIn(const QLayout *layout)
{
    QStringList names;
    for (int i = 0; i < layout->count(); ++i)
        names.append(nameOf(layout->itemAt(i)));
    return names;
}

} // namespace

/// Where the widgets of the dialog stand.
class TestTaskDialogLayout : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void layoutHolds_data();
    void layoutHolds();
    void formRowHolds_data();
    void formRowHolds();
    void cardBeginsWithItsHeading_data();
    void cardBeginsWithItsHeading();
    void hintBeforeTheWaitTakesTheWholeRow();
    void cardsFollowEachOtherOnThePage();
    void placeholderIsCentredAndEmpty();
    void marginsOfTheInnerRows();
    void spacersPushToTheFront_data();
    void spacersPushToTheFront();
    void pageAndListShareASplitter();

private:
    template <typename Layout> Layout *layout(const char *name) const
    {
        auto *const found = m_dialog->findChild<Layout *>(QLatin1StringView(name));
        if (found == nullptr)
            fail(u"no such layout: "_s + QLatin1StringView(name));
        return found;
    }
};

void TestTaskDialogLayout::layoutHolds_data()
{
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char *name, const QStringList &names) { QTest::newRow(name) << names; };
    row("mainLayout", {u"widget"_s, u"contentSplitter"_s, u"buttonBox"_s});
    row("horizontalLayout_2", {u"enabledLayout"_s});
    row("enabledLayout", {u"enabledLabel"_s, u"enabledCheck"_s, u"enabledStatusLabel"_s, u"(space)"_s});
    row("basicGroupVLayout", {u"basicSectionLabel"_s, u"basicFormLayout"_s});
    row("outputGroupLayout", {u"outputSectionLabel"_s, u"outputModeLayout"_s, u"customOutputWidget"_s});
    row("outputModeLayout", {u"useDefaultOutputRadio"_s, u"useCustomOutputRadio"_s});
    row("customFolderHLayout", {u"customFolderEdit"_s, u"browseOutputBtn"_s});
    row("fileNamePatternHLayout", {u"customFileNamePatternEdit"_s, u"fileNameHelpBtn"_s});
    row("actionBeforeVLayout", {u"actionBeforeSectionLabel"_s, u"actionBeforeFormLayout"_s, u"horizontalLayout_3"_s});
    row("runProgramHLayout", {u"runProgramEdit"_s, u"browseRunProgramBtn"_s});
    row("horizontalLayout_3", {u"labelSleepAfter"_s, u"sleepAfterSecondsSpin"_s, u"(space)"_s});
    row("startRecordingGroupLayout",
        {u"horizontalLayout"_s, u"startRecordingModeLayout"_s, u"specifiedTimeWidget"_s, u"everyDayWidget"_s,
         u"everyWeekWidget"_s, u"monitorAppWidget"_s, u"monitorFolderWidget"_s});
    row("horizontalLayout", {u"startRecordingSectionLabel"_s, u"m_startProgramName"_s, u"(space)"_s});
    row("startRecordingModeLayout", {u"startModeSpecifiedTime"_s, u"startModeEveryDay"_s, u"startModeEveryWeek"_s,
                                     u"startModeMonitorApp"_s, u"startModeMonitorFolder"_s});
    row("everyWeekLayout", {u"labelSelectDays"_s, u"weekdayLayout"_s, u"weeklyTimeFormLayout"_s});
    row("weekdayLayout", {u"weekdayCheckMon"_s, u"weekdayCheckTue"_s, u"weekdayCheckWed"_s, u"weekdayCheckThu"_s,
                          u"weekdayCheckFri"_s, u"weekdayCheckSat"_s, u"weekdayCheckSun"_s});
    row("monitorProgramHLayout", {u"monitorProgramEdit"_s, u"browseMonitorProgramBtn"_s});
    row("monitorFolderHLayout", {u"monitorFolderPathEdit"_s, u"browseMonitorFolderBtn"_s});
    row("autoStopGroupLayout", {u"autoStopSectionLabel"_s, u"autoStopModeHLayout"_s, u"byDurationWidget"_s,
                                u"byFileSizeWidget"_s, u"atTimeWidget"_s});
    row("autoStopModeHLayout",
        {u"stopModeNone"_s, u"stopModeByDuration"_s, u"stopModeByFileSize"_s, u"stopModeAtTime"_s});
    row("actionAfterVLayout", {u"actionAfterSectionLabel"_s, u"actionAfterModeLayout"_s});
    row("actionAfterModeLayout", {u"afterActionNone"_s, u"afterActionCloseProgram"_s, u"afterActionShutdown"_s});
    row("displayVLayout", {u"displaySectionLabel"_s, u"displayModeLayout"_s});
    row("displayModeLayout", {u"displayModeShow"_s, u"displayModeMinimize"_s, u"displayModeHide"_s});
}

void TestTaskDialogLayout::layoutHolds()
{
    QFETCH(const QStringList, names);
    openForCreate();
    const auto *const found = layout<QBoxLayout>(QTest::currentDataTag());
    QVERIFY(found != nullptr);
    QCOMPARE(namesIn(found), names);
}

void TestTaskDialogLayout::formRowHolds_data()
{
    QTest::addColumn<QString>("layoutName");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("field");
    const auto row = [](const char *label, const char *form, int number, const char *field) {
        QTest::newRow(label) << QString::fromLatin1(form) << number << QString::fromLatin1(field);
    };
    row("labelTaskName", "basicFormLayout", 0, "nameEdit");
    row("labelProgramName", "basicFormLayout", 1, "programNameEdit");
    row("labelTargetProgram", "basicFormLayout", 2, "targetProgramEdit");
    row("labelTaskType", "basicFormLayout", 3, "typeCombo");
    row("labelGroup", "basicFormLayout", 4, "groupCombo");
    row("labelCustomFolder", "customOutputFormLayout", 0, "customFolderHLayout");
    row("labelFileNamePattern", "customOutputFormLayout", 1, "fileNamePatternHLayout");
    row("labelRunProgram", "actionBeforeFormLayout", 0, "runProgramHLayout");
    row("labelOpenUrl", "actionBeforeFormLayout", 1, "openUrlEdit");
    row("labelSpecifiedDateTime", "specifiedTimeLayout", 0, "specifiedDateTimeEdit");
    row("labelDailyTime", "everyDayLayout", 0, "dailyTimeEdit");
    row("labelWeeklyTime", "weeklyTimeFormLayout", 0, "weeklyTimeEdit");
    row("labelMonitorProgram", "monitorAppFormLayout", 0, "monitorProgramHLayout");
    row("labelMonitorFolder", "monitorFolderFormLayout", 0, "monitorFolderHLayout");
    row("labelFileExtensions", "monitorFolderFormLayout", 1, "monitorFileExtensionsEdit");
    row("labelDuration", "byDurationFormLayout", 0, "durationMinutesSpin");
    row("labelStopAtTime", "atTimeFormLayout", 0, "stopAtTimeEdit");
}

void TestTaskDialogLayout::formRowHolds()
{
    QFETCH(const QString, layoutName);
    QFETCH(const int, row);
    QFETCH(const QString, field);
    openForCreate();
    const auto *const form = layout<QFormLayout>(qPrintable(layoutName));
    QVERIFY(form != nullptr);
    QCOMPARE(nameOf(form->itemAt(row, QFormLayout::LabelRole)), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(nameOf(form->itemAt(row, QFormLayout::FieldRole)), field);
}

void TestTaskDialogLayout::cardBeginsWithItsHeading_data()
{
    QTest::addColumn<QString>("heading");
    QTest::newRow("basicGroup") << u"basicSectionLabel"_s;
    QTest::newRow("outputGroup") << u"outputSectionLabel"_s;
    QTest::newRow("actionBeforeGroup") << u"actionBeforeSectionLabel"_s;
    QTest::newRow("startRecordingGroup") << u"startRecordingSectionLabel"_s;
    QTest::newRow("autoStopGroup") << u"autoStopSectionLabel"_s;
    QTest::newRow("actionAfterGroup") << u"actionAfterSectionLabel"_s;
    QTest::newRow("displayGroup") << u"displaySectionLabel"_s;
}

void TestTaskDialogLayout::cardBeginsWithItsHeading()
{
    QFETCH(const QString, heading);
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QGroupBox, card, m_dialog.get(), QTest::currentDataTag());
    QCOMPARE(card->title(), QString());
    const auto *const cardLayout = qobject_cast<QVBoxLayout *>(card->layout());
    QVERIFY(cardLayout != nullptr);
    QCOMPARE(cardLayout->spacing(), 15);
    const QLayout *const line = cardLayout->itemAt(0)->layout();
    QCOMPARE(nameOf(line == nullptr ? cardLayout->itemAt(0) : line->itemAt(0)), heading);
    ORVEL_REQUIRE_WIDGET(QLabel, label, m_dialog.get(), qPrintable(heading));
    QVERIFY(label->font().bold());
    // Its sheet gives it another size; without one it has its own.
    label->setStyleSheet({});
    QVERIFY(label->font().bold());
    QCOMPARE(label->font().pointSize(), 10);
}

void TestTaskDialogLayout::hintBeforeTheWaitTakesTheWholeRow()
{
    openForCreate();
    const auto *const form = layout<QFormLayout>("actionBeforeFormLayout");
    QVERIFY(form != nullptr);
    QCOMPARE(form->rowCount(), 3);
    QCOMPARE(nameOf(form->itemAt(2, QFormLayout::SpanningRole)), u"label"_s);
}

void TestTaskDialogLayout::cardsFollowEachOtherOnThePage()
{
    openForCreate();
    const auto *const page = layout<QVBoxLayout>("scrollLayout");
    QVERIFY(page != nullptr);
    const auto *const form = m_dialog->findChild<MCsDynamicFormWidget *>();
    QVERIFY(form != nullptr);
    QCOMPARE(namesIn(page), (QStringList{u"basicGroup"_s, form->objectName(), u"outputGroup"_s, u"actionBeforeGroup"_s,
                                         u"dynamicParamsWidget"_s, u"startRecordingGroup"_s, u"autoStopGroup"_s,
                                         u"actionAfterGroup"_s, u"displayGroup"_s, u"(space)"_s}));
    QCOMPARE(page->itemAt(1)->widget(), form);
    QCOMPARE(form->parentWidget(), widget<QWidget>("scrollWidget"));
}

void TestTaskDialogLayout::placeholderIsCentredAndEmpty()
{
    openForCreate();
    const auto *const page = layout<QVBoxLayout>("scrollLayout");
    QVERIFY(page != nullptr);
    const QLayoutItem *const place = page->itemAt(page->indexOf(widget<QWidget>("dynamicParamsWidget")));
    QVERIFY(place != nullptr);
    QCOMPARE(place->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(layout<QLayout>("dynamicParamsLayout")->count(), 0);
}

void TestTaskDialogLayout::marginsOfTheInnerRows()
{
    openForCreate();
    QCOMPARE(layout<QHBoxLayout>("enabledLayout")->contentsMargins(), QMargins(4, 4, 4, 4));
    QCOMPARE(layout<QHBoxLayout>("horizontalLayout")->contentsMargins().top(), 7);
    QCOMPARE(layout<QHBoxLayout>("horizontalLayout_3")->contentsMargins().top(), 7);
}

void TestTaskDialogLayout::spacersPushToTheFront_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<Qt::Orientation>("direction");
    QTest::newRow("enabledLayout") << QSize(40, 20) << Qt::Horizontal;
    QTest::newRow("horizontalLayout") << QSize() << Qt::Horizontal;
    QTest::newRow("horizontalLayout_3") << QSize() << Qt::Horizontal;
    QTest::newRow("scrollLayout") << QSize(20, 40) << Qt::Vertical;
}

void TestTaskDialogLayout::spacersPushToTheFront()
{
    QFETCH(const QSize, size);
    QFETCH(const Qt::Orientation, direction);
    openForCreate();
    const auto *const row = layout<QBoxLayout>(QTest::currentDataTag());
    QVERIFY(row != nullptr);
    const QSpacerItem *const spacer = row->itemAt(row->count() - 1)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->expandingDirections(), Qt::Orientations(direction));
    if (size.isValid())
        QCOMPARE(spacer->sizeHint(), size);
}

void TestTaskDialogLayout::pageAndListShareASplitter()
{
    openForCreate();
    QCOMPARE(widget<QWidget>("widget")->maximumHeight(), 50);
    ORVEL_REQUIRE_WIDGET(QSplitter, splitter, m_dialog.get(), "contentSplitter");
    ORVEL_REQUIRE_WIDGET(QListWidget, list, m_dialog.get(), "navList");
    ORVEL_REQUIRE_WIDGET(QScrollArea, area, m_dialog.get(), "scrollArea");
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0), list);
    QCOMPARE(splitter->widget(1), area);
    QCOMPARE(list->minimumWidth(), 170);
    QCOMPARE(list->maximumWidth(), 210);
    QCOMPARE(area->font().pointSize(), 10);
    QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(area->widgetResizable());
    QCOMPARE(area->widget()->objectName(), u"scrollWidget"_s);
    QCOMPARE(widget<QGroupBox>("autoStopGroup")->font().pointSize(), 9);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogLayout)
#include "tst_taskdialoglayout.moc"
