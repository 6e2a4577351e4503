#pragma once

#include <QStringList>

/// The command lines of the start, and the lines that they leave in the log.
namespace TestSupport {

using namespace Qt::StringLiterals;

/// A command line with the four required values; an empty value stands for an option that is left out.
inline QStringList commandLine(const QString &taskType, const QString &language, const QString &name,
                               const QString &path)
{
    QStringList arguments{u"manager"_s};
    const auto add = [&arguments](const QString &option, const QString &value) {
        if (!value.isEmpty())
            arguments << option << value;
    };
    add(u"--task-type"_s, taskType);
    add(u"--language"_s, language);
    add(u"--program-name"_s, name);
    add(u"--program-path"_s, path);
    return arguments;
}

inline QStringList completeCommandLine()
{
    return commandLine(u"task_type.test"_s, u"en"_s, u"Foo"_s, u"/no/such/program"_s);
}

/// What the start logs of such a command line.
inline QStringList startLines(const QString &taskType, const QString &parametersFile = {})
{
    return {u"INFO Starting SchedulerManager..."_s, u"INFO Task Type: "_s + taskType, u"INFO Program Name: Foo"_s,
            u"INFO Program Path: /no/such/program"_s, u"INFO Program Parameter JSON Path: "_s + parametersFile};
}

} // namespace TestSupport
