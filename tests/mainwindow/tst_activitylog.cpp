#include "logfixture.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QApplication>
#include <QScrollBar>
#include <QTextBlock>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// The pieces of one line as shown, each with its colour: "#rrggbb text".
QStringList pieces(const QTextBlock &line)
{
    QStringList result;
    for (auto it = line.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        const QString color =
            format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color().name() : u"no colour"_s;
        result.append(color + u' ' + it.fragment().text());
    }
    return result;
}

QTextBlock lastLine(const LogWindow &fixture)
{
    return fixture.view->document()->lastBlock();
}

} // namespace

/// The entries in the view: which, in which order, and as what.
class TestActivityLog : public QObject {
    Q_OBJECT

private slots:
    void aScrollBarStandsWhereItIsNeeded();
    void theNewestHundredAreAskedForByType_data();
    void theNewestHundredAreAskedForByType();
    void ofAHundredAndOneEntriesTheOldestIsNotShown();
    void ofADaemonThatIgnoresTheLimitTheNewestHundredAreShown();
    void theOldestStandsAtTheTop();
    void theNewestIsInSight();
    void twoRefreshesInARowShowTheSameLines();
    void aRefreshShowsWhatTheDaemonHasNow();
    void eachKindHasItsSentenceAndColour_data();
    void eachKindHasItsSentenceAndColour();
    void aLineDoesNotColourTheNext();
    void theTimeIsShownAsTheDaemonSentIt_data();
    void theTimeIsShownAsTheDaemonSentIt();
    void namesAndErrorsStandAsTyped();
    void anEntryWithoutAnythingIsALineOfItsOwn();
};

void TestActivityLog::theNewestHundredAreAskedForByType_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("one type") << u"task_type.screen_record"_s;
    QTest::newRow("all types") << u"task_type.all"_s;
}

void TestActivityLog::theNewestHundredAreAskedForByType()
{
    QFETCH(QString, type);
    LogWindow fixture;
    QVERIFY(fixture.connect(type));
    fixture.refresh();
    QCOMPARE(fixture.daemon.commands(), QStringList({u"audit.list"_s}));
    QCOMPARE(fixture.daemon.requests().first().value("payload"_L1).toObject(),
             QJsonObject({{u"taskType"_s, type}, {u"limit"_s, 100}, {u"ascending"_s, false}}));
}

void TestActivityLog::ofAHundredAndOneEntriesTheOldestIsNotShown()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    for (int i = 1; i <= 100; ++i)
        fixture.happen(u"task.updated"_s, u"entry %1"_s.arg(i));
    fixture.refresh();
    QCOMPARE(fixture.lines().size(), 100);
    QVERIFY(fixture.lines().first().contains(u"'entry 1'"_s));
    fixture.happen(u"task.updated"_s, u"entry 101"_s);
    fixture.refresh();
    QCOMPARE(fixture.lines().size(), 100);
    QVERIFY(fixture.lines().first().contains(u"'entry 2'"_s));
    QVERIFY(fixture.lines().last().contains(u"'entry 101'"_s));
}

void TestActivityLog::ofADaemonThatIgnoresTheLimitTheNewestHundredAreShown()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    for (int i = 1; i <= 250; ++i)
        fixture.happen(u"task.updated"_s, u"entry %1"_s.arg(i));
    fixture.daemon.answer(u"audit.list"_s, {{u"logs"_s, toArray(fixture.entries)}});
    fixture.refresh();
    QCOMPARE(fixture.lines().size(), 100);
    QVERIFY(fixture.lines().first().contains(u"'entry 151'"_s));
    QVERIFY(fixture.lines().last().contains(u"'entry 250'"_s));
}

