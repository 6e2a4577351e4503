#include "checkoptions.h"

#include "wireprotocol.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

CommandLine refusal(const QString &text)
{
    return {std::nullopt, text, 2};
}

QString listOfRules()
{
    QStringList lines;
    const QList<Rule> rules = allRules();
    for (const Rule &rule : rules)
        lines.append(u"%1: %2"_s.arg(rule.name, QString(rule.text).remove(u'`')));
    return lines.join(u'\n');
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    const QCommandLineOption endpoint(
        u"endpoint"_s, u"Check the daemon at the local socket NAME instead of %1."_s.arg(defaultPipeName()), u"NAME"_s,
        defaultPipeName());
    const QCommandLineOption taskType(
        u"task-type"_s, u"Register under TYPE, and make tasks and groups of it; task_type.test unless given."_s,
        u"TYPE"_s, u"task_type.test"_s);
    const QCommandLineOption list(u"list"_s, u"Print the rules and end."_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Checks whether a daemon keeps the protocol: plays the manager's side, and prints a line for each rule. It "
        "makes tasks and groups of its own, runs some of them with a program that does nothing, and removes them."_s);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({endpoint, taskType, list});

    if (!parser.parse(arguments))
        return refusal(parser.errorText());
    if (parser.isSet(help) || parser.isSet(u"help-all"_s))
        return {std::nullopt, parser.helpText(), 0};
    if (parser.isSet(version))
        return {std::nullopt, QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion(), 0};
    if (parser.isSet(list))
        return {std::nullopt, listOfRules(), 0};
    if (!parser.positionalArguments().isEmpty())
        return refusal(u"Unexpected argument '%1'."_s.arg(parser.positionalArguments().first()));
    if (parser.value(endpoint).isEmpty())
        return refusal(u"There is no runtime directory; --endpoint needs a name."_s);
    if (parser.value(taskType).isEmpty())
        return refusal(u"--task-type needs a type."_s);

    CheckSettings settings;
    settings.endpoint = parser.value(endpoint);
    settings.taskType = parser.value(taskType);
    return {settings, {}, 0};
}

} // namespace Scheduler::ProtocolCheck
