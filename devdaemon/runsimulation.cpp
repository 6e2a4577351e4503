#include "runsimulation.h"

#include "daemoncounter.h"
#include "daemonschedule.h"
#include "daemontasktypes.h"

#include <array>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

enum class Outcome { Success, Failure, Timeout };

/// Of ten runs in a row the fifth fails and the ninth times out, unless the task's own parameters ask for something
/// else, so that a user who repeats a run sees every outcome, and a test knows which.
Outcome outcomeOf(const Task &task)
{
    const QString asked = task.paramsJson.value("dynamicParams"_L1).toObject().value(simulatedOutcomeKey).toString();
    if (asked == outcomeSuccess)
        return Outcome::Success;
    if (asked == outcomeFailure)
        return Outcome::Failure;
    if (asked == outcomeTimeout)
        return Outcome::Timeout;
    switch (task.runCount % 10) {
    case 5:
        return Outcome::Failure;
    case 9:
        return Outcome::Timeout;
    default:
        return Outcome::Success;
    }
}

QString failureOf(const Task &task)
{
    static const std::array failures{u"the output folder is not writable"_s, u"the program ended with exit code 1"_s,
                                     u"the device is busy"_s};
    return failures.at(static_cast<size_t>(task.runCount / 10) % failures.size());
}

int runSecondsOf(const Task &task, const EngineSettings &settings)
{
    const int asked = task.paramsJson.value("dynamicParams"_L1).toObject().value(simulatedSecondsKey).toInt();
    return asked > 0 ? asked : settings.runSeconds;
}

void finishRun(CommandContext &context, const QString &taskId)
{
    Task &task = *context.store.editTask(taskId);
    QString action = u"task_run"_s;
    QString error;
    switch (outcomeOf(task)) {
    case Outcome::Success:
        task.lastRunStatus = u"success"_s;
        break;
    case Outcome::Failure:
        action = u"task_run.failed"_s;
        error = failureOf(task);
        task.lastRunStatus = u"failed - "_s + error;
        break;
    case Outcome::Timeout:
        action = u"task_run.timeout"_s;
        error = u"no result in time"_s;
        task.lastRunStatus = u"timeout - "_s + error;
        break;
    }

    AuditEntry entry = entryFor(context, action, task);
    entry.result = error.isEmpty();
    entry.message = error.isEmpty() ? u"Run completed"_s : u"Run ended: "_s + error;
    entry.detailsJson = {{u"runId"_s, task.run.id}, {u"exitCode"_s, error.isEmpty() ? 0 : 1}};
    if (!error.isEmpty())
        entry.detailsJson.insert(u"error"_s, error);
    task.run = {};
    context.store.record(entry);
}

void handleDueTask(CommandContext &context, const QString &taskId)
{
    const Task &task = *context.store.task(taskId);
    const bool missed = task.nextRunAt.secsTo(context.now) > context.settings.graceSeconds;
    if (!missed && task.run.id.isEmpty()) {
        startRun(context, taskId);
    } else if (!isOneOff(task)) {
        const QDateTime next = nextRun(task, context.now, context.settings.zone);
        context.store.editTask(taskId)->nextRunAt = next;
    }
}

} // namespace

void startRun(CommandContext &context, const QString &taskId)
{
    Task &task = *context.store.editTask(taskId);
    task.runCount = counted(task.runCount);
    task.run = {newId(), context.now, context.now.addSecs(runSecondsOf(task, context.settings))};
    task.lastRunAt = context.now;
    task.lastRunStatus = u"running"_s;
    task.nextRunAt = nextRun(task, context.now, context.settings.zone);

    AuditEntry entry = entryFor(context, u"task_run.started"_s, task);
    entry.message = u"Run started"_s;
    entry.detailsJson = {{u"runId"_s, task.run.id}};
    context.store.record(entry);
}

void cancelRun(CommandContext &context, const QString &taskId)
{
    const Task *running = context.store.task(taskId);
    if (running->run.id.isEmpty())
        return;
    AuditEntry entry = entryFor(context, u"task_run.cancelled"_s, *running);
    entry.result = false;
    entry.message = u"Run cancelled"_s;
    entry.detailsJson = {{u"runId"_s, running->run.id}};
    context.store.editTask(taskId)->run = {};
    context.store.record(entry);
}

void advanceRuns(CommandContext &context)
{
    QStringList finished;
    QStringList due;
    for (const Task &task : context.store.state().tasks) {
        if (!task.run.id.isEmpty() && task.run.endsAt <= context.now)
            finished.append(task.id);
        if (task.nextRunAt.isValid() && task.nextRunAt <= context.now)
            due.append(task.id);
    }
    for (const QString &taskId : finished)
        finishRun(context, taskId);
    for (const QString &taskId : due)
        handleDueTask(context, taskId);
}

} // namespace Scheduler::DevDaemon
