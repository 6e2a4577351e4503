#include "logcapture.h"
#include "mcslogger.h"
#include "modaldriver.h"
#include "resources.h"
#include "startcommand.h"
#include "startup.h"
#include "testmain.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QTemporaryDir>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

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
    void anUnknownLanguageOrAMissingProgramStopsNothing_data();
    void anUnknownLanguageOrAMissingProgramStopsNothing();
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

void TestStartup::anUnknownLanguageOrAMissingProgramStopsNothing_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("path");
    QTest::newRow("unknown language") << u"klingon"_s << QCoreApplication::applicationFilePath();
    QTest::newRow("program that is not there") << u"en"_s << m_directory.filePath(u"missing"_s);
    QTest::newRow("program that is a directory") << u"en"_s << m_directory.path();
}

void TestStartup::anUnknownLanguageOrAMissingProgramStopsNothing()
{
    QFETCH(QString, language);
    QFETCH(QString, path);
    ModalDriver driver;
    const auto values = readCommandLine(commandLine(u"task_type.test"_s, language, u"Foo"_s, path));
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(values);
    QCOMPARE(values->language, language);
    QCOMPARE(values->programPath, path);
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
