#include "answerform.h"
#include "mcscheckbench.h"

#include <QDateTime>

#include <algorithm>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

namespace {

/// The entries for a query in the form of the manager's, with changes.
QJsonArray entries(MCsCheckBench &bench, const QJsonObject &changes = {})
{
    // What is made leaves something in the trail to look at.
    bench.makeTask();
    QJsonObject query{{u"taskType"_s, bench.workingType()}, {u"limit"_s, 100}, {u"ascending"_s, false}};
    for (auto change = changes.begin(); change != changes.end(); ++change)
        query.insert(change.key(), change.value());
    const QJsonValue logs = bench.succeed(u"audit.list"_s, query).value("logs"_L1);
    bench.expect(logs.isArray(), u"'logs' to be an array"_s, logs);
    return logs.toArray();
}

QDateTime timeOf(const QJsonValue &entry)
{
    return QDateTime::fromString(entry["createdAt"_L1].toString(), Qt::ISODate);
}

bool isEarlier(const QJsonValue &left, const QJsonValue &right)
{
    return timeOf(left) < timeOf(right);
}

bool isLater(const QJsonValue &left, const QJsonValue &right)
{
    return timeOf(left) > timeOf(right);
}

void list(MCsCheckBench &bench)
{
    const QString problem = listProblem(entries(bench), auditMembers());
    bench.expect(problem.isEmpty(), u"audit entries in their form"_s, problem);
}

void limit(MCsCheckBench &bench)
{
    bench.makeTask();
    const QJsonArray logs = entries(bench, {{u"limit"_s, 1}});
    bench.expect(logs.size() <= 1, u"at most 1 entry"_s, u"%1"_s.arg(logs.size()));
}

void newestFirst(MCsCheckBench &bench)
{
    const QJsonArray logs = entries(bench);
    bench.expect(std::is_sorted(logs.begin(), logs.end(), &isLater), u"no entry behind an earlier one"_s, logs);
}

void oldestFirst(MCsCheckBench &bench)
{
    const QJsonArray logs = entries(bench, {{u"ascending"_s, true}});
    bench.expect(std::is_sorted(logs.begin(), logs.end(), &isEarlier), u"no entry behind a later one"_s, logs);
}

void from(MCsCheckBench &bench)
{
    const QJsonArray logs = entries(bench, {{u"from"_s, u"2200-01-01T00:00:00"_s}});
    bench.expect(logs.isEmpty(), u"no entry before 'from'"_s, logs);
}

void to(MCsCheckBench &bench)
{
    const QJsonArray logs = entries(bench, {{u"to"_s, u"1980-01-01T00:00:00"_s}});
    bench.expect(logs.isEmpty(), u"no entry after 'to'"_s, logs);
}

} // namespace

QList<Rule> auditRules()
{
    const QString command = u"audit.list"_s;
    return {
        {command, command, u"Audit entries are listed, each in its form."_s, &list},
        {u"audit.list.limit"_s, command, u"Not more than `limit` entries are listed."_s, &limit},
        {u"audit.list.newest-first"_s, command, u"The newest entries come first when `ascending` is false."_s,
         &newestFirst},
        {u"audit.list.oldest-first"_s, command, u"The oldest come first when `ascending` is true."_s, &oldestFirst},
        {u"audit.list.from"_s, command, u"No entry from before `from` is listed."_s, &from},
        {u"audit.list.to"_s, command, u"No entry from after `to` is listed."_s, &to},
    };
}

} // namespace Scheduler::ProtocolCheck
