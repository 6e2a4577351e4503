#include "auditline.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr qsizetype shownRunIdLength = 8;

/// Lets lupdate and translate() find the window's context.
class Texts {
    Q_DECLARE_TR_FUNCTIONS(Scheduler::MCsMainWindow)
};

QString addition(const QString &pattern, const QString &value)
{
    return value.isEmpty() ? QString() : pattern.arg(value);
}

QString detail(const AuditLogEntry &entry, QLatin1StringView key)
{
    return entry.detailsJson.value(key).toString();
}

QString taskRunMessage(const AuditLogEntry &entry)
{
    const QString &action = entry.action;
    const QString &name = entry.entityName;
    if (action == "task_run.started"_L1)
        return Texts::tr("Task '%1' execution started").arg(name) +
               addition(Texts::tr(" (run: %1)"), detail(entry, "runId"_L1).left(shownRunIdLength));
    if (action == "task_run"_L1)
        return Texts::tr("Task '%1' completed successfully").arg(name) +
               Texts::tr(" (exit: %1)").arg(entry.detailsJson.value("exitCode"_L1).toInt());
    if (action == "task_run.failed"_L1)
        return Texts::tr("Task '%1' execution failed").arg(name) +
               addition(Texts::tr(" - %1"), detail(entry, "error"_L1));
    // The daemon sends these two outcomes under the same action as the success, which is told from it above; the
    // sentences wait for a daemon that keeps them apart.
    if (action == "task_run"_L1)
        return Texts::tr("Task '%1' execution timed out").arg(name);
    if (action == "task_run"_L1)
        return Texts::tr("Task '%1' execution cancelled").arg(name);
    return {};
}

QString groupMessage(const AuditLogEntry &entry)
{
    if (entry.action == "group.created"_L1)
        return Texts::tr("Group '%1' created").arg(entry.entityName);
    if (entry.action == "group.updated"_L1)
        return Texts::tr("Group '%1' updated").arg(entry.entityName);
    if (entry.action == "group.deleted"_L1)
        return Texts::tr("Group '%1' deleted").arg(entry.entityName);
    return {};
}

QString taskMessage(const AuditLogEntry &entry)
{
    const QString &action = entry.action;
    const QString &name = entry.entityName;
    if (action == "task.created"_L1)
        return Texts::tr("Task '%1' created").arg(name) +
               addition(Texts::tr(" (schedule: %1)"), detail(entry, "scheduleMode"_L1));
    if (action == "task.updated"_L1)
        return Texts::tr("Task '%1' updated").arg(name);
    if (action == "task.deleted"_L1)
        return Texts::tr("Task '%1' deleted").arg(name);
    if (action == "task.enabled"_L1)
        return Texts::tr("Task '%1' enabled").arg(name);
    if (action == "task.disabled"_L1)
        return Texts::tr("Task '%1' disabled").arg(name);
    return {};
}

} // namespace

QString auditMessage(const AuditLogEntry &entry)
{
    for (const auto message : {taskMessage, taskRunMessage, groupMessage}) {
        if (const QString text = message(entry); !text.isEmpty())
            return text;
    }
    return Texts::tr("%1 on '%2'").arg(entry.action, entry.entityName);
}

QString auditColor(const QString &action)
{
    const auto holds = [&action](QLatin1StringView word) { return action.contains(word); };
    if (holds("failed"_L1) || holds("timeout"_L1))
        return u"#e74c3c"_s;
    if (holds("success"_L1) || holds("created"_L1))
        return u"#27ae60"_s;
    if (holds("deleted"_L1))
        return u"#e67e22"_s;
    if (holds("cancelled"_L1) || holds("disabled"_L1))
        return u"#95a5a6"_s;
    return u"#2c3e50"_s;
}

QString auditLine(const AuditLogEntry &entry)
{
    return u"<span style='color:#999'>%1</span> <span style='color:%2'>%3</span>"_s.arg(
        entry.createdAt.toString(u"yyyy-MM-dd HH:mm:ss"_s), auditColor(entry.action),
        auditMessage(entry).toHtmlEscaped());
}

} // namespace Scheduler
