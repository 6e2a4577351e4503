#include "logreading.h"
#include "mcslogger.h"
#include "platform.h"
#include "testmain.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

QJsonObject single(const QString &key, const QJsonValue &value)
{
    return {{key, value}};
}

/// The entry as a JSON document prints it.
QString printed(const QString &timestamp, const QString &source, const QString &message, const QJsonObject &context)
{
    QJsonArray entry{single(u"level"_s, u"WARN"_s), single(u"timestamp"_s, timestamp), single(u"source"_s, source),
                     single(u"message"_s, message)};
    if (!context.isEmpty())
        entry.append(single(u"context"_s, context));
    return QString::fromUtf8(QJsonDocument(entry).toJson(QJsonDocument::Compact));
}

QString timestampOf(const QString &debugText)
{
    return QJsonDocument::fromJson(debugText.toUtf8()).array().at(1)[u"timestamp"].toString();
}

} // namespace

/// What an entry looks like in the file and in the debug output.
class LogFormsTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fileLineHoldsTimeAndMessageOnly();
    void timeIsLocalAndWithoutZone();
    void messageIsWrittenAsItStands_data();
    void messageIsWrittenAsItStands();
    void debugOutputIsAnArrayOfSingleKeyObjects_data();
    void debugOutputIsAnArrayOfSingleKeyObjects();
    void everyCharacterIsEscapedAsJsonAsksFor();
    void bothFormsAreRedacted();
    void sourceIsNotRedacted();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path;
};

void LogFormsTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_path = m_directory->filePath(u"gui_logs.log"_s);
    MCsLogger::instance().setLogFilePath(m_path);
}

void LogFormsTest::cleanup()
{
    MCsLogger::instance().setLogFilePath({});
    m_directory.reset();
}

void LogFormsTest::fileLineHoldsTimeAndMessageOnly()
{
    const LogCapture capture;
    MCsLogger::instance().error(u"MainWindow"_s, u"Something happened"_s, {{u"id"_s, 17}});

    static const QRegularExpression form(uR"(\A\[\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\] : Something happened\z)"_s);
    QCOMPARE(fileLines(m_path).size(), 1);
    QVERIFY2(form.match(fileLines(m_path).first()).hasMatch(), qPrintable(fileLines(m_path).first()));
}

void LogFormsTest::timeIsLocalAndWithoutZone()
{
    if (!environmentTellsZone)
        QSKIP("the zone is the system's alone here");
    const bool zoneWasSet = qEnvironmentVariableIsSet("TZ");
    const QByteArray zone = qgetenv("TZ");
    const auto restore = qScopeGuard([&] { zoneWasSet ? qputenv("TZ", zone) : qunsetenv("TZ"); });
    qputenv("TZ", "XYZ-5:30"); // five and a half hours ahead of UTC
    const LogCapture capture;

    // A second is worked out once only, so the entry must be the first of its own.
    const qint64 second = QDateTime::currentSecsSinceEpoch();
    QTRY_VERIFY_WITH_TIMEOUT(QDateTime::currentSecsSinceEpoch() > second, 3000);
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    MCsLogger::instance().info(u"Main"_s, u"x"_s);
    const qint64 after = QDateTime::currentSecsSinceEpoch();

    const QString text = fileLines(m_path).value(0).mid(1, 19);
    const qint64 shown = QDateTime::fromString(text + u'Z', Qt::ISODate).toSecsSinceEpoch() - 19800;
    QVERIFY2(before <= shown && shown <= after, qPrintable(text));
    QVERIFY(debugText(capture).contains(u"{\"timestamp\":\"%1\"}"_s.arg(text)));
}

void LogFormsTest::messageIsWrittenAsItStands_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("empty") << QString();
    QTest::newRow("place markers") << u"%1 and %2, 100%"_s;
    QTest::newRow("level in the text") << u"[WARN] Connection lost, attempting to reconnect..."_s;
    QTest::newRow("line break") << u"first\nsecond\n"_s;
    QTest::newRow("not ASCII") << u"größer \u4EFB\u52A1 \U0001F600"_s;
    QTest::newRow("quotes") << u"say \"so\" \\ 'so'"_s;
    QTest::newRow("long") << u"0123456789"_s.repeated(3000);
}

