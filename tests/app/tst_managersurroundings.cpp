#include "platform.h"
#include "testmain.h"
#include "wireprotocol.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;
using namespace TestSupport;

namespace {

/// Programs that start beside other tests, perhaps under a sanitizer, may take their time.
constexpr int patienceMs = 30000;
const QString registered = u"Connected and registered as task_type.test"_s;
const QString unreachable = u"Connection attempt 1 of 1 failed: "_s;

bool writeFile(const QString &path, const QByteArray &bytes = {})
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

/// The real programs where something that they count on is not there.
class TestManagerSurroundings : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void itWorksAllTheSame_data();
    void itWorksAllTheSame();
    void itWorksOnAFullDisk();
    void withoutAPlaceForTheEndpointItSaysSoAndGoesOn_data();
    void withoutAPlaceForTheEndpointItSaysSoAndGoesOn();
    void withoutADisplayItEndsWithTheReason_data();
    void withoutADisplayItEndsWithTheReason();
    void secretsOfTheCommandLineAreNotLogged();

private:
    /// Where the programs have their log.
    [[nodiscard]] QString logPath() const
    {
        const QString directory = environmentNamesFolders ? path(u"data"_s) : applicationsDirectory();
        return directory + u"/Orvel Task Scheduler/gui_logs.log"_s;
    }
    [[nodiscard]] bool daemonAnswers() const;
    void startDaemon();
    void startManager(const QStringList &more = {}, const QStringList &wrapper = {});
    /// Whether the manager writes this before it ends or patience does.
    bool says(const QString &text);
    [[nodiscard]] QString path(const QString &name) const
    {
        return m_home->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_home;
    QProcessEnvironment m_environment;
    std::unique_ptr<QProcess> m_daemon;
    std::unique_ptr<QProcess> m_manager;
    QString m_output; ///< of the manager
};

void TestManagerSurroundings::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
    m_environment = QProcessEnvironment::systemEnvironment();
    const QList<std::pair<QString, QString>> directories{{u"HOME"_s, u"home"_s},
                                                         {u"XDG_RUNTIME_DIR"_s, u"run"_s},
                                                         {u"XDG_DATA_HOME"_s, u"data"_s},
                                                         {u"XDG_CONFIG_HOME"_s, u"config"_s},
                                                         {u"XDG_CACHE_HOME"_s, u"cache"_s},
                                                         // no service tool is found
                                                         {u"PATH"_s, u"bin"_s}};
    for (const auto &[variable, name] : directories) {
        QVERIFY(QDir().mkdir(path(name)));
        QVERIFY(QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        m_environment.insert(variable, path(name));
    }
    m_environment.insert(u"QT_FORCE_STDERR_LOGGING"_s, u"1"_s);
    m_output.clear();
}

void TestManagerSurroundings::cleanup()
{
    for (const auto &process : {m_manager.get(), m_daemon.get()}) {
        if (process != nullptr) {
            process->kill();
            process->waitForFinished();
        }
    }
    m_manager.reset();
    m_daemon.reset();
    m_home.reset();
}

bool TestManagerSurroundings::daemonAnswers() const
{
    QLocalSocket probe;
    probe.connectToServer(endpointsAreFiles ? path(u"run/SchedulerDaemonPipe"_s) : Scheduler::defaultPipeName());
    return probe.waitForConnected(100);
}

void TestManagerSurroundings::startDaemon()
{
    m_daemon = std::make_unique<QProcess>();
    m_daemon->setProcessEnvironment(m_environment);
    m_daemon->start(QStringLiteral(DAEMON_PROGRAM), {u"--state"_s, path(u"state.json"_s)});
    QTRY_VERIFY_WITH_TIMEOUT(daemonAnswers(), patienceMs);
}

void TestManagerSurroundings::startManager(const QStringList &more, const QStringList &wrapper)
{
    m_manager = std::make_unique<QProcess>();
    m_manager->setProcessEnvironment(m_environment);
    m_manager->setProcessChannelMode(QProcess::MergedChannels);
    withoutMemoryImage(*m_manager); // Qt aborts without a display
    connect(m_manager.get(), &QProcess::readyRead, this,
            [this] { m_output += QString::fromUtf8(m_manager->readAll()); });
    QStringList command = wrapper;
    command << QStringLiteral(MANAGER_PROGRAM) << u"--task-type"_s << u"task_type.test"_s << u"--language"_s << u"en"_s
            << u"--program-name"_s << u"Foo"_s << u"--program-path"_s << u"/opt/foo"_s << more;
    const QString program = command.takeFirst();
    m_manager->start(program, command);
    QVERIFY(m_manager->waitForStarted());
}

bool TestManagerSurroundings::says(const QString &text)
{
    const auto settled = [&] { return m_output.contains(text) || m_manager->state() == QProcess::NotRunning; };
    const bool inTime = QTest::qWaitFor(settled, patienceMs); // UNAVOIDABLE: waits for a condition
    return inTime && m_output.contains(text);
}

void TestManagerSurroundings::itWorksAllTheSame_data()
{
    QTest::addColumn<QString>("trouble");
    QTest::newRow("none") << u"none"_s;
    if (!environmentNamesFolders)
        return;
    for (const char *trouble : {"no directory for the log", "a directory for a log", "no directory for settings",
                                "settings of noise", "no home", "no fonts"})
        QTest::newRow(trouble) << QString::fromLatin1(trouble);
}

void TestManagerSurroundings::itWorksAllTheSame()
{
    QFETCH(const QString, trouble);
    const QString settings = path(u"config/Tamrix Laboratory/Orvel Task Scheduler.conf"_s);
    startDaemon();
    if (trouble == "no directory for the log"_L1) {
        QVERIFY(QDir().rmdir(path(u"data"_s)) && writeFile(path(u"data"_s)));
    } else if (trouble == "a directory for a log"_L1) {
        QVERIFY(QDir().mkpath(logPath()));
    } else if (trouble == "no directory for settings"_L1) {
        QVERIFY(QDir().rmdir(path(u"config"_s)) && writeFile(path(u"config"_s)));
    } else if (trouble == "settings of noise"_L1) {
        QVERIFY(QDir().mkpath(path(u"config/Tamrix Laboratory"_s)) && writeFile(settings, "\xFF\0[[=\n"_ba));
    } else if (trouble == "no home"_L1) {
        for (const auto &variable : {u"XDG_DATA_HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_CACHE_HOME"_s})
            m_environment.remove(variable);
        m_environment.insert(u"HOME"_s, u"/proc/nonexistent"_s);
    } else if (trouble == "no fonts"_L1) {
        QVERIFY(QDir().mkdir(path(u"fonts"_s)));
        QVERIFY(writeFile(path(u"fonts.conf"_s), "<?xml version=\"1.0\"?><fontconfig><dir>" +
                                                     path(u"fonts"_s).toUtf8() + "</dir><cachedir>" +
                                                     path(u"cache"_s).toUtf8() + "</cachedir></fontconfig>"));
        m_environment.insert(u"FONTCONFIG_FILE"_s, path(u"fonts.conf"_s));
        m_environment.insert(u"QT_QPA_FONTDIR"_s, path(u"fonts"_s));
    }
    startManager();
    QVERIFY2(says(registered), qPrintable(m_output));
    QCOMPARE(m_manager->state(), QProcess::Running);
    const bool logFails = trouble.endsWith("log"_L1) || trouble == "no home"_L1;
    QCOMPARE(m_output.contains(u"Failed to open log file:"_s), logFails);
}

void TestManagerSurroundings::itWorksOnAFullDisk()
{
    // A file system of its own and of one page, which is taken already. Without root rights, in a name space in which
    // the user is root.
    const QString script = uR"(mount -t tmpfs -o size=4k none "$XDG_DATA_HOME" || exit 77
mkdir "$XDG_DATA_HOME/Orvel Task Scheduler"
head -c 4096 /dev/zero >"$XDG_DATA_HOME/full" 2>/dev/null
exec "$@")"_s;
    m_environment.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
    QProcess trial;
    trial.start(u"unshare"_s, {u"-rm"_s, u"mount"_s, u"-t"_s, u"tmpfs"_s, u"none"_s, path(u"data"_s)});
    if (!trial.waitForFinished() || trial.exitStatus() != QProcess::NormalExit || trial.exitCode() != 0)
        QSKIP("no file system of its own may be mounted here");
    startDaemon();
    startManager({}, {u"unshare"_s, u"-rm"_s, u"sh"_s, u"-c"_s, script, u"sh"_s});
    QVERIFY2(says(registered), qPrintable(m_output));
    QCOMPARE(m_manager->state(), QProcess::Running);
    QVERIFY2(m_output.contains(u"Failed to write log file:"_s), qPrintable(m_output));
}

