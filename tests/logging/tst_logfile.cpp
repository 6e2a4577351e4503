#include "logcapture.h"
#include "logfile.h"
#include "platform.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

constexpr qint64 defaultLimit = 5242880;

QByteArray contents(const QString &path, QIODevice::OpenMode how = QIODevice::Text)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | how) ? file.readAll() : QByteArray("no file");
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

} // namespace

class LogFileTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void lineIsAppendedWithItsNewline();
    void linesAreUtf8();
    void limitIsFiveMebibytes();
    void rotationSetsInOneByteBeyondTheLimit_data();
    void rotationSetsInOneByteBeyondTheLimit();
    void sizeIsCountedInBytesNotInCharacters();
    void lineLongerThanTheLimitRotatesOnceAndIsWrittenWhole();
    void onlyOneRotatedGenerationIsKept();
    void limitBelowOneTurnsRotationOff_data();
    void limitBelowOneTurnsRotationOff();
    void failureToOpenIsWarnedOf();
    void failureToWriteIsWarnedOf();
    void rotatedFileThatCannotBeRemovedCostsTheOldEntries();
    void failureToTruncateIsWarnedOf();

private:
    /// A directory in the way of the rotated file: it can be neither removed nor replaced.
    void blockRotation() const;

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path;
    QString m_rotatedPath;
};

void LogFileTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_path = m_directory->filePath(u"gui_logs.log"_s);
    m_rotatedPath = m_path + u".1"_s;
}

void LogFileTest::cleanup()
{
    m_directory.reset();
}

void LogFileTest::blockRotation() const
{
    QVERIFY(QDir().mkpath(m_rotatedPath + u"/occupied"_s));
}

void LogFileTest::lineIsAppendedWithItsNewline()
{
    const LogFile file{m_path};
    file.writeLine(u"one"_s);
    file.writeLine(u"two\nand more"_s);
    file.writeLine(u""_s);

    QCOMPARE(contents(m_path, {}), "one\ntwo\nand more\n\n"_ba.replace("\n", lineEnd));
    QVERIFY(!QFile::exists(m_rotatedPath));
}

void LogFileTest::linesAreUtf8()
{
    LogFile{m_path}.writeLine(u"größer \u4EFB \U0001F600"_s);

    QCOMPARE(contents(m_path).trimmed(), "gr\xC3\xB6\xC3\x9F"
                                         "er \xE4\xBB\xBB \xF0\x9F\x98\x80"_ba);
}

void LogFileTest::limitIsFiveMebibytes()
{
    QCOMPARE(LogFile().maxFileSize, defaultLimit);
}

void LogFileTest::rotationSetsInOneByteBeyondTheLimit_data()
{
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<qint64>("sizeBefore");
    QTest::addColumn<bool>("rotates");

    // The line is "0123456789", which counts 11 bytes, one of them for its end.
    QTest::newRow("default limit, exactly reached") << defaultLimit << defaultLimit - 11 << false;
    QTest::newRow("default limit, one byte beyond") << defaultLimit << defaultLimit - 10 << true;
    QTest::newRow("default limit, full before") << defaultLimit << defaultLimit << true;
    QTest::newRow("small limit, exactly reached") << qint64(100) << qint64(89) << false;
    QTest::newRow("small limit, one byte beyond") << qint64(100) << qint64(90) << true;
    QTest::newRow("far above the limit") << qint64(100) << qint64(1000) << true;
    QTest::newRow("limit of one byte, empty file") << qint64(1) << qint64(0) << true;
}

void LogFileTest::rotationSetsInOneByteBeyondTheLimit()
{
    QFETCH(qint64, limit);
    QFETCH(qint64, sizeBefore);
    QFETCH(bool, rotates);
    const LogCapture capture;
    write(m_path, {});
    QVERIFY(QFile::resize(m_path, sizeBefore));

    LogFile{m_path, limit}.writeLine(u"0123456789"_s);

    QCOMPARE(QFile::exists(m_rotatedPath), rotates);
    const qint64 written = 10 + lineEnd.size();
    QCOMPARE(QFileInfo(m_path).size(), rotates ? written : sizeBefore + written);
    if (rotates)
        QCOMPARE(QFileInfo(m_rotatedPath).size(), sizeBefore);
    QCOMPARE(capture.rawMessages(), QStringList());
}

