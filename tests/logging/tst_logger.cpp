#include "logreading.h"
#include "mcslogger.h"
#include "platform.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

class LoggerTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void thereIsOneLogger();
    void entriesBelowTheLevelAreDropped_data();
    void entriesBelowTheLevelAreDropped();
    void debugEntriesNeedTheDebugLevel();
    void levelOutsideTheRangeHasAnEmptyWord_data();
    void levelOutsideTheRangeHasAnEmptyWord();
    void withoutPathEntriesReachOnlyTheDebugOutput();
    void failingFileLeavesTheDebugOutputIntact();
    void fileIsClosedAfterEachEntry();
    void fileRotatesOneByteBeyondFiveMebibytes_data();
    void fileRotatesOneByteBeyondFiveMebibytes();
    void entriesOfSeveralThreadsNeverInterleave();
    void defaultPathIsInTheApplicationsDataDirectory();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path;
};

void LoggerTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_path = m_directory->filePath(u"gui_logs.log"_s);
    MCsLogger::instance().setLogFilePath(m_path);
}

void LoggerTest::cleanup()
{
    MCsLogger::instance().setLogFilePath({});
    m_directory.reset();
}

void LoggerTest::thereIsOneLogger()
{
    QCOMPARE(&MCsLogger::instance(), &MCsLogger::instance());
}

void LoggerTest::entriesBelowTheLevelAreDropped_data()
{
    QTest::addColumn<int>("minLevel");
    QTest::addColumn<QStringList>("expected");

    const QStringList all{u"DEBUG d"_s, u"INFO i"_s, u"WARN w"_s, u"ERROR e"_s};
    QTest::newRow("below Debug") << -5 << all;
    QTest::newRow("Debug") << 0 << all;
    QTest::newRow("Info") << 1 << all.mid(1);
    QTest::newRow("Warn") << 2 << all.mid(2);
    QTest::newRow("Error") << 3 << all.mid(3);
    QTest::newRow("above Error") << 4 << QStringList();
}

void LoggerTest::entriesBelowTheLevelAreDropped()
{
    QFETCH(int, minLevel);
    QFETCH(QStringList, expected);
    const LogCapture capture(minLevel);
    MCsLogger &logger = MCsLogger::instance();
    logger.debug(u"Main"_s, u"d"_s);
    logger.info(u"Main"_s, u"i"_s);
    logger.warn(u"Main"_s, u"w"_s);
    logger.error(u"Main"_s, u"e"_s);

    QCOMPARE(capture.lines(), expected);
    // All went to the debug output, whatever their level.
    QCOMPARE(capture.rawMessages().filter(u"debug: "_s).size(), expected.size());
    const QStringList inFile = fileLines(m_path);
    QCOMPARE(inFile.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i)
        QCOMPARE(inFile.at(i).last(1), expected.at(i).last(1));
}

void LoggerTest::debugEntriesNeedTheDebugLevel()
{
    {
        const LogCapture capture(1);
        MCsLogger::instance().debug(u"Main"_s, u"unseen"_s);
        QCOMPARE(capture.rawMessages(), QStringList());
        QVERIFY(!QFile::exists(m_path));
    }
    const LogCapture capture(0);
    MCsLogger::instance().debug(u"Main"_s, u"seen"_s);
    QCOMPARE(capture.lines(), QStringList{u"DEBUG seen"_s});
    QCOMPARE(fileLines(m_path).size(), 1);
}

void LoggerTest::levelOutsideTheRangeHasAnEmptyWord_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QString>("word");

    QTest::newRow("-1") << -1 << u""_s;
    QTest::newRow("0") << 0 << u"DEBUG"_s;
    QTest::newRow("1") << 1 << u"INFO"_s;
    QTest::newRow("2") << 2 << u"WARN"_s;
    QTest::newRow("3") << 3 << u"ERROR"_s;
    QTest::newRow("4") << 4 << u""_s;
}

void LoggerTest::levelOutsideTheRangeHasAnEmptyWord()
{
    QFETCH(int, level);
    QFETCH(QString, word);
    const LogCapture capture(-1);
    MCsLogger::instance().log(level, u"Main"_s, u"x"_s);

    QVERIFY(debugText(capture).startsWith(u"[{\"level\":\"%1\"},{\"timestamp\":"_s.arg(word)));
}

