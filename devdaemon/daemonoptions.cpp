#include "daemonoptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStandardPaths>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

CommandLine refusal(const QString &text)
{
    return {std::nullopt, text, 1};
}

/// The option's value as a number from 0 to max, or nothing when it is something else.
std::optional<int> numberOf(const QCommandLineParser &parser, const QCommandLineOption &option, int max)
{
    bool isNumber = false;
    const int number = parser.value(option).toInt(&isNumber);
    return isNumber && number >= 0 && number <= max ? std::optional(number) : std::nullopt;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    const QString statePath = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/state.json"_s;
    const QCommandLineOption state(u"state"_s, u"Keep the state in FILE instead of %1."_s.arg(statePath), u"FILE"_s,
                                   statePath);
    const QCommandLineOption empty(u"empty"_s, u"Start with nothing when FILE is missing, not with sample data."_s);
    const QCommandLineOption tasks(
        u"tasks"_s, u"Start with N generated screen recorder tasks when FILE is missing, not with sample data."_s,
        u"N"_s, u"0"_s);
    const QCommandLineOption groups(u"groups"_s, u"The same for groups; goes together with --tasks."_s, u"N"_s, u"0"_s);
    const QCommandLineOption runSeconds(u"run-seconds"_s, u"Let each simulated run take N seconds."_s, u"N"_s, u"5"_s);
    const QCommandLineOption verbose(u"verbose"_s,
                                     u"Log requests and the beginning of each response to standard error."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Stand-in for the scheduler daemon: keeps tasks and groups, and simulates their runs. It starts no program."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({state, empty, tasks, groups, runSeconds, verbose});

    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    if (parser.isSet(help) || parser.isSet(u"help-all"_s))
        return {std::nullopt, parser.helpText(), 0};
    if (parser.isSet(version))
        return {std::nullopt, QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion(), 0};
    if (!parser.positionalArguments().isEmpty())
        return refusal(u"Unexpected argument '%1'."_s.arg(parser.positionalArguments().first()));
    if (parser.value(state).isEmpty())
        return refusal(u"--state needs the name of a file."_s);

    const std::optional<int> taskCount = numberOf(parser, tasks, 1'000'000);
    const std::optional<int> groupCount = numberOf(parser, groups, 10'000);
    const std::optional<int> seconds = numberOf(parser, runSeconds, 86'400);
    if (!taskCount)
        return refusal(u"--tasks needs a number from 0 to 1000000."_s);
    if (!groupCount)
        return refusal(u"--groups needs a number from 0 to 10000."_s);
    if (!seconds)
        return refusal(u"--run-seconds needs a number from 0 to 86400."_s);
    if (parser.isSet(empty) && (*taskCount > 0 || *groupCount > 0))
        return refusal(u"--empty starts with nothing, so it does not go together with --tasks or --groups."_s);
    return {DaemonOptions{parser.value(state), parser.isSet(empty), *taskCount, *groupCount, *seconds,
                          parser.isSet(verbose)},
            {},
            0};
}

} // namespace Scheduler::DevDaemon
