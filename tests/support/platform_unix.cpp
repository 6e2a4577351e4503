#include "platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

QString endpointIn(const QString &directory, const QString &name)
{
    return QDir(directory).absoluteFilePath(name);
}

QString applicationsDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

uint ownUserId()
{
    return ::geteuid();
}

bool makePipeFile(const QString &path)
{
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

void withoutMemoryImage(QProcess &process)
{
    process.setChildProcessModifier([] {
        const rlimit none{};
        ::setrlimit(RLIMIT_CORE, &none);
    });
}

bool FullDisk::possible()
{
    return true;
}

FullDisk::FullDisk(qint64 bytes)
    : m_handler(std::signal(SIGXFSZ, SIG_IGN))
{
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    m_before = limit.rlim_cur;
    limit.rlim_cur = static_cast<rlim_t>(bytes);
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FullDisk::~FullDisk()
{
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = m_before;
    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, m_handler);
}

bool OtherUser::possible()
{
    return OtherUser().m_changed;
}

OtherUser::OtherUser()
    : m_changed(::geteuid() == 0 && ::setresuid(id, id, 0) == 0)
{
}

OtherUser::~OtherUser()
{
    if (m_changed && ::setresuid(0, 0, 0) != 0)
        ::_exit(1); // nothing that follows would mean anything
}

} // namespace TestSupport