void LoggerTest::withoutPathEntriesReachOnlyTheDebugOutput()
{
    MCsLogger::instance().setLogFilePath({});
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"x"_s);

    QCOMPARE(capture.rawMessages().size(), 1);
    QCOMPARE(capture.lines(), QStringList{u"INFO x"_s});
    QVERIFY(QDir(m_directory->path()).isEmpty());
}

void LoggerTest::failingFileLeavesTheDebugOutputIntact()
{
    MCsLogger::instance().setLogFilePath(m_directory->path());
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"x"_s);

    QCOMPARE(capture.rawMessages().size(), 2);
    QVERIFY(capture.rawMessages().first().startsWith(u"warning: Failed to open log file:"_s));
    QCOMPARE(capture.lines(), QStringList{u"INFO x"_s});
}

void LoggerTest::fileIsClosedAfterEachEntry()
{
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"first"_s);
    QVERIFY(QFile::rename(m_path, m_path + u".moved"_s));
    MCsLogger::instance().info(u"Main"_s, u"second"_s);

    QCOMPARE(fileLines(m_path + u".moved"_s).size(), 1);
    QCOMPARE(fileLines(m_path).size(), 1);
}

void LoggerTest::fileRotatesOneByteBeyondFiveMebibytes_data()
{
    QTest::addColumn<int>("excess");

    QTest::newRow("exactly the limit") << 0;
    QTest::newRow("one byte beyond") << 1;
}

void LoggerTest::fileRotatesOneByteBeyondFiveMebibytes()
{
    QFETCH(int, excess);
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"x"_s);
    const qint64 entrySize = QFileInfo(m_path).size();
    const qint64 counted = entrySize - lineEnd.size() + 1; // the end of a line counts as one byte
    QVERIFY(QFile::resize(m_path, 5242880 - counted + excess));

    MCsLogger::instance().info(u"Main"_s, u"x"_s);

    QCOMPARE(QFileInfo(m_path).size(), excess == 0 ? 5242880 - counted + entrySize : entrySize);
    QCOMPARE(QFile::exists(m_path + u".1"_s), excess != 0);
}

void LoggerTest::entriesOfSeveralThreadsNeverInterleave()
{
    constexpr int threadCount = 4;
    constexpr int entriesPerThread = 400;
    constexpr qsizetype padding = 4000; // enough for one rotation, and not for two
    const LogCapture capture;

    std::vector<std::unique_ptr<QThread>> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back(QThread::create([number] {
            for (int i = 0; i < entriesPerThread; ++i)
                MCsLogger::instance().info(u"Main"_s, u"%1-%2 "_s.arg(number).arg(i) +
                                                          QString(padding, QChar(u'p' + number)) + u'!');
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QVERIFY(thread->wait(60000));

    static const QRegularExpression form(uR"(\A\[[-:T\d]{19}\] : (\d-\d+ ([p-s])\2{3999}!)\z)"_s);
    QVERIFY(QFile::exists(m_path + u".1"_s));
    const QStringList lines = fileLines(m_path + u".1"_s) + fileLines(m_path);
    QStringList inFile;
    for (const QString &line : lines) {
        const QRegularExpressionMatch match = form.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line.left(60)));
        inFile.append(match.captured(1));
    }
    QStringList inDebugOutput;
    const QList<LogCapture::Entry> entries = capture.entries();
    for (const LogCapture::Entry &entry : entries)
        inDebugOutput.append(entry.message);

    QCOMPARE(inFile.size(), threadCount * entriesPerThread);
    QCOMPARE(QSet<QString>(inFile.cbegin(), inFile.cend()).size(), inFile.size());
    // Whole entries are serialised, so both outputs have them in the same order.
    QVERIFY(inFile == inDebugOutput);
    QCOMPARE(capture.rawMessages().size(), inFile.size());
}

void LoggerTest::defaultPathIsInTheApplicationsDataDirectory()
{
    QCoreApplication::setApplicationName(u"Some Manager"_s);
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY(!QFile::exists(directory));

    const QString path = MCsLogger::defaultLogFilePath();
    QCOMPARE(path, directory + u"/gui_logs.log"_s);
    QCOMPARE(QFileInfo(path).dir().dirName(), u"Some Manager"_s);
    QVERIFY(QFileInfo(directory).isDir());
    QVERIFY(!QFile::exists(path));
    QCOMPARE(MCsLogger::defaultLogFilePath(), path);
}

ORVEL_TEST_MAIN(QCoreApplication, LoggerTest)

#include "tst_logger.moc"
