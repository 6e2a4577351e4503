#include "defects.h"
#include "logcapture.h"
#include "mcsdevdaemon.h"
#include "mcsprotocolcheck.h"
#include "platform.h"
#include "testmain.h"
#include "wireclient.h"
#include "wireprotocol.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace Scheduler::ProtocolCheck;
using namespace TestSupport;

/// The check against the stand-in daemon, alone and with one defect at a time.
class TestProtocolCheck : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyRuleHoldsForTheStandIn_data();
    void everyRuleHoldsForTheStandIn();
    void aDefectIsReportedByItsRuleAlone_data();
    void aDefectIsReportedByItsRuleAlone();
    void everyRuleHasADefect();
    void everyCommandHasARule();
    void theDocumentListsTheRules();
    void aTypeThatIsTakenIsToldClearly();
    void whatCannotBeRemovedIsTold();
    void anInterruptedCheckRemovesWhatItMade();

private:
    struct Report {
        ExitStatus status = NotChecked;
        QStringList lines;
        QStringList complaints;
    };

    [[nodiscard]] QString proxyEndpoint() const
    {
        return endpointIn(m_directory->path(), u"proxy"_s);
    }
    [[nodiscard]] Report check(CheckSettings settings) const;
    [[nodiscard]] Report checkThroughProxy(const Defect &defect) const;
    /// Ids of all tasks and groups. By the time that it returns, the daemon knows of every connection that has ended.
    [[nodiscard]] QStringList things();

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<LogCapture> m_log; ///< keeps the server's log out of the test's output
    // One daemon for all, since it takes longer to start than to check.
    std::unique_ptr<DevDaemon::MCsDevDaemon> m_daemon;
    WireClient m_observer;
};

namespace {

QStringList beginningWith(const QString &beginning, const QStringList &lines)
{
    return lines.filter(QRegularExpression(u'^' + QRegularExpression::escape(beginning)));
}

QSet<QString> namesOf(const QList<Rule> &rules)
{
    QSet<QString> names;
    for (const Rule &rule : rules)
        names.insert(rule.name);
    return names;
}

} // namespace

void TestProtocolCheck::initTestCase()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_log = std::make_unique<LogCapture>(4);
    DevDaemon::DaemonOptions options;
    options.statePath = m_directory->filePath(u"state.json"_s);
    options.taskCount = 5;
    options.groupCount = 2;
    m_daemon = std::make_unique<DevDaemon::MCsDevDaemon>(options);
    QVERIFY(m_daemon->start());
    QVERIFY(m_observer.connectToDaemon());
    QCOMPARE(m_observer.registerAs(u"observer"_s), QString());
}

void TestProtocolCheck::cleanupTestCase()
{
    m_daemon.reset();
    m_log.reset();
}

TestProtocolCheck::Report TestProtocolCheck::check(CheckSettings settings) const
{
    if (settings.taskType.isEmpty())
        settings.taskType = u"task_type.test"_s;
    if (settings.endpoint.isEmpty())
        settings.endpoint = defaultPipeName();
    Report report;
    MCsProtocolCheck protocolCheck(
        settings, [&report](const QString &line) { report.lines.append(line); },
        [&report](const QString &line) { report.complaints.append(line); });
    report.status = protocolCheck.run();
    return report;
}

TestProtocolCheck::Report TestProtocolCheck::checkThroughProxy(const Defect &defect) const
{
    SpoilingProxy proxy(proxyEndpoint(), defaultPipeName());
    if (defect.swallows)
        proxy.swallow(defect.swallows);
    if (defect.spoil)
        proxy.spoil(defect.spoil);
    if (!proxy.listen())
        return {};
    CheckSettings settings;
    settings.endpoint = proxyEndpoint();
    settings.answerMs = 4000; // some wait for what never comes
    settings.typeFreeMs = 300;
    return check(settings);
}

QStringList TestProtocolCheck::things()
{
    const QJsonObject tasks = m_observer.call(u"task.listByType"_s, QJsonObject{{u"type"_s, u"task_type.all"_s}});
    const QJsonObject groups = m_observer.call(u"group.listByTaskType"_s, QJsonObject{{u"taskType"_s, QString()}});
    QStringList ids;
    for (const QJsonArray &records :
         {tasks["data"_L1]["tasks"_L1].toArray(), groups["data"_L1]["groups"_L1].toArray()}) {
        for (const QJsonValue &record : records)
            ids.append(record["id"_L1].toString());
    }
    return ids;
}

void TestProtocolCheck::everyRuleHoldsForTheStandIn_data()
{
    QTest::addColumn<QString>("taskType");
    QTest::newRow("a type") << u"task_type.screen_record"_s;
    QTest::newRow("all types") << u"task_type.all"_s;
}

void TestProtocolCheck::everyRuleHoldsForTheStandIn()
{
    QFETCH(const QString, taskType);
    const QStringList before = things();
    QVERIFY(before.size() > 6);
    CheckSettings settings;
    settings.taskType = taskType;
    const Report report = check(settings);
    QCOMPARE(beginningWith(u"differs"_s, report.lines), QStringList());
    QCOMPARE(beginningWith(u"not tried"_s, report.lines), QStringList());
    QCOMPARE(report.lines.last(), u"%1 of %1 rules hold, 0 differ, 0 were not tried"_s.arg(allRules().size()));
    QCOMPARE(report.complaints, QStringList());
    QCOMPARE(report.status, AllHold);
    QCOMPARE(things(), before);
}

