#include "benchtable.h"

#include <benchmark/benchmark.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

Effort effort;

/// Takes the medians of the repetitions instead of printing them.
class MedianReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context & /*context*/) override
    {
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const QString name = QString::fromStdString(run.run_name.function_name);
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians.insert(name, run.GetAdjustedRealTime());
            else if (run.run_type == Run::RT_Iteration && !medians.contains(name))
                medians.insert(name, run.GetAdjustedRealTime()); // a single repetition has no aggregates
        }
    }

    QHash<QString, double> medians; ///< milliseconds
};

Measured run()
{
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter, "all");
    benchmark::ClearRegisteredBenchmarks();
    return {reporter.medians.value(u"floor"_s), reporter.medians.value(u"ours"_s)};
}

void prepare(benchmark::internal::Benchmark *bench)
{
    bench->Unit(benchmark::kMillisecond)->MinTime(effort.seconds)->Repetitions(effort.repetitions);
}

void addTimed(const char *name, const std::function<void()> &work)
{
    prepare(benchmark::RegisterBenchmark(name, [work](benchmark::State &state) {
                for ([[maybe_unused]] auto iteration : state)
                    work();
            })->UseRealTime());
}

void addManual(const char *name, const std::function<double()> &work)
{
    prepare(benchmark::RegisterBenchmark(name, [work](benchmark::State &state) {
                for ([[maybe_unused]] auto iteration : state)
                    state.SetIterationTime(work());
            })->UseManualTime());
}

const char *verdict(const Measured &measured, const Row &row)
{
    if (measured.floor <= 0 || measured.ours <= 0)
        return "DID NOT WORK";
    return measured.ours / measured.floor <= row.goal ? "met" : "NOT MET";
}

void print(const Row &row, const Measured &measured, double ratio)
{
    std::printf("%-62s %10.3f %10.3f %-3s %6.2f x %6.2f x  %s\n", qPrintable(row.work), measured.floor, measured.ours,
                qPrintable(measured.unit), ratio, row.goal, verdict(measured, row));
    std::fflush(stdout);
}

QJsonObject toJson(const Row &row, const Measured &measured, double ratio)
{
    return {{u"work"_s, row.work},        {u"floorWork"_s, row.floor},  {u"unit"_s, measured.unit},
            {u"floor"_s, measured.floor}, {u"ours"_s, measured.ours},   {u"ratio"_s, ratio},
            {u"goal"_s, row.goal},        {u"met"_s, ratio <= row.goal}};
}

} // namespace

void setEffort(const Effort &wanted)
{
    effort = wanted;
}

Measured timePair(const std::function<void()> &floor, const std::function<void()> &ours)
{
    addTimed("floor", floor);
    addTimed("ours", ours);
    return run();
}

Measured timePairManually(const std::function<double()> &floor, const std::function<double()> &ours)
{
    addManual("floor", floor);
    addManual("ours", ours);
    return run();
}

int printTable(const QList<Row> &rows, const QString &only, bool json)
{
    int broken = 0;
    QJsonArray results;
    if (!json)
        std::printf("%-62s %10s %10s %-3s %8s %8s\n", "work", "floor", "ours", "", "ratio", "goal");
    for (const Row &row : rows) {
        if (!row.work.contains(only, Qt::CaseInsensitive))
            continue;
        const Measured measured = row.measure();
        const double ratio = measured.floor > 0 ? measured.ours / measured.floor : 0;
        broken += measured.floor > 0 && measured.ours > 0 ? 0 : 1;
        if (json)
            results.append(toJson(row, measured, ratio));
        else
            print(row, measured, ratio);
    }
    if (json)
        std::printf("%s", QJsonDocument(results).toJson().constData());
    return broken;
}

} // namespace Bench
