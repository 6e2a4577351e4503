#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <atomic>

#include <ctime>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

// To be included by one source file of a program: it defines the C library's functions that tell the time of day, in
// front of the library's own, so that Qt and the code under test ask these. What measures times that pass, timers among
// it, goes on undisturbed, as it does when somebody sets the clock of a machine.

namespace TestSupport {

/// Seconds by which the time of day of this process differs from that of the machine.
inline std::atomic<time_t> clockOffset = 0;

/// Sets the time of day of this process; it goes on from there.
inline void setClock(const QDateTime &time)
{
    timespec machine{};
    ::syscall(SYS_clock_gettime, CLOCK_REALTIME, &machine);
    clockOffset = static_cast<time_t>(time.toSecsSinceEpoch()) - machine.tv_sec;
}

/// Whether this process can have a time of its own, which Qt's build and the C library decide.
inline bool clockCanBeMoved()
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1'000'000'000, QTimeZone::utc());
    setClock(time);
    const qint64 difference = time.secsTo(QDateTime::currentDateTimeUtc());
    clockOffset = 0;
    return difference >= 0 && difference < 60;
}

} // namespace TestSupport

extern "C" inline __attribute__((used)) int gettimeofday(timeval *__restrict time, void *__restrict /*zone*/) noexcept
{
    timespec machine{};
    const auto result = ::syscall(SYS_clock_gettime, CLOCK_REALTIME, &machine);
    time->tv_sec = machine.tv_sec + TestSupport::clockOffset;
    time->tv_usec = machine.tv_nsec / 1000;
    return static_cast<int>(result);
}

extern "C" inline __attribute__((used)) int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const auto result = ::syscall(SYS_clock_gettime, clock, time);
    if (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)
        time->tv_sec += TestSupport::clockOffset;
    return static_cast<int>(result);
}
