#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace Bench {

/// What a row measures: the floor and ours, in the same unit.
struct Measured {
    double floor = 0;
    double ours = 0;
    QString unit = QStringLiteral("ms");
};

/// One row of the table. A ratio of ours to the floor above the goal misses it.
struct Row {
    QString work;
    QString floor; ///< what the floor does
    double goal = 0;
    std::function<Measured()> measure; ///< sets up what it needs, and takes it down
};

/// How long and how often each pair runs.
struct Effort {
    double seconds = 0.3; ///< of each of the repetitions
    int repetitions = 7;
};
void setEffort(const Effort &effort);

/// Times two pieces of work by turns, so that what else the machine does hits both, and takes the medians.
[[nodiscard]] Measured timePair(const std::function<void()> &floor, const std::function<void()> &ours);
/// The same for work that tells its time by itself, in seconds.
[[nodiscard]] Measured timePairManually(const std::function<double()> &floor, const std::function<double()> &ours);

/// Measures the rows whose work holds the text, printing each as it is done; as a table or as JSON. Returns the number
/// of rows that did not work.
int printTable(const QList<Row> &rows, const QString &only, bool json);

// The rows by subject.
[[nodiscard]] QList<Row> exchangeRows();
[[nodiscard]] QList<Row> frameRows();
[[nodiscard]] QList<Row> recordRows();
[[nodiscard]] QList<Row> windowRows();
[[nodiscard]] QList<Row> logRows();
[[nodiscard]] QList<Row> processRows();
[[nodiscard]] QList<Row> dialogRows();

} // namespace Bench