void TestManagerSurroundings::withoutAPlaceForTheEndpointItSaysSoAndGoesOn_data()
{
    QTest::addColumn<QString>("trouble");
    QTest::addColumn<QString>("said");
    QTest::newRow("none") << u"none"_s << u"runtime"_s;
    QTest::newRow("of others") << u"of others"_s << u"wrong permissions on runtime directory"_s;
    QTest::newRow("too long") << u"too long"_s << u"Invalid name"_s;
}

void TestManagerSurroundings::withoutAPlaceForTheEndpointItSaysSoAndGoesOn()
{
    if (!endpointsAreFiles)
        QSKIP(endpointsAreNoFiles);
    QFETCH(const QString, trouble);
    QFETCH(const QString, said);
    if (trouble == "too long"_L1) {
        const QString directory = path(QString(120, u'x'));
        QVERIFY(QDir().mkdir(directory));
        QVERIFY(QFile::setPermissions(directory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        m_environment.insert(u"XDG_RUNTIME_DIR"_s, directory);
    } else {
        // Nor may Qt make one of its own below this.
        m_environment.insert(u"TMPDIR"_s, u"/proc"_s);
        if (trouble == "none"_L1)
            m_environment.remove(u"XDG_RUNTIME_DIR"_s);
        else
            QVERIFY(QFile::setPermissions(path(u"run"_s), QFile::Permissions(0x7777)));
    }
    startManager();
    QVERIFY2(says(unreachable), qPrintable(m_output));
    QCOMPARE(m_manager->state(), QProcess::Running); // until the user has read the box that follows
    QVERIFY2(m_output.contains(said), qPrintable(m_output));
}

void TestManagerSurroundings::withoutADisplayItEndsWithTheReason_data()
{
    QTest::addColumn<QString>("platform");
    QTest::newRow("no display") << u"xcb"_s;
    QTest::newRow("no such platform") << u"nonsense"_s;
}

void TestManagerSurroundings::withoutADisplayItEndsWithTheReason()
{
    QFETCH(const QString, platform);
    m_environment.insert(u"QT_QPA_PLATFORM"_s, platform);
    for (const auto &variable : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s})
        m_environment.remove(variable);
    startManager();
    QVERIFY(m_manager->waitForFinished(patienceMs));
    m_output += QString::fromUtf8(m_manager->readAll());
    QVERIFY(m_manager->exitStatus() == QProcess::CrashExit || m_manager->exitCode() != 0);
    QVERIFY2(m_output.contains(u"no Qt platform plugin could be initialized"_s), qPrintable(m_output));
}

void TestManagerSurroundings::secretsOfTheCommandLineAreNotLogged()
{
    startDaemon();
    startManager({u"--program-name"_s, u"Foo password: hunter2"_s, u"--program-path"_s, u"/x?token=hunter2"_s});
    QVERIFY2(says(registered), qPrintable(m_output));
    QFile log(logPath());
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QString written = QString::fromUtf8(log.readAll());
    for (const QString &text : {m_output, written}) {
        QVERIFY2(text.contains(u"Program Name: Foo password=***REDACTED***"_s), qPrintable(text));
        QVERIFY2(!text.contains(u"hunter2"_s), qPrintable(text));
    }
}

ORVEL_TEST_MAIN(QCoreApplication, TestManagerSurroundings)
#include "tst_managersurroundings.moc"