void TestProtocolCheck::aDefectIsReportedByItsRuleAlone_data()
{
    QTest::addColumn<int>("index");
    const QList<Defect> all = defects();
    for (int index = 0; index < all.size(); ++index)
        QTest::newRow(qPrintable(all.at(index).rule)) << index;
}

void TestProtocolCheck::aDefectIsReportedByItsRuleAlone()
{
    QFETCH(const int, index);
    const Defect defect = defects().at(index);
    const QStringList before = things();
    const Report report = checkThroughProxy(defect);
    const QStringList differing = beginningWith(u"differs: "_s, report.lines);
    QVERIFY2(differing.size() == 1, qPrintable(report.lines.join(u'\n')));
    QVERIFY2(differing.first().startsWith(u"differs: %1: expected "_s.arg(defect.rule)), qPrintable(differing.first()));
    QVERIFY2(differing.first().contains(u"; came "_s), qPrintable(differing.first()));
    QVERIFY(report.lines.last().contains(u", 1 differ, "_s));
    QCOMPARE(report.complaints, QStringList());
    QCOMPARE(report.status, NotAllHold);
    // A client that was not registered tries nothing; every other defect leaves the other rules to be tried.
    QCOMPARE(beginningWith(u"not tried: "_s, report.lines).isEmpty(), defect.rule != "client.register"_L1);
    QCOMPARE(things(), before);
}

void TestProtocolCheck::everyRuleHasADefect()
{
    QSet<QString> rules;
    const QList<Defect> all = defects();
    for (const Defect &defect : all)
        rules.insert(defect.rule);
    QCOMPARE(rules, namesOf(allRules()));
    QCOMPARE(rules.size(), allRules().size());
}

void TestProtocolCheck::everyCommandHasARule()
{
    QSet<QString> commands;
    const QList<Rule> rules = allRules();
    for (const Rule &rule : rules) {
        if (!rule.command.isEmpty())
            commands.insert(rule.command);
    }
    QCOMPARE(commands.size(), 25);
}

void TestProtocolCheck::theDocumentListsTheRules()
{
    QFile document(QStringLiteral(PROTOCOL_DOCUMENT));
    QVERIFY(document.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(document.readAll());
    const QString section = text.section(u"\n## Checking a daemon\n"_s, 1).section(u"\n## "_s, 0, 0);
    QStringList listed;
    const QStringList lines = section.split(u'\n');
    for (const QString &line : lines) {
        if (line.startsWith(u"| `"_s))
            listed.append(line);
    }
    QStringList expected;
    const QList<Rule> rules = allRules();
    for (const Rule &rule : rules)
        expected.append(u"| `%1` | %2 |"_s.arg(rule.name, rule.text));
    QCOMPARE(listed, expected);
}

void TestProtocolCheck::aTypeThatIsTakenIsToldClearly()
{
    WireClient other;
    QVERIFY(other.connectToDaemon());
    QCOMPARE(other.registerAs(u"task_type.audio_record"_s), QString());
    CheckSettings settings;
    settings.taskType = u"task_type.audio_record"_s;
    const Report report = check(settings);
    QCOMPARE(report.status, NotChecked);
    QCOMPARE(report.lines, QStringList());
    QCOMPARE(report.complaints.size(), 1);
    QVERIFY2(report.complaints.first().contains(u"task_type.audio_record is taken"_s),
             qPrintable(report.complaints.first()));
}

void TestProtocolCheck::whatCannotBeRemovedIsTold()
{
    Defect defect = ignores(u"removal"_s, u"task.delete"_s);
    const QStringList before = things();
    const Report report = checkThroughProxy(defect);
    QVERIFY(things().size() > before.size());
    QCOMPARE(beginningWith(u"differs: "_s, report.lines), QStringList());
    QCOMPARE(report.status, NotAllHold);
    QVERIFY(!report.complaints.isEmpty());
    QVERIFY2(report.complaints.first().startsWith(u"could not be removed: "_s), qPrintable(report.complaints.first()));
}

void TestProtocolCheck::anInterruptedCheckRemovesWhatItMade()
{
    const QStringList before = things();
    bool interrupted = false;
    Defect defect =
        changes(u"task.moveToGroup"_s, u"task.moveToGroup"_s, [&interrupted](QJsonObject &) { interrupted = true; });
    SpoilingProxy proxy(proxyEndpoint(), defaultPipeName());
    proxy.spoil(defect.spoil);
    QVERIFY(proxy.listen());
    CheckSettings settings;
    settings.endpoint = proxyEndpoint();
    settings.interrupted = [&interrupted] { return interrupted; };
    const Report report = check(settings);
    QVERIFY(interrupted);
    QCOMPARE(report.status, Interrupted);
    QVERIFY(report.lines.contains(u"not tried: task.moveToGroup.ungrouped: interrupted"_s));
    QCOMPARE(report.complaints, QStringList());
    QCOMPARE(things(), before);
}

ORVEL_TEST_MAIN(QCoreApplication, TestProtocolCheck)
#include "tst_protocolcheck.moc"
