#pragma once

#include "mcsdaemonstore.h"

#include <QTimeZone>

namespace Scheduler::DevDaemon {

struct EngineSettings {
    int runSeconds = 5;    ///< how long a simulated run takes
    int graceSeconds = 60; ///< a start that is found later than this counts as missed
    int maxAuditEntries = 5000;
    QTimeZone zone = QTimeZone::systemTimeZone();
};

/// What a command works on and with.
struct CommandContext {
    MCsDaemonStore &store;
    const EngineSettings &settings;
    QDateTime now; ///< UTC
    QString actor; ///< who acts: the client's type, or "scheduler" for what the daemon does by itself
};

enum class JsonKind { Text, Flag, WholeNumber, Object, TextList };

/// A key that a payload must hold, or may leave out, with a value of one kind.
struct KeyRule {
    QLatin1StringView key;
    JsonKind kind = JsonKind::Text;
    bool required = true;
};

/// One command: its handler runs only with a payload that obeys the rules, and returns the response without its id.
struct Command {
    using Handler = QJsonObject (*)(CommandContext &, const QJsonObject &payload);

    QString name;
    QList<KeyRule> rules;
    Handler handler = nullptr;
};

/// What is wrong with the object, in words; empty when it obeys the rules. Keys without a rule are ignored.
[[nodiscard]] QString problemOf(const QJsonObject &object, const QList<KeyRule> &rules);

/// The task types on which a command for a whole group acts: those of a client that serves one type are its own,
/// since its user sees no others; an empty text stands for all.
[[nodiscard]] QString typeScope(const CommandContext &context);

/// Audit entries with all but details and message filled in.
[[nodiscard]] AuditEntry entryFor(const CommandContext &context, const QString &action, const Task &task);
[[nodiscard]] AuditEntry entryFor(const CommandContext &context, const QString &action, const Group &group);

// The commands by subject; "client.register" is not among them, since it is about connections.
[[nodiscard]] QList<Command> taskCommands();
[[nodiscard]] QList<Command> taskActionCommands();
[[nodiscard]] QList<Command> taskQueryCommands();
[[nodiscard]] QList<Command> groupCommands();
[[nodiscard]] QList<Command> groupQueryCommands();
[[nodiscard]] QList<Command> groupTaskCommands();
[[nodiscard]] QList<Command> auditCommands();

// Steps that commands for one task and for all tasks of a group share. The task must exist.
void setTaskEnabled(CommandContext &context, const QString &taskId, bool enabled);
void deleteTasks(CommandContext &context, const QStringList &taskIds);

} // namespace Scheduler::DevDaemon
