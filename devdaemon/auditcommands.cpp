#include "daemoncommand.h"

#include "daemonresponse.h"
#include "daemontime.h"

#include <algorithm>

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

/// The newest entries up to the limit, in either order.
QJsonArray collect(const QList<AuditEntry> &audit, const AuditQuery &query, int limit, bool ascending,
                   const QTimeZone &zone)
{
    QList<QJsonObject> newestFirst;
    for (auto entry = audit.crbegin(); entry != audit.crend() && newestFirst.size() < limit; ++entry) {
        if (query.covers(*entry))
            newestFirst.append(auditEntryToWire(*entry, zone));
    }
    if (ascending)
        std::reverse(newestFirst.begin(), newestFirst.end());
    QJsonArray logs;
    for (const QJsonObject &entry : newestFirst)
        logs.append(entry);
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
    const bool ascending = payload.value("ascending"_L1).toBool();
    return success({{u"logs"_s, collect(context.store.state().audit, query, limit, ascending, zone)}});
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
