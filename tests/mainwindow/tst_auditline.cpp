#include "auditline.h"
#include "testmain.h"

#include <QCoreApplication>

using namespace Scheduler;
using namespace Qt::StringLiterals;

class TestAuditLine : public QObject {
    Q_OBJECT

private slots:
    void eachActionHasItsSentence_data();
    void eachActionHasItsSentence();
    void theActionAloneDecidesTheColour_data();
    void theActionAloneDecidesTheColour();
    void theTimeIsShownAsItCame();
    void anInvalidTimeIsShownAsNothing();
    void markupAndPlaceMarkersStandAsTyped();
};

void TestAuditLine::eachActionHasItsSentence_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QJsonObject>("details");
    QTest::addColumn<QString>("message");
    const auto row = [](const QString &action, const QJsonObject &details, const QString &message) {
        QTest::addRow("%s: %s", qPrintable(action), qPrintable(message)) << action << details << message;
    };
    row(u"task.created"_s, {}, u"Task 'X' created"_s);
    row(u"task.created"_s, {{u"scheduleMode"_s, u"EveryDay"_s}}, u"Task 'X' created (schedule: EveryDay)"_s);
    row(u"task.created"_s, {{u"scheduleMode"_s, 5}}, u"Task 'X' created"_s);
    row(u"task.updated"_s, {}, u"Task 'X' updated"_s);
    row(u"task.deleted"_s, {}, u"Task 'X' deleted"_s);
    row(u"task.enabled"_s, {}, u"Task 'X' enabled"_s);
    row(u"task.disabled"_s, {}, u"Task 'X' disabled"_s);
    row(u"task_run.started"_s, {}, u"Task 'X' execution started"_s);
    row(u"task_run.started"_s, {{u"runId"_s, u"12345678-1234-1234-1234-123456789012"_s}},
        u"Task 'X' execution started (run: 12345678)"_s);
    row(u"task_run.started"_s, {{u"runId"_s, u"12345"_s}}, u"Task 'X' execution started (run: 12345)"_s);
    row(u"task_run"_s, {}, u"Task 'X' completed successfully (exit: 0)"_s);
    row(u"task_run"_s, {{u"exitCode"_s, 3}}, u"Task 'X' completed successfully (exit: 3)"_s);
    row(u"task_run.failed"_s, {}, u"Task 'X' execution failed"_s);
    row(u"task_run.failed"_s, {{u"error"_s, u"disk full"_s}}, u"Task 'X' execution failed - disk full"_s);
    row(u"group.created"_s, {}, u"Group 'X' created"_s);
    row(u"group.updated"_s, {}, u"Group 'X' updated"_s);
    row(u"group.deleted"_s, {}, u"Group 'X' deleted"_s);
    row(u"task_run.timeout"_s, {}, u"task_run.timeout on 'X'"_s);
    row(u"Task.created"_s, {}, u"Task.created on 'X'"_s);
    row(QString(), {}, u" on 'X'"_s);
}

void TestAuditLine::eachActionHasItsSentence()
{
    QFETCH(QString, action);
    QFETCH(QJsonObject, details);
    AuditLogEntry entry;
    entry.action = action;
    entry.entityName = u"X"_s;
    entry.detailsJson = details;
    QTEST(auditMessage(entry), "message");
}

void TestAuditLine::theActionAloneDecidesTheColour_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("color");
    const auto row = [](const QString &action, const QString &color) {
        QTest::addRow("'%s'", qPrintable(action)) << action << color;
    };
    row(u"task_run.failed"_s, u"#e74c3c"_s);
    row(u"task_run.timeout"_s, u"#e74c3c"_s);
    row(u"created.failed"_s, u"#e74c3c"_s);
    row(u"task_run.success"_s, u"#27ae60"_s);
    row(u"task.created"_s, u"#27ae60"_s);
    row(u"group.created"_s, u"#27ae60"_s);
    row(u"task.deleted"_s, u"#e67e22"_s);
    row(u"group.deleted"_s, u"#e67e22"_s);
    row(u"task_run.cancelled"_s, u"#95a5a6"_s);
    row(u"task.disabled"_s, u"#95a5a6"_s);
    row(u"task.updated"_s, u"#2c3e50"_s);
    row(u"task.enabled"_s, u"#2c3e50"_s);
    row(u"task_run.started"_s, u"#2c3e50"_s);
    row(u"task_run"_s, u"#2c3e50"_s);
    row(u"TASK.CREATED"_s, u"#2c3e50"_s);
    row(QString(), u"#2c3e50"_s);
}

void TestAuditLine::theActionAloneDecidesTheColour()
{
    QFETCH(QString, action);
    QTEST(auditColor(action), "color");
}

void TestAuditLine::theTimeIsShownAsItCame()
{
    AuditLogEntry entry;
    entry.action = u"task.updated"_s;
    entry.entityName = u"X"_s;
    entry.createdAt = QDateTime::fromString(u"2026-11-13T10:00:05Z"_s, Qt::ISODate);
    QCOMPARE(auditLine(entry), u"<span style='color:#999'>2026-11-13 10:00:05</span> "
                               "<span style='color:#2c3e50'>Task 'X' updated</span>"_s);
}

void TestAuditLine::anInvalidTimeIsShownAsNothing()
{
    AuditLogEntry entry;
    entry.action = u"a"_s;
    QVERIFY(auditLine(entry).startsWith(u"<span style='color:#999'></span> "_s));
}

void TestAuditLine::markupAndPlaceMarkersStandAsTyped()
{
    AuditLogEntry entry;
    entry.action = u"task_run.failed"_s;
    entry.entityName = u"<b>100% %1 %2 %3</b> & \"x\""_s;
    entry.detailsJson = {{u"error"_s, u"%1 <i>"_s}};
    QVERIFY2(auditLine(entry).contains(u"&lt;b&gt;100% %1 %2 %3&lt;/b&gt; &amp; &quot;x&quot;"_s),
             qPrintable(auditLine(entry)));
    QVERIFY(auditLine(entry).endsWith(u" - %1 &lt;i&gt;</span>"_s));
}

ORVEL_TEST_MAIN(QCoreApplication, TestAuditLine)
#include "tst_auditline.moc"
