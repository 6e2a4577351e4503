#include "hostwindow.h"
#include "managercommand.h"
#include "testmain.h"
#include "widgetaccess.h"
#include "wireprotocol.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLocalSocket>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace TestSupport;

/// Programs that start beside other tests, perhaps under a sanitizer, may take their time.
#define QTRY_VERIFY_PATIENT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 60'000)

/// The example host, with the real manager and with scripts in its place.
class TestExampleHost : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void theManagerShowsWhatTheHostTellsIt();
    void theArgumentsNameTheHost();
    void theHostsLanguageIsMapped_data();
    void theHostsLanguageIsMapped();
    void theManagerIsFound_data();
    void theManagerIsFound();
    void theWindowTellsHowTheManagerEnded_data();
    void theWindowTellsHowTheManagerEnded();
    void oneManagerIsOpenAtATime();
    void theStatusIsHandedOn_data();
    void theStatusIsHandedOn();

private:
    [[nodiscard]] QString path(const QString &name) const
    {
        return m_directory->filePath(name);
    }
    /// Writes a program for the shell; returns its path.
    [[nodiscard]] QString makeScript(const QString &name, const QByteArray &commands) const;
    [[nodiscard]] QString textOf(const QString &name) const;
    /// Runs the host with --open; returns its status.
    static int runHost(const QProcessEnvironment &environment, const QString &program = QStringLiteral(EXAMPLE_HOST));

    std::unique_ptr<QTemporaryDir> m_directory;
};

void TestExampleHost::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
}

void TestExampleHost::cleanup()
{
    qunsetenv("ORVEL_MANAGER");
}

QString TestExampleHost::makeScript(const QString &name, const QByteArray &commands) const
{
    QFile script(path(name));
    if (!script.open(QIODevice::WriteOnly))
        return {};
    script.write("#!/bin/sh\n" + commands + '\n');
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return script.fileName();
}

QString TestExampleHost::textOf(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int TestExampleHost::runHost(const QProcessEnvironment &environment, const QString &program)
{
    QProcess host;
    host.setProcessEnvironment(environment);
    host.setStandardErrorFile(QProcess::nullDevice());
    host.start(program, {u"--open"_s});
    if (!QTest::qWaitFor([&host] { return host.state() == QProcess::NotRunning; }, 60'000))
        return -1;
    return host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
}

void TestExampleHost::theManagerShowsWhatTheHostTellsIt()
{
    QProcess daemon;
    daemon.setStandardErrorFile(QProcess::nullDevice());
    daemon.start(QStringLiteral(ORVEL_DEV_DAEMON), {u"--state"_s, path(u"state.json"_s), u"--tasks=3"_s});
    QTRY_VERIFY_PATIENT([] {
        QLocalSocket probe;
        probe.connectToServer(Scheduler::defaultPipeName());
        return probe.waitForConnected(100);
    }());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ORVEL_MANAGER"_s, QStringLiteral(ORVEL_MANAGER_PROGRAM));
    environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
    environment.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(DRIVER_PLUGINS));
    environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"managerdriver:"_s + path(u"record.json"_s));
    QCOMPARE(runHost(environment), 0);

    const QJsonObject record = QJsonDocument::fromJson(textOf(u"record.json"_s).toUtf8()).object();
    QCOMPARE(record.value("title"_L1).toString(), u"Orvel Task Scheduler - Example Recorder"_s);
    QCOMPARE(record.value("dialogTitle"_L1).toString(), u"Aufgabe erstellen"_s);
    const QJsonArray form = record.value("form"_L1).toArray();
    QVERIFY(form.contains(25));
    QVERIFY(form.contains(u"Recorded by Example Recorder"_s));
    QVERIFY(form.contains(u"MKV"_s));
    daemon.terminate();
    QVERIFY(daemon.waitForFinished());
}

void TestExampleHost::theArgumentsNameTheHost()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ORVEL_MANAGER"_s, makeScript(u"manager"_s, R"(printf '%s\n' "$@" >"$RECORD")"));
    environment.insert(u"RECORD"_s, path(u"record"_s));
    environment.insert(u"LC_ALL"_s, u"ja_JP.UTF-8"_s);
    QCOMPARE(runHost(environment), 0);
    const QStringList arguments = textOf(u"record"_s).split(u'\n', Qt::SkipEmptyParts);
    const QStringList expected{u"--task-type"_s,
                               u"task_type.screen_record"_s,
                               u"--language"_s,
                               u"ja"_s,
                               u"--program-name"_s,
                               u"Example Recorder"_s,
                               u"--program-path"_s,
                               QStringLiteral(EXAMPLE_HOST),
                               u"--program-parameters-file"_s};
    QCOMPARE(arguments.first(arguments.size() - 1), expected);
    QFile parameters(arguments.last());
    QVERIFY(parameters.open(QIODevice::ReadOnly));
    QVERIFY(QJsonDocument::fromJson(parameters.readAll()).isObject());
}

