#include "logcapture.h"
#include "logreading.h"
#include "mcslogger.h"
#include "platform.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

/// What follows the time in a line of the log.
QStringList messagesIn(const QString &path)
{
    QStringList messages;
    for (const QString &line : fileLines(path))
        messages.append(line.section(u"] : "_s, 1));
    return messages;
}

} // namespace

/// A logger whose file gets into trouble goes on: every entry reaches the debug output, and the file again when the
/// trouble is over.
class TestLogSurroundings : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void aFileThatCannotBeMadeCostsTheFileOnly_data();
    void aFileThatCannotBeMadeCostsTheFileOnly();
    void aDirectoryThatMayNotBeWrittenToCostsTheFileOnly();
    void whatHappensToTheFileBetweenTwoEntriesIsGotOver_data();
    void whatHappensToTheFileBetweenTwoEntriesIsGotOver();
    void aDirectoryThatVanishesAndReturnsIsGotOver();
    void aFullDiskCostsTheEntriesThatDoNotFit();
    void aRotatedFileInTheWayCostsTheOldEntries();
    void secretsAreRemovedWhicheverWayTheyComeIn_data();
    void secretsAreRemovedWhicheverWayTheyComeIn();

private:
    [[nodiscard]] QString path(const QString &name) const
    {
        return m_directory->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path;
};

void TestLogSurroundings::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_path = path(u"gui_logs.log"_s);
    MCsLogger::instance().setLogFilePath(m_path);
}

void TestLogSurroundings::cleanup()
{
    MCsLogger::instance().setLogFilePath({});
    m_directory.reset();
}

void TestLogSurroundings::aFileThatCannotBeMadeCostsTheFileOnly_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("its directory is missing") << u"missing/gui_logs.log"_s;
    QTest::newRow("its directory is a file") << u"file/gui_logs.log"_s;
    QTest::newRow("it is a directory") << u"directory"_s;
    if (linksAreFollowed)
        QTest::newRow("it is a link that leads nowhere") << u"link"_s;
    QTest::newRow("its name is too long") << QString(300, u'x');
    if (hasKernelFiles)
        QTest::newRow("nobody may write there") << u"/proc/gui_logs.log"_s;
}

