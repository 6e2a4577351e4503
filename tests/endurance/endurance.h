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
/// at: a program that is still growing then goes on growing for as long as it runs. Nothing that can be counted may be
/// more after it than before, and the heap in use may grow by very little.
class Endurance {
public:
    /// By how much the heap may grow in the second half: once, and with each cycle.
    struct Allowance {
        qint64 bytes = 32 * 1024;
        qint64 bytesPerCycle = 16;
    };

    /// What is repeated, for the report; how often, in the full run and otherwise; and the objects to be watched.
    Endurance(const QString &what, int fullCycles, int shortCycles, const QList<const QObject *> &roots);

    void allow(const Allowance &allowance);
    /// Runs all cycles, each with its number, from 0. Stops at the first one that failed the test.
    void run(const std::function<void(int cycle)> &step);
    /// Prints the figures, and fails the test for everything that has grown.
    void verify() const;

private:
    void run(int from, int to, const std::function<void(int cycle)> &step) const;
    void verifyCount(const char *what, int Footprint::*count, int slack = 0) const;
    void verifyHeap() const;

    QString m_what;
    int m_cycles;
    QList<const QObject *> m_roots;
    Allowance m_allowance;
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