void LogFormsTest::messageIsWrittenAsItStands()
{
    QFETCH(QString, message);
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, message);

    const QString text = fileLines(m_path).join(u'\n');
    QCOMPARE(text.sliced(QStringLiteral("[2026-03-01T14:07:55]").size()), u" : "_s + message);
}

void LogFormsTest::debugOutputIsAnArrayOfSingleKeyObjects_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QJsonObject>("context");

    QTest::newRow("plain") << u"Main"_s << u"Log level is Info"_s << QJsonObject();
    QTest::newRow("empty texts") << QString() << QString() << QJsonObject();
    QTest::newRow("context") << u"IPC Server"_s << u"x"_s << QJsonObject{{u"b"_s, 1}, {u"a"_s, QJsonArray{true}}};
    QTest::newRow("quotes") << u"a\"b"_s << u"say \"so\""_s << QJsonObject{{u"\"q\""_s, u"\\"_s}};
    QTest::newRow("backslashes") << u"\\"_s << u"\\\\.\\pipe\\x\\"_s << QJsonObject();
    QTest::newRow("control characters") << u"\x01\b"_s << u"a\nb\tc\rd\fe\x1Fz\x7F"_s + QChar(0) << QJsonObject();
    QTest::newRow("not ASCII") << u"größer"_s << u"\u4EFB\u52A1\u2028\u00A0\uFFFF"_s << QJsonObject{{u"ä"_s, u"ö"_s}};
    QTest::newRow("surrogates") << u"\U0001F600"_s << u"a\U0001F600b"_s << QJsonObject();
    QTest::newRow("lone surrogates") << QString(QChar(0xD800)) << u"a"_s << QJsonObject{{u"a"_s + QChar(0xDC00), 1}};
    QTest::newRow("place markers") << u"%1"_s << u"%1%2%3 %4"_s << QJsonObject{{u"%1"_s, u"%2"_s}};
}

void LogFormsTest::debugOutputIsAnArrayOfSingleKeyObjects()
{
    QFETCH(QString, source);
    QFETCH(QString, message);
    QFETCH(QJsonObject, context);
    const LogCapture capture;
    MCsLogger::instance().warn(source, message, context);

    const QString text = debugText(capture);
    QCOMPARE(text, printed(timestampOf(text), source, message, context));
    QVERIFY(QDateTime::fromString(timestampOf(text), Qt::ISODate).isValid());
}

void LogFormsTest::everyCharacterIsEscapedAsJsonAsksFor()
{
    MCsLogger::instance().setLogFilePath({});
    LogCapture capture;
    const auto check = [&capture](char16_t first, char16_t last) {
        for (char32_t unit = first; unit <= last; ++unit) {
            const QString message(1, QChar(char16_t(unit)));
            capture.clear();
            MCsLogger::instance().warn(u"Main"_s, message);
            const QString text = debugText(capture);
            const QString expected = QChar::isSurrogate(unit) ? QString(QChar::ReplacementCharacter) : message;
            QCOMPARE(text, printed(timestampOf(text), u"Main"_s, expected, {}));
        }
    };
    check(0, 0x180);
    check(0xD7F0, 0xE010); // around the surrogates
    check(0xFFF0, 0xFFFF);
}

void LogFormsTest::bothFormsAreRedacted()
{
    const LogCapture capture;
    MCsLogger::instance().info(u"Main"_s, u"password: abc, next"_s,
                               {{u"Author"_s, 1}, {u"note"_s, u"pwd=x"_s}, {u"list"_s, QJsonArray{u"password=abc"_s}}});

    QVERIFY(fileLines(m_path).value(0).endsWith(u"] : password=***REDACTED***, next"_s));
    QVERIFY2(debugText(capture).endsWith(u"{\"message\":\"password=***REDACTED***, next\"},"
                                         "{\"context\":{\"Author\":\"***REDACTED***\",\"list\":[\"password=abc\"],"
                                         "\"note\":\"pwd=***REDACTED***\"}}]"_s),
             qPrintable(debugText(capture)));
}

void LogFormsTest::sourceIsNotRedacted()
{
    const LogCapture capture;
    MCsLogger::instance().info(u"token=abc"_s, u"x"_s);

    QVERIFY(debugText(capture).contains(u"{\"source\":\"token=abc\"}"_s));
}

ORVEL_TEST_MAIN(QCoreApplication, LogFormsTest)

#include "tst_logforms.moc"