void TestLogSurroundings::aFileThatCannotBeMadeCostsTheFileOnly()
{
    QFETCH(const QString, name);
    QFile file(path(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(QDir().mkpath(path(u"directory"_s)));
    QVERIFY(!linksAreFollowed || QFile::link(path(u"missing/target"_s), path(u"link"_s)));
    const QString logPath = name.startsWith(u'/') ? name : path(name);
    MCsLogger::instance().setLogFilePath(logPath);

    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"one"_s);
    MCsLogger::instance().info(u"Main"_s, u"two"_s);

    QCOMPARE(capture.lines(), (QStringList{u"INFO one"_s, u"INFO two"_s}));
    const QString warning = u"warning: Failed to open log file: \"%1\""_s.arg(logPath);
    QCOMPARE(capture.rawMessages().filter(u"warning: "_s), (QStringList{warning, warning}));
    QCOMPARE(file.size(), 0);
    QVERIFY(QDir(path(u"directory"_s)).isEmpty());
}

void TestLogSurroundings::aDirectoryThatMayNotBeWrittenToCostsTheFileOnly()
{
    if (!modesAreRights)
        QSKIP(modesAreNoRights);
    if (ownUserId() == 0 && !OtherUser::possible())
        QSKIP("root may write everywhere, and cannot be another user here");
    QVERIFY(QFile::setPermissions(m_directory->path(), QFile::ReadOwner | QFile::ExeOwner));
    const auto restore =
        qScopeGuard([this] { QFile::setPermissions(m_directory->path(), QFile::Permissions(0x7700)); });
    const LogCapture capture;
    {
        const OtherUser other; // if this is root, who may write to it all the same
        MCsLogger::instance().info(u"Main"_s, u"x"_s);
    }
    QCOMPARE(capture.lines(), QStringList{u"INFO x"_s});
    QCOMPARE(capture.rawMessages().filter(u"warning: "_s),
             QStringList{u"warning: Failed to open log file: \"%1\""_s.arg(m_path)});
    QVERIFY(!QFile::exists(m_path));
}

void TestLogSurroundings::whatHappensToTheFileBetweenTwoEntriesIsGotOver_data()
{
    using Happening = std::function<bool(const QString &)>;
    QTest::addColumn<Happening>("happening");
    QTest::addColumn<QStringList>("kept");

    QTest::newRow("removed") << Happening([](const QString &log) { return QFile::remove(log); }) << QStringList();
    QTest::newRow("truncated") << Happening([](const QString &log) { return QFile::resize(log, 0); }) << QStringList();
    QTest::newRow("truncated to a whole line")
        << Happening([](const QString &log) { return QFile::resize(log, QFileInfo(log).size() / 2); })
        << QStringList{u"one"_s};
    QTest::newRow("moved away") << Happening([](const QString &log) { return QFile::rename(log, log + u".old"_s); })
                                << QStringList();
    QTest::newRow("replaced") << Happening([](const QString &log) {
        QFile other(log + u".new"_s);
        return other.open(QIODevice::WriteOnly) && other.write("[] : other\n") == 11 && QFile::remove(log) &&
               other.rename(log);
    }) << QStringList{u"other"_s};
    if (!linksAreFollowed)
        return;
    QTest::newRow("replaced by a link") << Happening([](const QString &log) {
        return QFile::rename(log, log + u".old"_s) && QFile::link(log + u".old"_s, log);
    }) << QStringList{u"one"_s, u"two"_s};
}

void TestLogSurroundings::whatHappensToTheFileBetweenTwoEntriesIsGotOver()
{
    QFETCH(const std::function<bool(const QString &)>, happening);
    QFETCH(const QStringList, kept);
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"one"_s);
    MCsLogger::instance().info(u"Main"_s, u"two"_s);
    QVERIFY(happening(m_path));
    MCsLogger::instance().info(u"Main"_s, u"three"_s);

    QCOMPARE(messagesIn(m_path), kept + QStringList{u"three"_s});
    QCOMPARE(capture.lines(), (QStringList{u"INFO one"_s, u"INFO two"_s, u"INFO three"_s}));
    QCOMPARE(capture.rawMessages().filter(u"warning: "_s), QStringList());
}

void TestLogSurroundings::aDirectoryThatVanishesAndReturnsIsGotOver()
{
    const QString directory = path(u"logs"_s);
    QVERIFY(QDir().mkpath(directory));
    const QString log = directory + u"/gui_logs.log"_s;
    MCsLogger::instance().setLogFilePath(log);
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"one"_s);
    QVERIFY(QDir(directory).removeRecursively());
    MCsLogger::instance().info(u"Main"_s, u"two"_s);
    QVERIFY(QDir().mkpath(directory));
    MCsLogger::instance().info(u"Main"_s, u"three"_s);

    QCOMPARE(messagesIn(log), QStringList{u"three"_s});
    QCOMPARE(capture.lines(), (QStringList{u"INFO one"_s, u"INFO two"_s, u"INFO three"_s}));
}

void TestLogSurroundings::aFullDiskCostsTheEntriesThatDoNotFit()
{
    if (!FullDisk::possible())
        QSKIP("no limit of a file's size here");
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"before"_s);
    const qint64 size = QFileInfo(m_path).size();
    {
        const FullDisk full(size);
        MCsLogger::instance().info(u"Main"_s, u"not at all"_s);
    }
    QCOMPARE(messagesIn(m_path), QStringList{u"before"_s});
    {
        const FullDisk full(size + 10);
        MCsLogger::instance().info(u"Main"_s, u"in part"_s);
    }
    MCsLogger::instance().info(u"Main"_s, u"after"_s);
    MCsLogger::instance().info(u"Main"_s, u"at the end"_s);

    const QString warning = u"warning: Failed to write log file: \"%1\""_s.arg(m_path);
    QCOMPARE(capture.rawMessages().filter(u"log file"_s), (QStringList{warning, warning}));
    QCOMPARE(capture.lines(), (QStringList{u"INFO before"_s, u"INFO not at all"_s, u"INFO in part"_s, u"INFO after"_s,
                                           u"INFO at the end"_s}));
    const QStringList lines = fileLines(m_path);
    QVERIFY(lines.first().endsWith(u"] : before"_s));
    QVERIFY(lines.last().endsWith(u"] : at the end"_s));
    QVERIFY(lines.join(u'\n').contains(u"] : after"_s));
}