void TestActivityLog::theOldestStandsAtTheTop()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    for (const QString &name : {u"b"_s, u"a"_s, u"c"_s})
        fixture.happen(u"task.updated"_s, name);
    fixture.refresh();
    QCOMPARE(fixture.lines(),
             QStringList({LogWindow::time + u" Task 'b' updated"_s, LogWindow::time + u" Task 'a' updated"_s,
                          LogWindow::time + u" Task 'c' updated"_s}));
}

void TestActivityLog::theNewestIsInSight()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    for (int i = 1; i <= 100; ++i)
        fixture.happen(u"task.updated"_s, u"entry %1"_s.arg(i));
    for (int refresh = 0; refresh < 2; ++refresh) {
        fixture.refresh();
        QTextCursor end(fixture.view->document());
        end.movePosition(QTextCursor::End);
        QTRY_VERIFY(fixture.view->viewport()->rect().contains(fixture.view->cursorRect(end)));
    }
}

void TestActivityLog::twoRefreshesInARowShowTheSameLines()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task.created"_s, u"One"_s);
    fixture.happen(u"task.created"_s, u"One"_s); // twice the same is two events
    fixture.refresh();
    const QString html = fixture.view->toHtml();
    QCOMPARE(fixture.lines(), QStringList(2, LogWindow::time + u" Task 'One' created"_s));
    fixture.refresh();
    QCOMPARE(fixture.view->toHtml(), html);
    click(fixture.window.get(), "refreshButton"); // which ends with the log
    QCOMPARE(fixture.view->toHtml(), html);
}

void TestActivityLog::aRefreshShowsWhatTheDaemonHasNow()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task.created"_s, u"One"_s);
    fixture.refresh();
    fixture.entries.clear();
    fixture.happen(u"group.created"_s, u"Two"_s);
    fixture.refresh();
    QCOMPARE(fixture.lines(), QStringList({LogWindow::time + u" Group 'Two' created"_s}));
    fixture.entries.clear();
    fixture.refresh();
    QCOMPARE(fixture.view->toPlainText(), QString());
}

void TestActivityLog::eachKindHasItsSentenceAndColour_data()
{
    QTest::addColumn<QJsonObject>("details");
    QTest::addColumn<QString>("piece");
    const QString runId = u"1234567890abcdef1234567890abcdef1234"_s;
    QTest::newRow("task.created") << QJsonObject{{u"scheduleMode"_s, u"EveryDay"_s}}
                                  << u"#27ae60 Task 'X' created (schedule: EveryDay)"_s;
    QTest::newRow("task.deleted") << QJsonObject() << u"#e67e22 Task 'X' deleted"_s;
    QTest::newRow("task.disabled") << QJsonObject() << u"#95a5a6 Task 'X' disabled"_s;
    QTest::newRow("task.enabled") << QJsonObject() << u"#2c3e50 Task 'X' enabled"_s;
    QTest::newRow("task_run.started") << QJsonObject{{u"runId"_s, runId}}
                                      << u"#2c3e50 Task 'X' execution started (run: 12345678)"_s;
    QTest::newRow("task_run") << QJsonObject() << u"#2c3e50 Task 'X' completed successfully (exit: 0)"_s;
    QTest::newRow("task_run.failed") << QJsonObject{{u"error"_s, QString()}} << u"#e74c3c Task 'X' execution failed"_s;
    QTest::newRow("group.created") << QJsonObject() << u"#27ae60 Group 'X' created"_s;
    QTest::newRow("task_run.timeout") << QJsonObject() << u"#e74c3c task_run.timeout on 'X'"_s;
}

void TestActivityLog::eachKindHasItsSentenceAndColour()
{
    QFETCH(QJsonObject, details);
    QFETCH(QString, piece);
    LogWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(QString::fromLatin1(QTest::currentDataTag()), u"X"_s, {{u"detailsJson"_s, details}});
    fixture.refresh();
    const QStringList shown = pieces(lastLine(fixture));
    QCOMPARE(shown.first(), u"#999999 "_s + LogWindow::time);
    QCOMPARE(shown.last(), piece);
}

