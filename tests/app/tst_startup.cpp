#include "logcapture.h"
#include "mcslogger.h"
#include "modaldriver.h"
#include "platform.h"
#include "programparameters.h"
#include "resources.h"
#include "startup.h"
#include "testmain.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QTemporaryDir>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// A command line with the four required values; an empty value stands for an option that is left out.
QStringList commandLine(const QString &taskType, const QString &language, const QString &name, const QString &path)
{
    QStringList arguments{u"manager"_s};
    const auto add = [&arguments](const QString &option, const QString &value) {
        if (!value.isEmpty())
            arguments << option << value;
    };
    add(u"--task-type"_s, taskType);
    add(u"--language"_s, language);
    add(u"--program-name"_s, name);
    add(u"--program-path"_s, path);
    return arguments;
}

QStringList completeCommandLine()
{
    return commandLine(u"task_type.test"_s, u"en"_s, u"Foo"_s, u"/no/such/program"_s);
}

/// The line that a value adds to what main logs.
QStringList startLines(const QString &taskType, const QString &parametersFile = {})
{
    return {u"INFO Starting SchedulerManager..."_s, u"INFO Task Type: "_s + taskType, u"INFO Program Name: Foo"_s,
            u"INFO Program Path: /no/such/program"_s, u"INFO Program Parameter JSON Path: "_s + parametersFile};
}

} // namespace

/// What main does with its command line before the window stands.
class TestStartup : public QObject {
    Q_OBJECT

private slots:
    void missingValuesAreNamedInOrder_data();
    void missingValuesAreNamedInOrder();
    void valuesAreTrimmed();
    void aTaskTypeMustBeAllowed_data();
    void aTaskTypeMustBeAllowed();
    void missingComesBeforeABadTaskType();
    void theParameterFileIsReadAsText_data();
    void theParameterFileIsReadAsText();
    void aParameterFileThatCannotBeUsedIsReported_data();
    void aParameterFileThatCannotBeUsedIsReported();
    void aParameterFileOfAHundredMegabytesIsRead();
    void aLaterOptionBeatsAnEarlierOne();
    void theApplicationIsIdentified();
    void debugTextBesideTheExecutableTurnsDebugEntriesOn();

private:
    QTemporaryDir m_directory;
};

void TestStartup::missingValuesAreNamedInOrder_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("missing");
    const QString type = u"task_type.test"_s;
    const QString value = u"x"_s;
    QTest::newRow("all") << commandLine({}, {}, {}, {}) << u"task type, language, program name, program path"_s;
    QTest::newRow("task type") << commandLine({}, value, value, value) << u"task type"_s;
    QTest::newRow("language of two blanks") << commandLine(type, u"  "_s, value, value) << u"language"_s;
    QTest::newRow("name of a tab") << commandLine(type, value, u"\t"_s, value) << u"program name"_s;
    QTest::newRow("path") << commandLine(type, value, value, {}) << u"program path"_s;
    QTest::newRow("language and path") << commandLine(type, {}, value, u" \n"_s) << u"language, program path"_s;
    QTest::newRow("an empty value") << commandLine(type, value, value, value) + QStringList{u"--language"_s, QString()}
                                    << u"language"_s;
}

void TestStartup::missingValuesAreNamedInOrder()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, missing);
    const LogCapture log;
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Error"_s, u"Missing required arguments: "_s + missing, QMessageBox::Ok,
                     QMessageBox::Ok);
    QVERIFY(!readCommandLine(arguments));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(log.lines(), QStringList());
}

void TestStartup::valuesAreTrimmed()
{
    const LogCapture log;
    const auto values =
        readCommandLine(commandLine(u" task_type.test\t"_s, u" xx "_s, u"  Foo %1 "_s, u"\n/no/such/program "_s));
    QVERIFY(values);
    QCOMPARE(values->taskType, u"task_type.test"_s);
    QCOMPARE(values->language, u"xx"_s);
    QCOMPARE(values->programName, u"Foo %1"_s);
    QCOMPARE(values->programPath, u"/no/such/program"_s);
    QCOMPARE(values->programParametersJson, QString());
    QCOMPARE(log.lines(u"Main"_s).at(2), u"INFO Program Name: Foo %1"_s);
}

