// The stand-in daemon's state file, and the daemon that starts from it.
//
// An input is the file's content. A state that is accepted must come back unchanged, and the daemon must be able to
// answer from it and to live on.

#include "fuzzing.h"

#include "daemonstatefile.h"
#include "daemonstatejson.h"
#include "mcsdaemonengine.h"

#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace Scheduler::DevDaemon;
using Fuzzing::require;

namespace {

bool isOk(const QJsonObject &response)
{
    return response.value("ok"_L1).toBool();
}

void requireSurvival(const State &state)
{
    QString error;
    const std::optional<State> again =
        stateFromJson(Fuzzing::objectFrom(QJsonDocument(stateToJson(state)).toJson()), &error);
    require(again.has_value() && error.isEmpty(), "what is stored can be read");
    require(*again == state, "a state is read as it was stored");
}

/// What a manager asks for, and what changes much at once.
void converse(MCsDaemonEngine &engine)
{
    const QString actor = u"task_type.all"_s;
    const auto ask = [&](const QString &command, const QJsonObject &payload) {
        require(isOk(engine.execute(command, payload, actor)), "a question about the state is answered");
    };
    ask(u"task.listByType"_s, {{u"type"_s, actor}});
    ask(u"task.countByGroupAndType"_s, {{u"groupId"_s, u"ungrouped"_s}, {u"taskType"_s, actor}});
    ask(u"group.listByTaskType"_s, {{u"taskType"_s, actor}});
    ask(u"audit.list"_s, {{u"taskType"_s, actor}});
    const QList<Task> tasks = engine.state().tasks;
    for (const Task &task : tasks.first(qMin(tasks.size(), qsizetype(3)))) {
        ask(u"task.get"_s, {{u"taskId"_s, task.id}});
        (void)engine.execute(u"task.trigger"_s, QJsonObject{{u"taskId"_s, task.id}}, actor);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    static const QString path = qEnvironmentVariable("HOME") + u"/state.json"_s;
    QFile file(path);
    require(file.open(QIODevice::WriteOnly), "the file can be written");
    file.write(Fuzzing::bytesOf(data, size));
    file.close();

    const LoadedState loaded = loadStateFile(path);
    require(loaded.state.has_value() == loaded.error.isEmpty(), "a file is either used or refused with a reason");
    if (!loaded.state)
        return 0;
    requireSurvival(*loaded.state);

    QDateTime now = QDateTime::fromString(u"2026-03-01T14:07:55Z"_s, Qt::ISODate);
    EngineSettings settings;
    settings.zone = QTimeZone("Europe/Berlin");
    MCsDaemonEngine engine(*loaded.state, settings, [&now] { return now; });
    converse(engine);
    for (const qint64 pause : {1, 3600, 86400 * 30}) {
        now = now.addSecs(pause);
        engine.advance();
    }
    requireSurvival(engine.state());
    return 0;
}
