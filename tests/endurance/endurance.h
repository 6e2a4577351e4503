#pragma once

#include "footprint.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

namespace TestSupport {

/// True when the environment variable ORVEL_ENDURANCE is "full": then every program runs the number of cycles that it
/// was made for, which takes minutes. The ordinary suite runs a part of them.
[[nodiscard]] bool isFullRun();

/// Repeats one thing many times, and then tells whether the program holds as much as it did before.
///
/// A tenth of the cycles comes first and fills caches. The rest is two halves, and the second half is what is looked
/// at: a program that is still growing then goes on growing for as long as it runs. Everything that can be counted has
/// to be the same before and after it. The heap in use may grow by heapReserve bytes, once, and by bytesPerCycle.
class Endurance {
public:
    static constexpr qint64 heapReserve = 32 * 1024;
    static constexpr qint64 bytesPerCycle = 16;

    /// What is repeated, for the report; how often, in the full run and otherwise; and the objects to be watched.
    Endurance(const QString &what, int fullCycles, int shortCycles, const QList<const QObject *> &roots);

    /// Runs all cycles, each with its number, from 0. Stops at the first one that failed the test.
    void run(const std::function<void(int cycle)> &step);
    /// Prints the figures, and fails the test for everything that has grown.
    void verify() const;

private:
    void run(int from, int to, const std::function<void(int cycle)> &step) const;
    void verifyHeap() const;

    QString m_what;
    int m_cycles;
    QList<const QObject *> m_roots;
    Footprint m_afterWarmUp;
    Footprint m_halfway;
    Footprint m_atEnd;
    QElapsedTimer m_clock;
    qint64 m_elapsedMs = 0;
};

/// Keeps what the logger writes out of the output while it lives. The entries are made all the same.
class QuietLog {
public:
    QuietLog();
    ~QuietLog();
    Q_DISABLE_COPY_MOVE(QuietLog)
};

} // namespace TestSupport
