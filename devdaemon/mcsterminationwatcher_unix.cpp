#include "mcsterminationwatcher.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace Scheduler::DevDaemon {

namespace {

constexpr std::array watchedSignals{SIGINT, SIGTERM};

/// Read end and write end of the pipe that carries a signal from its handler, where almost nothing is allowed, into
/// the event loop.
std::array<int, 2> signalPipe{-1, -1};

void onSignal(int)
{
    const int savedErrno = errno;
    const char mark = 1;
    // A full pipe is as good as a written mark, so the result does not matter.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe.at(1), &mark, 1);
    errno = savedErrno;
}

} // namespace

MCsTerminationWatcher::MCsTerminationWatcher(QObject *parent)
    : QObject(parent)
{
    if (::pipe(signalPipe.data()) != 0)
        return;
    for (const int end : signalPipe) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    watch();
}

MCsTerminationWatcher::~MCsTerminationWatcher()
{
    for (const int number : watchedSignals)
        (void)std::signal(number, SIG_DFL);
    for (int &end : signalPipe) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

void MCsTerminationWatcher::watch()
{
    auto *notifier = new QSocketNotifier(signalPipe.at(0), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> marks{};
        while (::read(signalPipe.at(0), marks.data(), marks.size()) > 0) {
        }
        emit terminationRequested();
    });
    struct sigaction action = {};
    action.sa_handler = &onSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : watchedSignals)
        ::sigaction(number, &action, nullptr);
}

} // namespace Scheduler::DevDaemon
