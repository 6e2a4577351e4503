#pragma once

#include "mcsdaemonengine.h"

#include <QJsonArray>

namespace TestSupport {

// Start modes of a task document.
[[nodiscard]] QJsonObject once(const QString &isoTime);
[[nodiscard]] QJsonObject daily(const QString &time);
[[nodiscard]] QJsonObject weekly(const QStringList &days, const QString &time);
/// The nested part of a task document with the given start mode.
[[nodiscard]] QJsonObject paramsWith(const QJsonObject &start);

/// An engine in UTC whose clock stands at noon of 13 November 2026, a Friday, until the test moves it.
class EngineFixture {
public:
    explicit EngineFixture(const Scheduler::DevDaemon::State &state = {},
                           const Scheduler::DevDaemon::EngineSettings &settings = inUtc());
    EngineFixture(const EngineFixture &) = delete;
    EngineFixture &operator=(const EngineFixture &) = delete;

    [[nodiscard]] static Scheduler::DevDaemon::EngineSettings inUtc();

    /// The whole response. The actor is "tester", which is no task type, unless given.
    QJsonObject call(const QString &command, const QJsonValue &payload = QJsonObject());
    /// The data of a command, which must succeed: the response stands in the test's log otherwise.
    QJsonObject data(const QString &command, const QJsonValue &payload = QJsonObject());
    /// The error code of a command; empty when it succeeded.
    QString errorOf(const QString &command, const QJsonValue &payload = QJsonObject());

    /// Makes an enabled screen recorder task and returns its id.
    QString addTask(const QString &name, const QString &groupId = {}, const QJsonObject &start = {},
                    const QString &type = QStringLiteral("task_type.screen_record"));
    /// Makes a group of screen recorder tasks and returns its id.
    QString addGroup(const QString &name, const QString &parentId = {}, int displayOrder = 0,
                     const QString &type = QStringLiteral("task_type.screen_record"));

    QJsonObject task(const QString &taskId);
    QJsonObject group(const QString &groupId);
    /// The groups as listed for a task type.
    QList<QJsonObject> groups(const QString &taskType);
    /// One member of each group as listed for a task type.
    QStringList groupTexts(const QString &taskType, const QString &key = QStringLiteral("name"));
    QStringList taskNamesIn(const QString &groupId, const QString &taskType = QStringLiteral("task_type.all"));
    int countIn(const QString &groupId, const QString &taskType = QStringLiteral("task_type.all"));
    /// The audit trail, newest first.
    QList<QJsonObject> audit(const QJsonObject &extra = {});
    QStringList auditActions(const QJsonObject &extra = {});

    /// Moves the clock on, and lets the runs catch up.
    void pass(qint64 seconds);

    QDateTime now;
    QString actor = QStringLiteral("tester");
    Scheduler::DevDaemon::MCsDaemonEngine engine;
};

} // namespace TestSupport
