#include "defects.h"

#include "wireprotocol.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

Defect spoils(const QString &rule, const QString &command,
              const std::function<SpoilingProxy::Answer(const QJsonObject &response)> &spoil)
{
    return {rule, {}, [rule, command, spoil](const SpoilingProxy::Exchange &exchange) -> SpoilingProxy::Answer {
                const bool meant =
                    isOf(rule, exchange.request) && exchange.request.value("cmd"_L1).toString() == command;
                return meant ? spoil(exchange.response) : QList{exchange.response};
            }};
}

/// Lets a function work on the data of a response.
Change onData(const std::function<void(QJsonObject &data)> &work)
{
    return [work](QJsonObject &response) {
        QJsonObject data = response.value("data"_L1).toObject();
        work(data);
        response.insert(u"data"_s, data);
    };
}

Change inSome(const QString &list, const QString &key, const QJsonValue &value, qsizetype count)
{
    return onData([=](QJsonObject &data) {
        QJsonArray records = data.value(list).toArray();
        for (qsizetype place = 0; place < qMin(count, records.size()); ++place) {
            QJsonObject record = records.at(place).toObject();
            record.insert(key, value);
            records.replace(place, record);
        }
        data.insert(list, records);
    });
}

} // namespace

QList<Defect> defects()
{
    return connectionDefects() + groupDefects() + taskDefects();
}

Defect ignores(const QString &rule, const QString &command)
{
    return {rule,
            [rule, command](const QJsonObject &request) {
                return isOf(rule, request) && request.value("cmd"_L1).toString() == command;
            },
            {}};
}

Defect changes(const QString &rule, const QString &command, const Change &change)
{
    return spoils(rule, command, [change](QJsonObject response) {
        change(response);
        return QList{response};
    });
}

Defect hangsUp(const QString &rule, const QString &command)
{
    return spoils(rule, command, [](const QJsonObject &) { return std::nullopt; });
}

Defect isSilent(const QString &rule, const QString &command)
{
    return spoils(rule, command, [](const QJsonObject &) { return QList<QJsonObject>(); });
}

Change refusing()
{
    return [](QJsonObject &response) {
        const QJsonValue id = response.value("id"_L1);
        response = Scheduler::errorResponse(u"NO"_s, u"Not this daemon"_s);
        response.insert(u"id"_s, id);
    };
}

Change accepting()
{
    return [](QJsonObject &response) {
        response = {{u"id"_s, response.value("id"_L1)}, {u"ok"_s, true}, {u"data"_s, QJsonObject()}};
    };
}

Change answering(const QString &key, const QJsonValue &value)
{
    return onData([key, value](QJsonObject &data) { data.insert(key, value); });
}

Change inObject(const QString &object, const QString &key, const QJsonValue &value)
{
    return onData([=](QJsonObject &data) {
        QJsonObject record = data.value(object).toObject();
        record.insert(key, value);
        data.insert(object, record);
    });
}

Change inEach(const QString &list, const QString &key, const QJsonValue &value)
{
    return inSome(list, key, value, std::numeric_limits<qsizetype>::max());
}

Change inFirst(const QString &list, const QString &key, const QJsonValue &value)
{
    return inSome(list, key, value, 1);
}

bool isOf(const QString &rule, const QJsonObject &request)
{
    return request.value("id"_L1).toString().startsWith(u"req_%1_"_s.arg(rule));
}

} // namespace TestSupport
