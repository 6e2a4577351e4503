#include "platform.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <windows.h>

namespace TestSupport {

using namespace Qt::StringLiterals;

QString endpointIn(const QString &directory, const QString &name)
{
    // A pipe's name is flat; what makes it the test's own is the name of its directory.
    return u"\\\\.\\pipe\\"_s + QDir(directory).dirName() + u'-' + QString(name).replace(u'/', u'-');
}

QString applicationsDirectory()
{
    return QFileInfo(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).path();
}

uint ownUserId()
{
    return static_cast<uint>(-2); // files have no such number here
}

bool makePipeFile(const QString & /*path*/)
{
    return false;
}

void withoutMemoryImage(QProcess & /*process*/) {}

bool FullDisk::possible()
{
    return false;
}

FullDisk::FullDisk(qint64 /*bytes*/) {}

FullDisk::~FullDisk() = default;

bool OtherUser::possible()
{
    return false;
}

OtherUser::OtherUser()
    : m_changed(false)
{
}

OtherUser::~OtherUser() = default;

} // namespace TestSupport
