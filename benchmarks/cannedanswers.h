#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

namespace Bench {

/// How much the canned daemon has.
struct Amounts {
    int tasks = 0;
    int groups = 0;
    int equalNames = 0; ///< so many of the groups share a name with another
    int depth = 1;      ///< levels of groups
    int auditEntries = 0;
    int fields = 0;      ///< of the one task type
    bool moving = false; ///< every other list of tasks has other next-run times

    /// As arguments of a command line and back.
    [[nodiscard]] QStringList toArguments() const;
    [[nodiscard]] static Amounts fromArguments(const QStringList &arguments);
};

/// The "data" of each command's answer as bytes, made once: a daemon that costs next to nothing beside the manager.
/// A command with several takes them in turn.
using Answers = QHash<QString, QList<QByteArray>>;

[[nodiscard]] Answers cannedAnswers(const Amounts &amounts);

/// A response frame without its terminator.
[[nodiscard]] QByteArray responseFrame(const QString &id, const QByteArray &data);

/// The task type that everything here belongs to.
inline const QString benchTaskType = QStringLiteral("task_type.screen_record");

} // namespace Bench
