#include "samplestate.h"

#include "daemonschedule.h"
#include "daemontime.h"

#include <QJsonArray>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

QJsonObject once(const QDateTime &time, const QTimeZone &zone)
{
    return {{u"mode"_s, u"SpecifiedTime"_s}, {u"specifiedDateTime"_s, wallTimeText(time, zone)}};
}

QJsonObject daily(const QDateTime &time, const QTimeZone &zone)
{
    return {{u"mode"_s, u"EveryDay"_s}, {u"dailyTime"_s, time.toTimeZone(zone).time().toString(u"HH:mm:ss"_s)}};
}

QJsonObject weekly(const QStringList &days, const QString &time)
{
    return {{u"mode"_s, u"EveryWeek"_s}, {u"weeklyDays"_s, QJsonArray::fromStringList(days)}, {u"weeklyTime"_s, time}};
}

/// Weekly on the day that the zone's clocks show at time, and at its time of day.
QJsonObject weeklyLike(const QDateTime &time, const QTimeZone &zone)
{
    const QDateTime wall = time.toTimeZone(zone);
    return weekly({QLocale::c().dayName(wall.date().dayOfWeek(), QLocale::ShortFormat)},
                  wall.time().toString(u"HH:mm:ss"_s));
}

QJsonObject onProgram()
{
    return {{u"mode"_s, u"monitorApp"_s}, {u"monitorProgram"_s, u"/opt/example/conference"_s}};
}

QJsonObject onFolder()
{
    return {{u"mode"_s, u"monitorFolder"_s},
            {u"monitorFolderPath"_s, u"/srv/incoming"_s},
            {u"monitorFileExtensions"_s, u".mp4,.avi,.mkv"_s}};
}

/// A task document with a stop mode, an output mode and parameters that differ from the defaults.
QJsonObject fullDocument(const QJsonObject &start)
{
    return {{u"startRecordingOn"_s, start},
            {u"actionBeforeAutoStart"_s,
             QJsonObject{{u"openUrl"_s, u"https://www.example.com"_s}, {u"sleepAfterSeconds"_s, 10}}},
            {u"autoStopCondition"_s, QJsonObject{{u"mode"_s, u"ByDuration"_s}, {u"durationSeconds"_s, 2700}}},
            {u"actionAfterAutoStop"_s, QJsonObject{{u"action"_s, u"CloseProgram"_s}}},
            {u"outputSettings"_s, QJsonObject{{u"mode"_s, u"Custom"_s},
                                              {u"customFolder"_s, u"/srv/recordings"_s},
                                              {u"customFileNamePattern"_s, u"[YYYY-MM-DD]_[TaskName]"_s}}},
            {u"displayMode"_s, u"Minimize"_s},
            {u"dynamicParams"_s, QJsonObject{{u"outputFormat"_s, u"MKV"_s}, {u"frameRate"_s, 60}}}};
}

QJsonObject plainDocument(const QJsonObject &start)
{
    return {{u"startRecordingOn"_s, start},
            {u"autoStopCondition"_s, QJsonObject{{u"mode"_s, u"None"_s}}},
            {u"outputSettings"_s, QJsonObject{{u"mode"_s, u"UseDefault"_s}}},
            {u"displayMode"_s, u"Show"_s}};
}

/// Makes tasks one after the other, each created a little later than the one before.
class SampleTasks {
public:
    SampleTasks(const QDateTime &now, const QTimeZone &zone)
        : m_now(now)
        , m_zone(zone)
    {
    }

    Task &add(const QString &type, const QString &name, const QString &groupId, const QJsonObject &document,
              const QString &lastRunStatus, bool enabled = true)
    {
        Task task;
        task.id = u"sample-task-%1"_s.arg(m_tasks.size() + 1);
        task.name = name;
        task.type = u"task_type."_s + type;
        task.enabled = enabled;
        task.groupId = groupId;
        task.programName = u"Example Recorder"_s;
        task.targetProgram = u"/opt/example/recorder"_s;
        task.paramsJson = document;
        task.lastRunStatus = lastRunStatus;
        const bool hasRun = !lastRunStatus.isEmpty() && lastRunStatus != "pending"_L1 && lastRunStatus != "disabled"_L1;
        if (hasRun) {
            task.lastRunAt = m_now.addSecs(-3600);
            task.runCount = 1;
        }
        task.createdAt = m_now.addDays(-7).addSecs(60 * m_tasks.size());
        task.updatedAt = task.createdAt;
        task.nextRunAt = nextRun(task, m_now, m_zone);
        m_tasks.append(task);
        return m_tasks.last();
    }