void TestStartup::aTaskTypeMustBeAllowed_data()
{
    QTest::addColumn<bool>("allowed");
    for (const char *type : {"task_type.audio_record", "task_type.screen_record", "task_type.zentaDesk",
                             "task_type.pdf_convert", "task_type.test", "task_type.all"})
        QTest::newRow(type) << true;
    for (const char *type : {"TASK_TYPE.TEST", "task_type.Test", "task_type.zentadesk", "test", "task_type.unknown"})
        QTest::newRow(type) << false;
}

void TestStartup::aTaskTypeMustBeAllowed()
{
    QFETCH(bool, allowed);
    const QString type = QString::fromLatin1(QTest::currentDataTag());
    const LogCapture log;
    ModalDriver driver;
    if (!allowed)
        driver.expectBox(QMessageBox::Warning, u"Error"_s, u"task type error!"_s, QMessageBox::Ok, QMessageBox::Ok);
    const auto values = readCommandLine(commandLine(type, u"en"_s, u"Foo"_s, u"/no/such/program"_s));
    QCOMPARE(values.has_value(), allowed);
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(log.lines(u"Main"_s), startLines(type)); // before the check, and nothing about its failure
}

void TestStartup::missingComesBeforeABadTaskType()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Error"_s, u"Missing required arguments: language"_s, QMessageBox::Ok,
                     QMessageBox::Ok);
    QVERIFY(!readCommandLine(commandLine(u"nonsense"_s, {}, u"Foo"_s, u"/x"_s)));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestStartup::theParameterFileIsReadAsText_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("json") << QByteArray(R"({"a": 1})") << uR"({"a": 1})"_s;
    QTest::newRow("malformed, not trimmed") << QByteArray("  {]\n ") << u"  {]\n "_s;
    QTest::newRow("utf-8") << QByteArray("{\"é\":\"会\"}") << u"{\"é\":\"会\"}"_s;
    QTest::newRow("line ends of text mode") << QByteArray("{\r\n}") << u"{\n}"_s;
    QTest::newRow("not utf-8") << QByteArray("{\"\xE9\": 1}") << u"{\"\uFFFD\": 1}"_s;
    QTest::newRow("with a byte order mark") << QByteArray("\xEF\xBB\xBF{}") << u"{}"_s;
    QTest::newRow("zero bytes") << QByteArray("{\0}", 3) << u"{\0}"_s;
}

void TestStartup::theParameterFileIsReadAsText()
{
    QFETCH(QByteArray, content);
    const QString path = m_directory.filePath(u"parameters %1.json"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    const LogCapture log;
    const auto values =
        readCommandLine(completeCommandLine() << u"--program-parameters-file"_s << u" "_s + path + u" "_s);
    QVERIFY(values);
    QTEST(values->programParametersJson, "text");
    QCOMPARE(log.lines(u"Main"_s), startLines(u"task_type.test"_s, path));
}

void TestStartup::aParameterFileThatCannotBeUsedIsReported_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    const auto fileWith = [this](const QString &name, const QByteArray &content) {
        QFile file(m_directory.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        return file.fileName();
    };
    const QString empty = u"Program parameter JSON file is empty!"_s;
    QTest::newRow("missing") << m_directory.filePath(u"missing"_s) << u"Program parameter JSON file not found!"_s;
    QTest::newRow("a directory") << m_directory.path() << u"Failed to open program parameter JSON file!"_s;
    QTest::newRow("empty") << fileWith(u"empty"_s, {}) << empty;
    QTest::newRow("blanks and line ends") << fileWith(u"blanks"_s, " \r\n\t\n") << empty;
    if (const QString pipe = m_directory.filePath(u"pipe"_s); makePipeFile(pipe))
        QTest::newRow("a pipe that nobody writes to") << pipe << u"Failed to open program parameter JSON file!"_s;
    if (hasKernelFiles)
        QTest::newRow("a device without an end") << u"/dev/zero"_s << u"Failed to open program parameter JSON file!"_s;
    const QString link = m_directory.filePath(u"link"_s);
    if (linksAreFollowed && QFile::link(m_directory.filePath(u"missing"_s), link))
        QTest::newRow("a link that leads nowhere") << link << u"Failed to open program parameter JSON file!"_s;
}

void TestStartup::aParameterFileThatCannotBeUsedIsReported()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Error"_s, text, QMessageBox::Ok, QMessageBox::Ok);
    const LogCapture log;
    QVERIFY(!readCommandLine(completeCommandLine() << u"--program-parameters-file"_s << path));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(log.lines(), startLines(u"task_type.test"_s, path));
}

