#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

class QProcess;

// What the tests have to know of the system that they run on. Only this header asks which one that is; CMake picks the
// source file behind it (platform_unix.cpp or platform_win.cpp).

namespace TestSupport {

#ifdef Q_OS_WIN
/// Whether local sockets are files, which others can replace, and a directory can be missing for.
inline constexpr bool endpointsAreFiles = false;
/// Whether the rights of a file or directory keep anybody from anything, a parent directory's among them.
inline constexpr bool modesAreRights = false;
/// Whether the settings are a file, and not a part of the registry.
inline constexpr bool settingsAreAFile = false;
/// Whether the user's folders are those that the environment names.
inline constexpr bool environmentNamesFolders = false;
/// Whether a link of QFile::link() leads on when its name is opened. A shortcut is a file of its own.
inline constexpr bool linksAreFollowed = false;
/// Whether QLocalSocket tells an error when the other end goes, before it tells that it is disconnected.
inline constexpr bool peerGoingIsAnError = false;
/// Whether a running process takes over another time zone from the environment.
inline constexpr bool environmentTellsZone = false;
/// What a line of a text file ends with.
inline const QByteArray lineEnd = "\r\n";
#else
inline constexpr bool endpointsAreFiles = true;
inline constexpr bool modesAreRights = true;
inline constexpr bool settingsAreAFile = true;
inline constexpr bool environmentNamesFolders = true;
inline constexpr bool linksAreFollowed = true;
inline constexpr bool peerGoingIsAnError = true;
inline constexpr bool environmentTellsZone = true;
inline const QByteArray lineEnd = "\n";
#endif

#ifdef Q_OS_LINUX
/// Whether there are the files of the kernel below /proc, which not even an administrator may change, and its devices.
inline constexpr bool hasKernelFiles = true;
#else
inline constexpr bool hasKernelFiles = false;
#endif

// What QSKIP tells.
inline constexpr const char *endpointsAreNoFiles = "local sockets are no files here";
inline constexpr const char *modesAreNoRights = "the mode of a directory keeps nobody from writing here";

/// The name of an endpoint of the test's own, which belongs to the directory.
[[nodiscard]] QString endpointIn(const QString &directory, const QString &name);

/// What is told of an other end that goes, behind the prefix; nothing where that is no error.
[[nodiscard]] inline QStringList toldOfLoss(const QString &prefix = {})
{
    if (!peerGoingIsAnError)
        return {};
    return {prefix + QStringLiteral("Socket error: QLocalSocket: Remote closed")};
}

/// The directory in which each application has its own (QStandardPaths::AppDataLocation).
[[nodiscard]] QString applicationsDirectory();

/// The user as whom this process runs, in the numbers of QFileInfo::ownerId().
[[nodiscard]] uint ownUserId();

/// Makes a pipe in the file system, which holds up whoever opens it until somebody writes. False where there is no such
/// thing.
[[nodiscard]] bool makePipeFile(const QString &path);

/// Keeps a process that is about to be started from leaving an image of its memory if it aborts.
void withoutMemoryImage(QProcess &process);

/// No file of this process may grow beyond this size while this lives, as on a disk that is full.
class FullDisk {
public:
    /// False where the system knows no such limit.
    static bool possible();

    explicit FullDisk(qint64 bytes);
    ~FullDisk();
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    quint64 m_before = 0;
    void (*m_handler)(int) = nullptr;
};

/// The process is another user while this lives, which only root can be; in a process with one thread.
///
/// Sockets and files that are made meanwhile belong to that user for good. Root may write everywhere, so this is also
/// how a test that runs as root meets a directory that it may not write to. For any other user it changes nothing.
class OtherUser {
public:
    /// A user without rights; it need not have a name.
    static constexpr uint id = 65534;

    /// Root of a container may lack the right.
    static bool possible();

    OtherUser();
    ~OtherUser();
    OtherUser(const OtherUser &) = delete;
    OtherUser &operator=(const OtherUser &) = delete;

private:
    bool m_changed;
};

} // namespace TestSupport
