// Measures the manager against floors in the same run and prints one table.
//
//   orvel-bench [--json] [--brief] [--only <part of a row's name>]
//
// Run through ./bench, which builds it and gives it a place of its own.

#include "benchtable.h"
#include "canneddaemon.h"
#include "processbench.h"
#include "resources.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCommandLineParser>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

void configureGoogleBenchmark(const char *program)
{
    // By turns: a disturbance then hits floor and ours alike.
    const char *arguments[] = {program, "--benchmark_enable_random_interleaving=true"};
    int count = 2;
    benchmark::Initialize(&count, const_cast<char **>(arguments));
}

// The logger's entries go to the debug output too, which would be the terminal.
void dropMessage(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString & /*text*/) {}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--daemon") == 0)
        return Bench::runCannedDaemon(argc, argv);
    qInstallMessageHandler(dropMessage);
    if (argc > 1 && std::strcmp(argv[1], "--child") == 0)
        return Bench::runChild(argc, argv);

    Scheduler::registerResources();
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({u"json"_s, u"Print JSON instead of a table"_s});
    parser.addOption({u"brief"_s, u"Only see that each row works; the figures mean nothing"_s});
    parser.addOption({u"only"_s, u"Measure only the rows whose name holds this text"_s, u"text"_s});
    parser.process(application);

    configureGoogleBenchmark(argv[0]);
    if (parser.isSet(u"brief"_s))
        Bench::setEffort({0.001, 1});
    const QList<Bench::Row> rows = Bench::exchangeRows() + Bench::frameRows() + Bench::recordRows() +
                                   Bench::windowRows() + Bench::logRows() + Bench::processRows() + Bench::dialogRows();
    return Bench::printTable(rows, parser.value(u"only"_s), parser.isSet(u"json"_s)) == 0 ? 0 : 1;
}
