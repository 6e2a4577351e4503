#include "logcapture.h"
#include "modaldriver.h"
#include "platform.h"
#include "programparameters.h"
#include "startcommand.h"
#include "startup.h"
#include "testmain.h"

#include <QApplication>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// The host's file of program parameters, which is read before the window stands.
class TestParameterFile : public QObject {
    Q_OBJECT

private slots:
    void withoutAFileTheTextIsEmpty_data();
    void withoutAFileTheTextIsEmpty();
    void theFileIsReadAsText_data();
    void theFileIsReadAsText();
    void aFileThatCannotBeUsedIsReported_data();
    void aFileThatCannotBeUsedIsReported();
    void aFileOfAHundredMegabytesIsRead();

private:
    QTemporaryDir m_directory;
};

void TestParameterFile::withoutAFileTheTextIsEmpty_data()
{
    QTest::addColumn<QStringList>("option");
    QTest::newRow("left out") << QStringList();
    QTest::newRow("empty") << QStringList{u"--program-parameters-file"_s, QString()};
    QTest::newRow("blank") << QStringList{u"--program-parameters-file"_s, u" \t"_s};
}

void TestParameterFile::withoutAFileTheTextIsEmpty()
{
    QFETCH(QStringList, option);
    ModalDriver driver;
    const LogCapture log;
    const auto values = readCommandLine(completeCommandLine() + option);
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(values);
    QCOMPARE(values->programParametersJson, QString());
    QCOMPARE(log.lines(), startLines(u"task_type.test"_s));
}

void TestParameterFile::theFileIsReadAsText_data()
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

void TestParameterFile::theFileIsReadAsText()
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

void TestParameterFile::aFileThatCannotBeUsedIsReported_data()
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

void TestParameterFile::aFileThatCannotBeUsedIsReported()
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

void TestParameterFile::aFileOfAHundredMegabytesIsRead()
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

ORVEL_TEST_MAIN(QApplication, TestParameterFile)
#include "tst_parameterfile.moc"
