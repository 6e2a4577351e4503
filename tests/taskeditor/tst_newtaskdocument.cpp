#include "daemontasktypes.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QFile>
#include <QJsonDocument>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

/// Stands in the files for the time at which the dialog was opened, plus an hour.
const QString inAnHour = u"in an hour"_s;

QJsonObject expectedDocument(const QString &type)
{
    QFile file(QStringLiteral(NEW_TASKS_DIRECTORY) + u'/' + type + ".json"_L1);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

QStringList sampleTypes()
{
    QStringList types;
    for (const QJsonValue &type : DevDaemon::taskTypes())
        types.append(type.toObject().value("type"_L1).toString());
    return types;
}

} // namespace

/// What the dialog sends for a task in which nothing but the name was entered. One file per type of the stand-in
/// daemon holds the whole document.
class TestNewTaskDocument : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void onlyANameIsEntered_data();
    void onlyANameIsEntered();
    void modesTakeUpTheirStartingValues_data();
    void modesTakeUpTheirStartingValues();

private:
    [[nodiscard]] QJsonObject params() const
    {
        return m_dialog->collectTaskDocument().value("paramsJson"_L1).toObject();
    }
};

void TestNewTaskDocument::onlyANameIsEntered_data()
{
    QTest::addColumn<QString>("type");
    for (const QString &type : sampleTypes())
        QTest::newRow(qPrintable(type)) << type;
}

void TestNewTaskDocument::onlyANameIsEntered()
{
    QFETCH(const QString, type);
    answerTypes(DevDaemon::taskTypes());
    setClientType(type);
    const QDateTime before = QDateTime::currentDateTime();
    openForCreate(u"g2"_s);
    widget<QLineEdit>("nameEdit")->setText(u"  First  "_s);
    saveSuccessfully();

    QJsonObject document = sentTask(u"task.create"_s);
    QJsonObject sentParams = document.value("paramsJson"_L1).toObject();
    QJsonObject start = sentParams.value("startRecordingOn"_L1).toObject();
    const QDateTime time = QDateTime::fromString(start.value("specifiedDateTime"_L1).toString(), Qt::ISODate);
    QVERIFY2(time >= before.addSecs(3599) && time <= QDateTime::currentDateTime().addSecs(3600),
             qPrintable(time.toString()));
    start.insert("specifiedDateTime"_L1, inAnHour);
    sentParams.insert("startRecordingOn"_L1, start);
    document.insert("paramsJson"_L1, sentParams);
    const QJsonObject expected = expectedDocument(type);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(document, expected);
}

void TestNewTaskDocument::modesTakeUpTheirStartingValues_data()
{
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QString>("block");
    QTest::addColumn<QJsonObject>("expected");
    QTest::newRow("every day") << u"startModeEveryDay"_s << u"startRecordingOn"_s
                               << QJsonObject{{u"mode"_s, u"EveryDay"_s}, {u"dailyTime"_s, u"09:00:00"_s}};
    QTest::newRow("every week") << u"startModeEveryWeek"_s << u"startRecordingOn"_s
                                << QJsonObject{{u"mode"_s, u"EveryWeek"_s},
                                               {u"weeklyDays"_s, QJsonArray()},
                                               {u"weeklyTime"_s, u"09:00:00"_s}};
    QTest::newRow("duration") << u"stopModeByDuration"_s << u"autoStopCondition"_s
                              << QJsonObject{{u"mode"_s, u"ByDuration"_s}, {u"durationSeconds"_s, 300}};
    QTest::newRow("size") << u"stopModeByFileSize"_s << u"autoStopCondition"_s
                          << QJsonObject{{u"mode"_s, u"ByFileSize"_s}, {u"fileSizeBytes"_s, 1073741824.0}};
    QTest::newRow("own output") << u"useCustomOutputRadio"_s << u"outputSettings"_s
                                << QJsonObject{{u"mode"_s, u"Custom"_s},
                                               {u"customFolder"_s, u""_s},
                                               {u"customFileNamePattern"_s, u"[YYYY-MM-DD][hh-mm-ss]_[TaskName]"_s}};
    QTest::newRow("close") << u"afterActionCloseProgram"_s << u"actionAfterAutoStop"_s
                           << QJsonObject{{u"action"_s, u"CloseProgram"_s}};
    QTest::newRow("shut down") << u"afterActionShutdown"_s << u"actionAfterAutoStop"_s
                               << QJsonObject{{u"action"_s, u"ShutdownComputer"_s}};
}

void TestNewTaskDocument::modesTakeUpTheirStartingValues()
{
    QFETCH(const QString, radio);
    QFETCH(const QString, block);
    QFETCH(const QJsonObject, expected);
    openForCreate();
    choose(qPrintable(radio));
    QCOMPARE(params().value(block).toObject(), expected);
}

ORVEL_TEST_MAIN(QApplication, TestNewTaskDocument)
#include "tst_newtaskdocument.moc"