void TestStartup::aParameterFileOfAHundredMegabytesIsRead()
{
    constexpr qsizetype size = 100'000'000;
    const QByteArray content = R"({"padding": ")" + QByteArray(size, 'x') + R"(", "frameRate": {"defaultValue": 25}})";
    QFile file(m_directory.filePath(u"large.json"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
    file.close();
    const auto values = readCommandLine(completeCommandLine() << u"--program-parameters-file"_s << file.fileName());
    QVERIFY(file.remove());
    QVERIFY(values);
    QCOMPARE(values->programParametersJson.size(), content.size());
    const QJsonObject parameters = parseProgramParameters(values->programParametersJson);
    QCOMPARE(parameters["frameRate"_L1]["defaultValue"_L1].toInt(), 25);
}

void TestStartup::aLaterOptionBeatsAnEarlierOne()
{
    const auto values = readCommandLine(completeCommandLine()
                                        << u"--language"_s << u"de"_s << u"--program-parameters-file"_s << QString());
    QVERIFY(values);
    QCOMPARE(values->language, u"de"_s);
    QCOMPARE(values->programParametersJson, QString());
}

void TestStartup::theApplicationIsIdentified()
{
    registerResources();
    identifyApplication();
    QCOMPARE(QCoreApplication::applicationName(), u"Orvel Task Scheduler"_s);
    QCOMPARE(QCoreApplication::applicationVersion(), u"1.0.1"_s);
    QCOMPARE(QCoreApplication::organizationName(), QString());
    QCOMPARE(QGuiApplication::desktopFileName(), u"com.tamrix.OrvelSchedulerManager"_s);
    QCOMPARE(QGuiApplication::windowIcon().pixmap(64).toImage(),
             QIcon(u":/images/Orvel_scheduler_logo.png"_s).pixmap(64).toImage());
    QVERIFY(!QGuiApplication::windowIcon().pixmap(64).isNull());
}

void TestStartup::debugTextBesideTheExecutableTurnsDebugEntriesOn()
{
    const QString mark = QCoreApplication::applicationDirPath() + u"/debug.txt"_s;
    const auto entries = [] {
        const LogCapture log;
        startLogging();
        MCsLogger::instance().debug(u"Main"_s, u"d"_s);
        MCsLogger::instance().info(u"Main"_s, u"i"_s);
        return log.lines(u"Main"_s);
    };
    QVERIFY(!QFile::exists(mark));
    // Looked at once: a file that comes later changes nothing.
    const auto later = [&mark] {
        const LogCapture log;
        startLogging();
        QFile late(mark);
        const bool made = late.open(QIODevice::WriteOnly);
        MCsLogger::instance().debug(u"Main"_s, u"d"_s);
        return made && late.remove() ? log.lines(u"Main"_s) : QStringList{u"no file"_s};
    };
    QCOMPARE(later(), QStringList());
    QCOMPARE(entries(), QStringList({u"INFO i"_s}));
    QFile file(mark);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QStringList withMark = entries();
    QVERIFY(file.remove());
    QCOMPARE(withMark, QStringList({u"DEBUG d"_s, u"INFO i"_s}));
    QCOMPARE(entries(), QStringList({u"INFO i"_s}));
    QVERIFY(QFile::exists(MCsLogger::defaultLogFilePath()));
    MCsLogger::instance().setLogFilePath(QString());
}

ORVEL_TEST_MAIN(QApplication, TestStartup)
#include "tst_startup.moc"
