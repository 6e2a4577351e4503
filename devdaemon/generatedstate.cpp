#include "samplestate.h"

#include "daemonschedule.h"

#include <array>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

const QString &generatedType()
{
    static const QString type = u"task_type.screen_record"_s;
    return type;
}

QString groupIdAt(int position)
{
    return u"group-%1"_s.arg(position + 1);
}

Group groupAt(int position, const QDateTime &now)
{
    static const std::array colors{u"#3498db"_s, u"#e67e22"_s, u"#9b59b6"_s, u"#27ae60"_s, QString()};
    constexpr int familySize = 5;
    Group group;
    group.id = groupIdAt(position);
    group.name = u"Group %1"_s.arg(position + 1);
    group.color = colors.at(static_cast<size_t>(position) % colors.size());
    if (position % familySize != 0)
        group.parentId = groupIdAt(position - position % familySize);
    group.taskType = generatedType();
    group.displayOrder = position;
    group.createdAt = now;
    group.updatedAt = now;
    return group;
}

/// A daily start between one hour and 23 hours from now, so that nothing starts while somebody measures.
QJsonObject documentAt(int position, const QDateTime &now, const QTimeZone &zone)
{
    constexpr int hour = 3600;
    const QDateTime start = now.addSecs(hour + 60 + position * 7919LL % (22 * hour));
    return {
        {u"startRecordingOn"_s, QJsonObject{{u"mode"_s, u"EveryDay"_s},
                                            {u"dailyTime"_s, start.toTimeZone(zone).time().toString(u"HH:mm:ss"_s)}}},
        {u"autoStopCondition"_s, QJsonObject{{u"mode"_s, u"ByDuration"_s}, {u"durationSeconds"_s, 1800}}},
        {u"outputSettings"_s, QJsonObject{{u"mode"_s, u"UseDefault"_s}}},
        {u"displayMode"_s, u"Show"_s},
        {u"dynamicParams"_s, QJsonObject{{u"outputFormat"_s, u"MP4"_s}, {u"frameRate"_s, 30}}}};
}

Task taskAt(int position, int groupCount, const QDateTime &now, const QTimeZone &zone)
{
    static const std::array statuses{u"success"_s, u"failed - the device is busy"_s, u"pending"_s,
                                     u"timeout - no result in time"_s};
    Task task;
    task.id = u"task-%1"_s.arg(position + 1);
    task.name = u"Task %1"_s.arg(position + 1);
    task.type = generatedType();
    task.enabled = position % 10 != 9;
    const int home = position % (groupCount + 1);
    if (home < groupCount)
        task.groupId = groupIdAt(home);
    task.programName = u"Example Recorder"_s;
    task.targetProgram = u"/opt/example/recorder"_s;
    task.paramsJson = documentAt(position, now, zone);
    task.lastRunStatus = statuses.at(static_cast<size_t>(position) % statuses.size());
    task.createdAt = now;
    task.updatedAt = now;
    task.nextRunAt = nextRun(task, now, zone);
    return task;
}

} // namespace

State generatedState(const QDateTime &now, const QTimeZone &zone, int taskCount, int groupCount)
{
    State state;
    for (int position = 0; position < groupCount; ++position)
        state.groups.append(groupAt(position, now));
    for (int position = 0; position < taskCount; ++position)
        state.tasks.append(taskAt(position, groupCount, now, zone));
    return state;
}

} // namespace Scheduler::DevDaemon