void TestActivityLog::aLineDoesNotColourTheNext()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task_run.failed"_s, u"X"_s);
    fixture.happen(u"task.updated"_s, u"X"_s);
    fixture.refresh();
    const QStringList shown = pieces(lastLine(fixture));
    QCOMPARE(shown, QStringList({u"#999999 "_s + LogWindow::time, u"no colour  "_s, u"#2c3e50 Task 'X' updated"_s}));
    QCOMPARE(pieces(lastLine(fixture).previous()).last(), u"#e74c3c Task 'X' execution failed"_s);
}

void TestActivityLog::theTimeIsShownAsTheDaemonSentIt_data()
{
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("line");
    QTest::newRow("coordinated") << u"2026-01-02T03:04:05Z"_s << u"2026-01-02 03:04:05 Task 'X' updated"_s;
    QTest::newRow("another zone") << u"2026-01-02T03:04:05+05:30"_s << u"2026-01-02 03:04:05 Task 'X' updated"_s;
    QTest::newRow("no zone") << u"2026-01-02T03:04:05"_s << u"2026-01-02 03:04:05 Task 'X' updated"_s;
    QTest::newRow("no time") << u"yesterday"_s << u"Task 'X' updated"_s;
}

void TestActivityLog::theTimeIsShownAsTheDaemonSentIt()
{
    QFETCH(QString, sent);
    LogWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task.updated"_s, u"X"_s, {{u"createdAt"_s, sent}});
    fixture.refresh();
    QCOMPARE(fixture.lines().size(), 1);
    QTEST(fixture.lines().first().trimmed(), "line");
}

void TestActivityLog::namesAndErrorsStandAsTyped()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    const QString typed = u"<b>100% %1 %2 %3</b> &amp; \"x\" <br>'"_s;
    fixture.happen(u"task_run.failed"_s, typed, {{u"detailsJson"_s, QJsonObject{{u"error"_s, u"<i>%1"_s}}}});
    fixture.happen(u"<u>kind</u>"_s, typed);
    fixture.refresh();
    QCOMPARE(fixture.lines(), QStringList({LogWindow::time + u" Task '"_s + typed + u"' execution failed - <i>%1"_s,
                                           LogWindow::time + u" <u>kind</u> on '"_s + typed + u"'"_s}));
    QCOMPARE(pieces(lastLine(fixture)).size(), 3); // time, blank and one message of one format
}

void TestActivityLog::anEntryWithoutAnythingIsALineOfItsOwn()
{
    LogWindow fixture;
    QVERIFY(fixture.connect());
    fixture.happen(u"task.updated"_s, u"X"_s);
    fixture.entries.prepend(QJsonObject());
    fixture.happen(u"task.updated"_s, u"Y"_s);
    fixture.refresh();
    QCOMPARE(fixture.lines().size(), 3);
    QCOMPARE(fixture.lines().at(1).trimmed(), u"on ''"_s);
}

void TestActivityLog::aScrollBarStandsWhereItIsNeeded()
{
    LogWindow fixture;
    fixture.happen(u"task.created"_s, u"One"_s);
    QVERIFY(fixture.connect());
    const QScrollBar *bar = fixture.view->verticalScrollBar();
    QVERIFY(!bar->isVisible());
    const int wide = fixture.view->viewport()->width();
    for (int count = 0; count < 100; ++count)
        fixture.happen(u"task.created"_s, u"Another"_s);
    fixture.refresh();
    QVERIFY(bar->isVisible());
    QVERIFY(fixture.view->viewport()->width() < wide);
    QCOMPARE(bar->value(), bar->maximum());
    fixture.entries.resize(1);
    fixture.refresh();
    QVERIFY(!bar->isVisible());
    QCOMPARE(fixture.view->viewport()->width(), wide);
}

ORVEL_TEST_MAIN(QApplication, TestActivityLog)
#include "tst_activitylog.moc"
