#include "mcsprotocolcheck.h"

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

MCsProtocolCheck::MCsProtocolCheck(const CheckSettings &settings, const Output &report, const Output &complain)
    : m_settings(settings)
    , m_report(report)
    , m_complain(complain)
    , m_bench(settings)
{
}

ExitStatus MCsProtocolCheck::run()
{
    if (!start())
        return m_settings.interrupted() ? Interrupted : NotChecked;
    const QList<Rule> rules = allRules();
    for (const Rule &rule : rules)
        tryRule(rule);
    const bool tidy = removeAll();
    reportCounts();
    if (m_settings.interrupted())
        return Interrupted;
    return m_differing == 0 && m_untried == 0 && tidy ? AllHold : NotAllHold;
}

bool MCsProtocolCheck::start()
{
    const std::optional<QString> problem = m_bench.open();
    if (problem) {
        m_complain(u"no daemon at %1: %2"_s.arg(m_settings.endpoint, *problem));
        return false;
    }
    m_bench.begin(u"start"_s);
    const QJsonObject answer = m_bench.registerClient().value_or(QJsonObject());
    if (answer["error"_L1]["code"_L1].toString() != "CLIENT_TYPE_ALREADY_CONNECTED"_L1)
        return true;
    m_complain(u"the type %1 is taken: another client of it is connected; end it, or choose another type with "
               "--task-type"_s.arg(m_settings.taskType));
    return false;
}

void MCsProtocolCheck::tryRule(const Rule &rule)
{
    m_bench.begin(rule.name);
    const MCsCheckLink::Frame &registration = m_bench.registration();
    const bool registered = registration && registration->value("ok"_L1) == QJsonValue(true);
    if (!registered && rule.name != "client.register"_L1)
        m_bench.notTried(u"this client could not be registered"_s);
    if (m_bench.going())
        rule.check(m_bench);
    report(rule, m_bench.outcome());
}

void MCsProtocolCheck::report(const Rule &rule, const Outcome &outcome)
{
    switch (outcome.kind) {
    case Outcome::Kind::Holds:
        ++m_holding;
        m_report(u"holds: %1"_s.arg(rule.name));
        break;
    case Outcome::Kind::Differs:
        ++m_differing;
        m_report(u"differs: %1: %2"_s.arg(rule.name, outcome.detail));
        break;
    case Outcome::Kind::NotTried:
        ++m_untried;
        m_report(u"not tried: %1: %2"_s.arg(rule.name, outcome.detail));
        break;
    }
}

void MCsProtocolCheck::reportCounts()
{
    m_report(u"%1 of %2 rules hold, %3 differ, %4 were not tried"_s.arg(
        QString::number(m_holding), QString::number(m_holding + m_differing + m_untried), QString::number(m_differing),
        QString::number(m_untried)));
}

bool MCsProtocolCheck::removeAll()
{
    const QStringList left = m_bench.removeAll();
    for (const QString &id : left)
        m_complain(u"could not be removed: "_s + id);
    return left.isEmpty();
}

} // namespace Scheduler::ProtocolCheck