void LogFileTest::sizeIsCountedInBytesNotInCharacters()
{
    write(m_path, "12345\n");

    LogFile{m_path, 12}.writeLine(u"\u00E9\u00E9b"_s);
    QCOMPARE(contents(m_path).size(), 12);
    QVERIFY(!QFile::exists(m_rotatedPath));

    LogFile{m_path, 18}.writeLine(u"\u00E9\u00E9\u00E9"_s);
    QCOMPARE(contents(m_path).size(), 7);
    QVERIFY(QFile::exists(m_rotatedPath));
}

void LogFileTest::lineLongerThanTheLimitRotatesOnceAndIsWrittenWhole()
{
    write(m_path, "old\n");
    const LogFile file{m_path, 20};
    const QString longLine(1000, u'x');

    file.writeLine(longLine);
    QCOMPARE(contents(m_rotatedPath), "old\n"_ba);
    QCOMPARE(contents(m_path), longLine.toUtf8() + '\n');

    file.writeLine(u"next"_s);
    QCOMPARE(contents(m_rotatedPath), longLine.toUtf8() + '\n');
    QCOMPARE(contents(m_path), "next\n"_ba);
}

void LogFileTest::onlyOneRotatedGenerationIsKept()
{
    const LogFile file{m_path, 10};
    for (int i = 1; i <= 5; ++i)
        file.writeLine(u"entry %1"_s.arg(i));

    QCOMPARE(contents(m_path), "entry 5\n"_ba);
    QCOMPARE(contents(m_rotatedPath), "entry 4\n"_ba);
    QCOMPARE(QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

void LogFileTest::limitBelowOneTurnsRotationOff_data()
{
    QTest::addColumn<qint64>("limit");

    QTest::newRow("0") << qint64(0);
    QTest::newRow("-1") << qint64(-1);
}

void LogFileTest::limitBelowOneTurnsRotationOff()
{
    QFETCH(qint64, limit);
    write(m_path, {});
    QVERIFY(QFile::resize(m_path, defaultLimit));

    LogFile{m_path, limit}.writeLine(u"x"_s);

    QCOMPARE(QFileInfo(m_path).size(), defaultLimit + 1 + lineEnd.size());
    QVERIFY(!QFile::exists(m_rotatedPath));
}

void LogFileTest::failureToOpenIsWarnedOf()
{
    const LogCapture capture;
    const QString inMissingDirectory = m_directory->filePath(u"missing/gui_logs.log"_s);

    LogFile{inMissingDirectory}.writeLine(u"x"_s);
    LogFile{m_directory->path()}.writeLine(u"x"_s);

    const QStringList expected{u"warning: Failed to open log file: "_s + quoted(inMissingDirectory),
                               u"warning: Failed to open log file: "_s + quoted(m_directory->path())};
    QCOMPARE(capture.rawMessages(), expected);
    QVERIFY(!QFile::exists(m_directory->filePath(u"missing"_s)));
}

void LogFileTest::failureToWriteIsWarnedOf()
{
    if (!hasKernelFiles)
        QSKIP("no device that refuses every write");
    const LogCapture capture;
    QVERIFY(QFile::link(u"/dev/full"_s, m_path));

    LogFile{m_path}.writeLine(u"x"_s);

    const QStringList messages = capture.rawMessages().filter(u"log file"_s);
    QCOMPARE(messages, QStringList{u"warning: Failed to write log file: "_s + quoted(m_path)});
}

void LogFileTest::rotatedFileThatCannotBeRemovedCostsTheOldEntries()
{
    const LogCapture capture;
    write(m_path, "old entries\n");
    blockRotation();

    LogFile{m_path, 15}.writeLine(u"new entry"_s);

    const QStringList expected{u"warning: Failed to remove rotated log file: "_s + quoted(m_rotatedPath),
                               u"warning: Failed to rotate log file: "_s + quoted(m_path) + u" -> "_s +
                                   quoted(m_rotatedPath) + u" , fallback to truncate current log file."_s};
    QCOMPARE(capture.rawMessages(), expected);
    QCOMPARE(contents(m_path), "new entry\n"_ba);
}

void LogFileTest::failureToTruncateIsWarnedOf()
{
    const LogCapture capture;
    QVERIFY(QDir().mkpath(m_path + u"/occupied"_s));
    blockRotation();

    LogFile{m_path, 1}.writeLine(u"x"_s);

    const QStringList messages = capture.rawMessages();
    QCOMPARE(messages.size(), 4);
    QCOMPARE(messages.at(2), u"warning: Failed to truncate oversized log file: "_s + quoted(m_path));
    QCOMPARE(messages.at(3), u"warning: Failed to open log file: "_s + quoted(m_path));
}

ORVEL_TEST_MAIN(QCoreApplication, LogFileTest)

#include "tst_logfile.moc"
