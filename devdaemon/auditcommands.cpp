#include "daemoncommand.h"

#include "daemonresponse.h"
#include "daemontime.h"

namespace Scheduler::DevDaemon {

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultLimit = 100;

struct AuditQuery {
    QString taskType;
    QDateTime from; ///< inclusive, no bound when invalid
    QDateTime to;   ///< inclusive, no bound when invalid

    [[nodiscard]] bool covers(const AuditEntry &entry) const
    {
        return typeCovers(taskType, entry.taskType) && (!from.isValid() || entry.createdAt >= from) &&
               (!to.isValid() || entry.createdAt <= to);
    }
};

template <typename Iterator>
QJsonArray collect(Iterator entry, Iterator end, const AuditQuery &query, int limit, const QTimeZone &zone)
{
    QJsonArray logs;
    for (; entry != end && logs.size() < limit; ++entry) {
        if (query.covers(*entry))
            logs.append(auditEntryToWire(*entry, zone));
    }
    return logs;
}

QJsonObject listAudit(CommandContext &context, const QJsonObject &payload)
{
    const QTimeZone &zone = context.settings.zone;
    const AuditQuery query{payload.value("taskType"_L1).toString(),
                           utcFromIsoText(payload.value("from"_L1).toString(), zone),
                           utcFromIsoText(payload.value("to"_L1).toString(), zone)};
    if ((payload.contains("from"_L1) && !query.from.isValid()) || (payload.contains("to"_L1) && !query.to.isValid()))
        return invalidPayload(u"'from' and 'to' must be ISO 8601 dates"_s);

    const int askedLimit = payload.value("limit"_L1).toInt();
    const int limit = askedLimit > 0 ? askedLimit : defaultLimit;
    const QList<AuditEntry> &audit = context.store.state().audit;
    const bool ascending = payload.value("ascending"_L1).toBool();
    return success({{u"logs"_s, ascending ? collect(audit.cbegin(), audit.cend(), query, limit, zone)
                                          : collect(audit.crbegin(), audit.crend(), query, limit, zone)}});
}

} // namespace

QList<Command> auditCommands()
{
    return {{u"audit.list"_s,
             {{"taskType"_L1},
              {"limit"_L1, JsonKind::WholeNumber, false},
              {"ascending"_L1, JsonKind::Flag, false},
              {"from"_L1, JsonKind::Text, false},
              {"to"_L1, JsonKind::Text, false}},
             &listAudit}};
}

} // namespace Scheduler::DevDaemon
