// Requests to the stand-in daemon.
//
// An input is a conversation: one request a line, as on the wire, to a daemon that starts with a few tasks and groups.
// Between two requests a minute passes. Whatever is asked, the answer has the form that managers rely on, and the state
// stays one that can be stored.

#include "fuzzing.h"

#include "daemonstatejson.h"
#include "mcsdaemonengine.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using Fuzzing::require;

namespace {

/// Two tasks and two groups, the second of each below the first group.
State startingState()
{
    static const QJsonObject stored = Fuzzing::objectFrom(R"({
        "version": 1, "audit": [], "lastAuditId": 0,
        "groups": [{"id": "g1", "name": "One", "taskType": "task_type.test"},
                   {"id": "g2", "name": "Two", "taskType": "task_type.test", "parentId": "g1"}],
        "tasks": [{"id": "t1", "name": "First", "type": "task_type.test", "enabled": true,
                   "paramsJson": {"startRecordingOn": {"mode": "EveryDay", "dailyTime": "09:00:00"}}},
                  {"id": "t2", "name": "Second", "type": "task_type.screen_record", "groupId": "g2"}]})");
    QString error;
    return stateFromJson(stored, &error).value();
}

void checkResponse(const QJsonObject &response)
{
    require(response.value("ok"_L1).isBool(), "a response says whether it is one of success");
    const QJsonObject error = response.value("error"_L1).toObject();
    require(response.value("ok"_L1).toBool() != !error.value("code"_L1).toString().isEmpty(),
            "a refusal has a code, and only a refusal");
}

void checkState(const State &state)
{
    QString error;
    const std::optional<State> again =
        stateFromJson(Fuzzing::objectFrom(QJsonDocument(stateToJson(state)).toJson()), &error);
    require(again.has_value() && *again == state, "the state can be stored and read");
    const auto parentOf = [&state](const QString &id) {
        for (const Group &group : state.groups) {
            if (group.id == id)
                return group.parentId;
        }
        return u"missing"_s;
    };
    for (const Group &group : state.groups)
        require(group.parentId.isEmpty() || parentOf(group.parentId).isEmpty(), "groups have two levels at most");
    for (const Task &task : state.tasks)
        require(task.groupId.isEmpty() || parentOf(task.groupId) != "missing"_L1, "a task's group exists");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    QDateTime now = QDateTime::fromString(u"2026-03-28T14:07:55Z"_s, Qt::ISODate); // hours before a clock change
    EngineSettings settings;
    settings.zone = QTimeZone("Europe/Berlin");
    settings.maxAuditEntries = 10;
    MCsDaemonEngine engine(startingState(), settings, [&now] { return now; });

    const QByteArrayList lines = Fuzzing::bytesOf(data, size).split('\n');
    for (const QByteArray &line : lines) {
        const QJsonObject request = Fuzzing::objectFrom(line);
        checkResponse(
            engine.execute(request.value("cmd"_L1).toString(), request.value("payload"_L1), u"task_type.test"_s));
        now = now.addSecs(60);
        engine.advance();
    }
    require(engine.state().audit.size() <= 10, "the audit trail keeps its limit");
    checkState(engine.state());
    return 0;
}
