#include "mcsdevdaemon.h"

#include "daemonstatefile.h"
#include "mcsdaemonengine.h"
#include "mcsdaemonsessions.h"
#include "samplestate.h"

#include <QElapsedTimer>

#include <algorithm>

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

constexpr int tickIntervalMs = 250;
constexpr qint64 minSaveDelayMs = 500;

} // namespace

MCsDevDaemon::MCsDevDaemon(const DaemonOptions &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{
    m_tickTimer.setInterval(tickIntervalMs);
    connect(&m_tickTimer, &QTimer::timeout, this, &MCsDevDaemon::onTick);
    m_saveTimer.setSingleShot(true);
    connect(&m_saveTimer, &QTimer::timeout, this, &MCsDevDaemon::onSaveTimeout);
}

MCsDevDaemon::~MCsDevDaemon() = default;

bool MCsDevDaemon::start()
{
    // The endpoint first: whoever holds it is the one who may write the state file.
    if (!listen())
        return false;
    const std::optional<State> state = initialState();
    if (!state) {
        m_server.close();
        return false;
    }
    EngineSettings settings;
    settings.runSeconds = m_options.runSeconds;
    m_engine = std::make_unique<MCsDaemonEngine>(*state, settings);
    m_sessions = std::make_unique<MCsDaemonSessions>(m_server, *m_engine);
    connect(m_sessions.get(), &MCsDaemonSessions::commandExecuted, this, &MCsDevDaemon::scheduleSave);
    reportClients();
    if (!save()) {
        m_server.close();
        return false;
    }
    m_tickTimer.start();
    emit message(u"listening on %1, state in %2"_s.arg(m_server.serverName(), m_options.statePath));
    return true;
}

bool MCsDevDaemon::stop()
{
    m_tickTimer.stop();
    m_saveTimer.stop();
    const bool saved = save();
    m_server.close();
    return saved;
}

void MCsDevDaemon::onTick()
{
    m_engine->advance();
    scheduleSave();
}

void MCsDevDaemon::onSaveTimeout()
{
    // A failure has been reported, and the next tick asks for another attempt.
    save();
}

bool MCsDevDaemon::listen()
{
    if (m_server.listen())
        return true;
    emit message(u"cannot listen: %1"_s.arg(m_server.errorString()));
    return false;
}

std::optional<State> MCsDevDaemon::initialState()
{
    const LoadedState loaded = loadStateFile(m_options.statePath);
    if (!loaded.error.isEmpty()) {
        emit message(u"cannot use the state file %1: %2"_s.arg(m_options.statePath, loaded.error));
        emit message(u"the file was left as it is; move it away, or choose another one with --state"_s);
        return std::nullopt;
    }
    const bool generate = m_options.taskCount > 0 || m_options.groupCount > 0;
    if (loaded.state) {
        if (generate || m_options.empty)
            emit message(u"the state file exists, so --empty, --tasks and --groups have no effect"_s);
        return loaded.state;
    }
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QTimeZone zone = QTimeZone::systemTimeZone();
    if (generate)
        return generatedState(now, zone, m_options.taskCount, m_options.groupCount);
    return m_options.empty ? State() : sampleState(now, zone);
}

void MCsDevDaemon::reportClients()
{
    connect(m_sessions.get(), &MCsDaemonSessions::clientRegistered, this,
            [this](const QString &type) { emit message(u"client registered: "_s + type); });
    connect(m_sessions.get(), &MCsDaemonSessions::clientRefused, this,
            [this](const QString &type) { emit message(u"client refused, its type is connected already: "_s + type); });
    connect(m_sessions.get(), &MCsDaemonSessions::clientLeft, this,
            [this](const QString &type) { emit message(u"client left: "_s + type); });
}

void MCsDevDaemon::scheduleSave()
{
    if (m_saveTimer.isActive() || m_savedRevision == m_engine->revision())
        return;
    // A large state takes long to write; waiting in proportion keeps the daemon free to answer.
    const qint64 delay = std::max(minSaveDelayMs, m_lastSaveMs * 10);
    m_saveTimer.start(static_cast<int>(delay));
}

bool MCsDevDaemon::save()
{
    const quint64 revision = m_engine->revision();
    if (m_savedRevision == revision)
        return true;
    QElapsedTimer timer;
    timer.start();
    const QString formerError = m_saveError;
    m_saveError = saveStateFile(m_options.statePath, m_engine->state());
    m_lastSaveMs = timer.elapsed();
    if (m_saveError.isEmpty())
        m_savedRevision = revision;
    else if (m_saveError != formerError)
        emit message(u"cannot save the state to %1: %2"_s.arg(m_options.statePath, m_saveError));
    return m_saveError.isEmpty();
}

} // namespace Scheduler::DevDaemon
