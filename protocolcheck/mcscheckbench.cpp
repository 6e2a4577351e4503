#include "mcscheckbench.h"

#include "jsontext.h"
#include "wireprotocol.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QUuid>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

constexpr int attemptIntervalMs = 20;

bool succeeded(const MCsCheckLink::Frame &answer)
{
    return answer && answer->value("ok"_L1) == QJsonValue(true);
}

void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

MCsCheckBench::MCsCheckBench(const CheckSettings &settings)
    : m_settings(settings)
    , m_link(newLink())
    , m_mark(u"orvel-protocol-check "_s + QUuid::createUuid().toString(QUuid::Id128).first(12))
{
}

MCsCheckBench::~MCsCheckBench() = default;

std::optional<QString> MCsCheckBench::open()
{
    return m_link->open(m_settings.endpoint);
}

MCsCheckLink::Frame MCsCheckBench::registerClient()
{
    m_registration = exchange(u"client.register"_s, {{u"clientType"_s, m_settings.taskType}});
    return m_registration;
}

const MCsCheckLink::Frame &MCsCheckBench::registration() const
{
    return m_registration;
}

bool MCsCheckBench::comeBack(int withinMs)
{
    m_link->close();
    const QDeadlineTimer deadline(withinMs);
    do {
        m_strays += m_link->strays();
        m_malformed += m_link->malformed();
        m_link = newLink();
        if (!open() && succeeded(registerClient()))
            return true;
        pause(attemptIntervalMs);
    } while (!deadline.hasExpired() && !wasInterrupted());
    return false;
}

void MCsCheckBench::begin(const QString &ruleName)
{
    m_ruleName = ruleName;
    m_requestCount = 0;
    m_outcome = {};
    if (wasInterrupted())
        notTried(u"interrupted"_s);
    else if (!m_link->isOpen() && !comeBack(m_settings.typeFreeMs))
        notTried(u"the connection has ended, and there is no new one"_s);
}

const Outcome &MCsCheckBench::outcome() const
{
    return m_outcome;
}

bool MCsCheckBench::going() const
{
    return m_outcome.kind == Outcome::Kind::Holds;
}

void MCsCheckBench::notTried(const QString &why)
{
    decide(Outcome::Kind::NotTried, why);
}

void MCsCheckBench::expect(bool fits, const QString &expected, const QString &came)
{
    if (!fits)
        decide(Outcome::Kind::Differs, u"expected %1; came %2"_s.arg(expected, came));
}

void MCsCheckBench::expect(bool fits, const QString &expected, const QJsonValue &came)
{
    // A long list is turned into text only where somebody reads it.
    if (!fits)
        expect(false, expected, textOf(came));
}

void MCsCheckBench::expectMembers(const QJsonObject &expected, const QJsonObject &came)
{
    for (auto member = expected.begin(); member != expected.end(); ++member) {
        const QJsonValue value = came.value(member.key());
        expect(value == member.value(), u"'%1' to be %2"_s.arg(member.key(), textOf(member.value())), value);
    }
}

QJsonObject MCsCheckBench::ask(const QString &command, const QJsonObject &payload)
{
    if (!going())
        return {};
    const MCsCheckLink::Frame answer = exchange(command, payload);
    if (!answer)
        reportSilence(command, *m_link);
    return answer.value_or(QJsonObject());
}

QJsonObject MCsCheckBench::succeed(const QString &command, const QJsonObject &payload)
{
    const QJsonObject answer = ask(command, payload);
    expect(succeeded(answer), u"%1 to succeed"_s.arg(command), answer);
    return answer.value("data"_L1).toObject();
}

QJsonObject MCsCheckBench::prepare(const QString &command, const QJsonObject &payload)
{
    if (!going())
        return {};
    const MCsCheckLink::Frame answer = exchange(command, payload);
    if (!succeeded(answer))
        notTried(wasInterrupted() ? u"interrupted"_s
                                  : u"it needs %1, which was answered with %2"_s.arg(command, answer ? textOf(*answer)
                                                                                                     : u"nothing"_s));
    return answer.value_or(QJsonObject()).value("data"_L1).toObject();
}

void MCsCheckBench::refused(const QString &command, const QJsonObject &payload)
{
    const QJsonObject answer = ask(command, payload);
    expect(answer.value("ok"_L1) == QJsonValue(false), u"%1 to be refused"_s.arg(command), answer);
}

QJsonObject MCsCheckBench::askRaw(const QByteArray &bytes, const QString &id)
{
    return answerOn(*m_link, bytes, id);
}

QJsonObject MCsCheckBench::answerOn(MCsCheckLink &link, const QByteArray &bytes, const QString &id)
{
    if (!going())
        return {};
    link.send(bytes);
    const MCsCheckLink::Frame answer = link.answerTo(id, m_settings.answerMs);
    if (!answer)
        reportSilence(u"the request '%1'"_s.arg(id), link);
    return answer.value_or(QJsonObject());
}

QString MCsCheckBench::newId()
{
    return u"req_%1_%2"_s.arg(m_ruleName, QString::number(++m_requestCount));
}

MCsCheckLink &MCsCheckBench::link()
{
    return *m_link;
}

std::unique_ptr<MCsCheckLink> MCsCheckBench::secondLink()
{
    std::unique_ptr<MCsCheckLink> second = newLink();
    const std::optional<QString> problem = second->open(m_settings.endpoint);
    if (!problem)
        return second;
    expect(false, u"a second connection"_s, *problem);
    return nullptr;
}

const CheckSettings &MCsCheckBench::settings() const
{
    return m_settings;
}

QStringList MCsCheckBench::strays() const
{
    return m_strays + m_link->strays();
}

QStringList MCsCheckBench::malformed() const
{
    return m_malformed + m_link->malformed();
}

MCsCheckLink::Frame MCsCheckBench::exchange(const QString &command, const QJsonObject &payload)
{
    const QString id = newId();
    m_link->send(encodeFrame({{u"id"_s, id}, {u"cmd"_s, command}, {u"payload"_s, payload}}));
    return m_link->answerTo(id, m_settings.answerMs);
}

std::unique_ptr<MCsCheckLink> MCsCheckBench::newLink() const
{
    return std::make_unique<MCsCheckLink>([this] { return wasInterrupted(); });
}

bool MCsCheckBench::wasInterrupted() const
{
    return !m_cleaning && m_settings.interrupted();
}

void MCsCheckBench::decide(Outcome::Kind kind, const QString &detail)
{
    if (going())
        m_outcome = {kind, detail};
}

void MCsCheckBench::reportSilence(const QString &of, const MCsCheckLink &link)
{
    if (wasInterrupted())
        notTried(u"interrupted"_s);
    expect(false, u"an answer to %1"_s.arg(of),
           link.isOpen() ? u"nothing within %1 ms"_s.arg(m_settings.answerMs) : u"the end of the connection"_s);
}

} // namespace Scheduler::ProtocolCheck
