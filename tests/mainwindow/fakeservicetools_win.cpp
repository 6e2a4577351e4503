#include "fakeservicetools.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

QByteArray reportOf(const QByteArray &state)
{
    return "SERVICE_NAME: SchedulerService\r\n        TYPE               : 10  WIN32_OWN_PROCESS\r\n"
           "        STATE              : " +
           state + "\r\n";
}

/// The program that plays the tools (fakeservicetool.cpp), named before any test has changed the current directory.
const QString player = QFileInfo(QStringLiteral(FAKE_SERVICE_TOOL)).absoluteFilePath();

} // namespace

const bool FakeServiceTools::canBeMissing = false;
const QByteArray FakeServiceTools::running = reportOf("4  RUNNING");
const QByteArray FakeServiceTools::stopped = reportOf("1  STOPPED");
const QByteArray FakeServiceTools::missing = "[SC] EnumQueryServicesStatus:OpenService FAILED 1060:\r\n";
const QByteArray FakeServiceTools::starting = reportOf("2  START_PENDING");
const QByteArray FakeServiceTools::failed = reportOf("1  STOPPED") + "        WIN32_EXIT_CODE    : 1067  (0x42b)\r\n";

// The system looks for a program in the current directory before it looks among its own.
FakeServiceTools::FakeServiceTools()
    : m_previousPath(QFile::encodeName(QDir::currentPath()))
    , m_startCommand("1")
{
    for (const QString &tool : {u"sc.exe"_s, u"net.exe"_s})
        QFile::copy(player, m_directory.filePath(tool));
    QDir::setCurrent(m_directory.path());
    write();
}

FakeServiceTools::~FakeServiceTools()
{
    QDir::setCurrent(QFile::decodeName(m_previousPath));
}

void FakeServiceTools::setQueryOutput(const QByteArray &output)
{
    m_queryOutput = output;
    write();
}

void FakeServiceTools::setStartExitCode(int code)
{
    m_startCommand = QByteArray::number(code);
    write();
}

void FakeServiceTools::setStartHangs()
{
    m_startCommand = "hang";
    write();
}

void FakeServiceTools::uninstall()
{
    for (const QString &tool : {u"sc.exe"_s, u"net.exe"_s})
        QFile::remove(m_directory.filePath(tool));
}

QStringList FakeServiceTools::calls() const
{
    QFile file(m_directory.filePath(u"calls"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

void FakeServiceTools::write() const
{
    for (const auto &[name, content] : {std::pair(u"output"_s, m_queryOutput), std::pair(u"start"_s, m_startCommand)}) {
        QFile file(m_directory.filePath(name));
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(content);
    }
}

} // namespace TestSupport
