#include "fileaccess.h"

#include <QString>

Scheduler::FileAccessResult Scheduler::applyFileAccess(const QString &path)
{
    return restrictFileAccessOnWindows(path.toStdWString().c_str());
}