void TestLogSurroundings::aRotatedFileInTheWayCostsTheOldEntries()
{
    // A directory that is not empty can be neither removed nor replaced, as little as a file that somebody holds open
    // on Windows.
    QVERIFY(QDir().mkpath(m_path + u".1/occupied"_s));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(5242880));
    file.close();

    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"new"_s);
    MCsLogger::instance().info(u"Main"_s, u"newer"_s);

    QCOMPARE(messagesIn(m_path), (QStringList{u"new"_s, u"newer"_s}));
    QCOMPARE(capture.lines(), (QStringList{u"INFO new"_s, u"INFO newer"_s}));
    QCOMPARE(capture.rawMessages().filter(u"warning: "_s).size(), 2);
}

void TestLogSurroundings::secretsAreRemovedWhicheverWayTheyComeIn_data()
{
    using Way = std::function<void(MCsLogger &)>;
    QTest::addColumn<Way>("way");

    QTest::newRow("debug") << Way([](MCsLogger &log) { log.debug(u"s"_s, u"password=hunter2"_s); });
    QTest::newRow("info") << Way([](MCsLogger &log) { log.info(u"s"_s, u"Token: hunter2 and more"_s); });
    QTest::newRow("warn") << Way([](MCsLogger &log) { log.warn(u"s"_s, u"[WARN] API_KEY hunter2"_s); });
    QTest::newRow("error") << Way([](MCsLogger &log) { log.error(u"s"_s, u"Bearer hunter2"_s); });
    QTest::newRow("any level") << Way([](MCsLogger &log) { log.log(17, u"s"_s, u"secret\n=\thunter2"_s); });
    QTest::newRow("far down in a long message")
        << Way([](MCsLogger &log) { log.info(u"s"_s, QString(10000, u'x') + u"\nauth=hunter2\n"_s); });
    QTest::newRow("several") << Way(
        [](MCsLogger &log) { log.info(u"s"_s, u"passwd=hunter2;pwd: hunter2, secret hunter2"_s); });
    QTest::newRow("context, by its key") << Way([](MCsLogger &log) {
        log.info(u"s"_s, u"m"_s, {{u"userToken"_s, u"hunter2"_s}});
    });
    QTest::newRow("context, object under a key") << Way([](MCsLogger &log) {
        log.info(u"s"_s, u"m"_s, {{u"credit_card"_s, QJsonObject{{u"number"_s, u"hunter2"_s}}}});
    });
    QTest::newRow("context, in a text") << Way([](MCsLogger &log) {
        log.info(u"s"_s, u"m"_s, {{u"line"_s, u"Authorization: hunter2"_s}});
    });
    QTest::newRow("context, deep down") << Way([](MCsLogger &log) {
        log.info(u"s"_s, u"m"_s, {{u"a"_s, QJsonObject{{u"b"_s, QJsonObject{{u"pwd"_s, u"hunter2"_s}}}}}});
    });
}

void TestLogSurroundings::secretsAreRemovedWhicheverWayTheyComeIn()
{
    QFETCH(const std::function<void(MCsLogger &)>, way);
    const LogCapture capture;
    way(MCsLogger::instance());

    const QString shown = capture.rawMessages().join(u'\n');
    QVERIFY(shown.contains(u"***REDACTED***"_s));
    QVERIFY2(!shown.contains(u"hunter2"_s), qPrintable(shown));
    const QString written = fileLines(m_path).join(u'\n');
    QVERIFY(!written.isEmpty());
    QVERIFY2(!written.contains(u"hunter2"_s), qPrintable(written));
}

ORVEL_TEST_MAIN(QCoreApplication, TestLogSurroundings)
#include "tst_logsurroundings.moc"