    [[nodiscard]] QList<Task> tasks() const
    {
        return m_tasks;
    }

private:
    QDateTime m_now;
    QTimeZone m_zone;
    QList<Task> m_tasks;
};

void addScreenTasks(SampleTasks &tasks, const QDateTime &now, const QTimeZone &zone)
{
    const QString screen = u"screen_record"_s;
    const QString ungrouped;
    tasks.add(screen, u"Product demo"_s, u"sample-work"_s, plainDocument(once(now.addSecs(50), zone)), u"pending"_s);
    tasks.add(screen, u"🎬 Daily stand-up"_s, u"sample-meetings"_s, fullDocument(daily(now.addSecs(25 * 60), zone)),
              u"success"_s);
    tasks.add(screen, u"週次レビュー会議"_s, u"sample-meetings"_s, plainDocument(daily(now.addSecs(5 * 3600), zone)),
              u"failed - the output folder is not writable"_s);
    tasks.add(screen, u"Onboarding webinar"_s, u"sample-training"_s, plainDocument(weeklyLike(now.addDays(3), zone)),
              u"timeout - no result in time"_s);
    tasks.add(screen, u"تسجيل الاجتماع الشهري"_s, u"sample-training"_s,
              plainDocument(once(now.addDays(30).addSecs(7200), zone)), u"skipped - the laptop ran on battery"_s);
    tasks.add(screen, u"Missed interview"_s, ungrouped, plainDocument(once(now.addSecs(-2 * 3600), zone)), {});
    tasks.add(screen, u"<b>Bold</b> & \"quoted\" 100% %1"_s, u"sample-private"_s, plainDocument(onProgram()),
              u"success"_s);
    tasks.add(screen, u"Old game session"_s, u"sample-private"_s, plainDocument(daily(now.addSecs(3600), zone)),
              u"disabled"_s, false);
    Task &running = tasks.add(screen, u"Long recording"_s, ungrouped, plainDocument(onFolder()), u"running"_s);
    running.run = {u"sample-run-in-progress"_s, now.addSecs(-120), now.addSecs(10 * 60)};
    running.lastRunAt = running.run.startedAt;
}

void addAudioTasks(SampleTasks &tasks, const QDateTime &now, const QTimeZone &zone)
{
    const QString audio = u"audio_record"_s;
    const QString ungrouped;
    tasks.add(audio, u"Evening news"_s, u"sample-radio"_s, plainDocument(daily(now.addSecs(3 * 3600), zone)),
              u"success"_s);
    tasks.add(audio, u"Podcast 播客 🎧"_s, u"sample-podcasts"_s,
              plainDocument(weekly({u"Mon"_s, u"Thu"_s}, u"06:30:00"_s)), u"success"_s);
    tasks.add(audio, u"Board call"_s, u"sample-audio-work"_s, plainDocument(once(now.addSecs(-5 * 3600), zone)),
              u"success"_s);
    tasks.add(audio, u"Concert"_s, ungrouped, plainDocument(once(now.addDays(1).addSecs(1800), zone)), u"pending"_s);
}

void addTestTasks(SampleTasks &tasks, const QDateTime &now, const QTimeZone &zone)
{
    const auto check = [&](const QString &name, const QString &outcome, const QJsonObject &start) {
        QJsonObject document = plainDocument(start);
        document.insert("dynamicParams"_L1, QJsonObject{{u"simulatedOutcome"_s, outcome},
                                                        {u"simulatedSeconds"_s, 3},
                                                        {u"ratio"_s, 2.25},
                                                        {u"verbose"_s, false},
                                                        {u"note"_s, u"sample"_s}});
        tasks.add(u"test"_s, name, u"sample-checks"_s, document, u"pending"_s);
    };
    check(u"Always succeeds"_s, u"Success"_s, daily(now.addSecs(90), zone));
    check(u"Always fails"_s, u"Failure"_s, daily(now.addSecs(150), zone));
    check(u"Always times out"_s, u"Timeout"_s, daily(now.addSecs(210), zone));
}

} // namespace

QList<Task> sampleTasks(const QDateTime &now, const QTimeZone &zone)
{
    SampleTasks tasks(now, zone);
    addScreenTasks(tasks, now, zone);
    addAudioTasks(tasks, now, zone);
    addTestTasks(tasks, now, zone);
    return tasks.tasks();
}

} // namespace Scheduler::DevDaemon