void TestExampleHost::theHostsLanguageIsMapped_data()
{
    QTest::addColumn<QString>("shortcut");
    const QList<std::pair<const char *, QString>> rows{
        {"ar_EG", u"ar"_s}, {"de_AT", u"de"_s}, {"en_GB", u"en"_s}, {"es_MX", u"es"_s},
        {"fr_CA", u"fr"_s}, {"it_IT", u"it"_s}, {"ja_JP", u"ja"_s}, {"pt_BR", u"pt"_s},
        {"zh_CN", u"cn"_s}, {"zh_TW", u"zh"_s}, {"ko_KR", u"en"_s}, {"C", u"en"_s},
    };
    for (const auto &[locale, shortcut] : rows)
        QTest::newRow(locale) << shortcut;
}

void TestExampleHost::theHostsLanguageIsMapped()
{
    QFETCH(const QString, shortcut);
    QCOMPARE(managerLanguage(QLocale(QString::fromLatin1(QTest::currentDataTag()))), shortcut);
}

void TestExampleHost::theManagerIsFound_data()
{
    QTest::addColumn<QStringList>("places");
    QTest::addColumn<QString>("found");
    QTest::newRow("named") << QStringList{u"named"_s, u"beside"_s, u"path"_s} << u"named"_s;
    QTest::newRow("beside the host") << QStringList{u"beside"_s, u"path"_s} << u"beside"_s;
    QTest::newRow("on the search path") << QStringList{u"path"_s} << u"path"_s;
}

void TestExampleHost::theManagerIsFound()
{
    QFETCH(const QStringList, places);
    QFETCH(const QString, found);
    for (const QString &place : {u"named"_s, u"beside"_s, u"path"_s})
        QVERIFY(QDir(m_directory->path()).mkdir(place));
    for (const QString &place : places)
        QVERIFY(
            !makeScript(place + u"/orvel-scheduler-manager"_s, R"(printf '%s' ")" + place.toUtf8() + R"(" >"$RECORD")")
                 .isEmpty());
    const QString host = path(u"beside/host"_s);
    QVERIFY(QFile::copy(QStringLiteral(EXAMPLE_HOST), host));

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"PATH"_s, path(u"path"_s));
    environment.insert(u"RECORD"_s, path(u"record"_s));
    if (places.contains(u"named"_s))
        environment.insert(u"ORVEL_MANAGER"_s, path(u"named/orvel-scheduler-manager"_s));
    QCOMPARE(runHost(environment, host), 0);
    QCOMPARE(textOf(u"record"_s), found);
}

void TestExampleHost::theWindowTellsHowTheManagerEnded_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QString>("text");
    QTest::newRow("success") << QByteArray("exit 0") << u"The scheduler has ended with status 0."_s;
    QTest::newRow("failure") << QByteArray("exit 1") << u"The scheduler has ended with status 1."_s;
    QTest::newRow("killed") << QByteArray("kill -9 $$") << u"The scheduler was ended from outside, or crashed."_s;
    QTest::newRow("missing") << QByteArray() << u"The scheduler cannot be started: "_s;
}

void TestExampleHost::theWindowTellsHowTheManagerEnded()
{
    QFETCH(const QByteArray, commands);
    QFETCH(const QString, text);
    qputenv("ORVEL_MANAGER", commands.isEmpty() ? "/nowhere" : makeScript(u"manager"_s, commands).toLocal8Bit());
    HostWindow window;
    window.show();
    const QSignalSpy ended(&window, &HostWindow::managerEnded);
    QVERIFY(click(&window, "openButton"));
    QTRY_COMPARE(ended.size(), 1);
    ORVEL_REQUIRE_WIDGET(QLabel, label, &window, "statusLabel");
    QVERIFY2(label->text().startsWith(text), qPrintable(label->text()));
    ORVEL_REQUIRE_WIDGET(QPushButton, button, &window, "openButton");
    QVERIFY(button->isEnabled());
}

void TestExampleHost::oneManagerIsOpenAtATime()
{
    qputenv("ORVEL_MANAGER", makeScript(u"manager"_s, "read -r line").toLocal8Bit());
    HostWindow window;
    window.show();
    ORVEL_REQUIRE_WIDGET(QLabel, label, &window, "statusLabel");
    ORVEL_REQUIRE_WIDGET(QPushButton, button, &window, "openButton");
    QVERIFY(click(button));
    QTRY_COMPARE(label->text(), u"The scheduler is open."_s);
    QVERIFY(!button->isEnabled());
    window.openManager();
    QCOMPARE(label->text(), u"The scheduler is open."_s);
}

void TestExampleHost::theStatusIsHandedOn_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<int>("status");
    QTest::newRow("success") << QByteArray("exit 0") << 0;
    QTest::newRow("other") << QByteArray("exit 7") << 7;
    QTest::newRow("killed") << QByteArray("kill -9 $$") << 1;
}

void TestExampleHost::theStatusIsHandedOn()
{
    QFETCH(const QByteArray, commands);
    QFETCH(const int, status);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ORVEL_MANAGER"_s, makeScript(u"manager"_s, commands));
    QCOMPARE(runHost(environment), status);
}

ORVEL_TEST_MAIN(QApplication, TestExampleHost)
#include "tst_examplehost.moc"
