#include "fileaccess.h"

#include <QFile>

#include <cerrno>

Scheduler::FileAccessResult Scheduler::applyFileAccess(const QString &path)
{
    errno = 0;
    if (QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup))
        return {};
    return {FileAccessFailure::FileSecurity, static_cast<unsigned long>(errno)};
}
