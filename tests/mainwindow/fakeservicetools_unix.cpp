#include "fakeservicetools.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace TestSupport {

const bool FakeServiceTools::canBeMissing = true;
const QByteArray FakeServiceTools::running = "LoadState=loaded\nActiveState=active";
const QByteArray FakeServiceTools::stopped = "LoadState=loaded\nActiveState=inactive";
const QByteArray FakeServiceTools::missing = "LoadState=not-found\nActiveState=inactive";
const QByteArray FakeServiceTools::starting = "LoadState=loaded\nActiveState=activating";
const QByteArray FakeServiceTools::failed = "LoadState=loaded\nActiveState=failed";

FakeServiceTools::FakeServiceTools()
    : m_previousPath(qgetenv("PATH"))
    , m_startCommand("exit 1")
{
    qputenv("PATH", QFile::encodeName(m_directory.path()));
    write();
}

FakeServiceTools::~FakeServiceTools()
{
    qputenv("PATH", m_previousPath);
}

void FakeServiceTools::setQueryOutput(const QByteArray &output)
{
    m_queryOutput = output;
    write();
}

void FakeServiceTools::setStartExitCode(int code)
{
    m_startCommand = "exit " + QByteArray::number(code);
    write();
}

void FakeServiceTools::setStartHangs()
{
    m_startCommand = "exec /usr/bin/tail -f /dev/null";
    write();
}

void FakeServiceTools::uninstall()
{
    QFile::remove(m_directory.filePath(u"systemctl"_s));
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
    QFile script(m_directory.filePath(u"systemctl"_s));
    if (!script.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    script.write("#!/bin/sh\n"
                 "echo \"$2\" >> '" +
                 QFile::encodeName(m_directory.filePath(u"calls"_s)) +
                 "'\n"
                 "case \"$*\" in\n"
                 "'--user show SchedulerService.service --property=LoadState,ActiveState')\n"
                 "printf '%s\\n' '" +
                 m_queryOutput +
                 "'\nexit 3;;\n"
                 "'--user start SchedulerService.service')\n" +
                 m_startCommand +
                 ";;\n"
                 "esac\n"
                 "exit 64\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace TestSupport
