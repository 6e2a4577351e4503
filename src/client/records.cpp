#include "records.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonValue>
#include <QTime>
#include <QVariant>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr qint64 msecsPerDay = 24 * 60 * 60 * 1000;

/// The number that stands in the given digits, or -1 when one of them is none.
int number(QStringView digits)
{
    int result = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return -1;
        result = result * 10 + (digit.unicode() - u'0');
    }
    return result;
}

/// Reads "yyyy-MM-ddTHH:mm:ssZ", with or without ".zzz", several times faster than QDateTime does: a list of tasks
/// holds up to four dates a task, mostly of this form. Gives an invalid date for every other text.
QDateTime fromPlainUtc(QStringView text)
{
    const bool withMsecs = text.size() == 24 && text[19] == u'.';
    if ((!withMsecs && text.size() != 20) || text.back() != u'Z' || text[4] != u'-' || text[7] != u'-' ||
        text[10] != u'T' || text[13] != u':' || text[16] != u':')
        return {};

    const int year = number(text.sliced(0, 4));
    const QDate date(year, number(text.sliced(5, 2)), number(text.sliced(8, 2)));
    const QTime time(number(text.sliced(11, 2)), number(text.sliced(14, 2)), number(text.sliced(17, 2)),
                     withMsecs ? number(text.sliced(20, 3)) : 0);
    if (year < 0 || !date.isValid() || !time.isValid())
        return {};

    // Counting on from a date in UTC needs no time zone look-up, and no constructor that newer Qt versions deprecate.
    static const QDateTime epoch = QDateTime::fromString(u"1970-01-01T00:00:00Z"_s, Qt::ISODate);
    static const qint64 epochDay = epoch.date().toJulianDay();
    return epoch.addMSecs((date.toJulianDay() - epochDay) * msecsPerDay + time.msecsSinceStartOfDay());
}

void take(QString &field, QJsonValueConstRef value)
{
    field = value.toString();
}

void take(bool &field, QJsonValueConstRef value)
{
    field = value.toBool();
}

void take(int &field, QJsonValueConstRef value)
{
    field = value.toInt();
}

/// The one integer that may come as a string, too.
void take(qint64 &field, QJsonValueConstRef value)
{
    field = value.toVariant().toLongLong();
}

void take(QDateTime &field, QJsonValueConstRef value)
{
    const QString text = value.toString();
    field = fromPlainUtc(text);
    if (!field.isValid())
        field = QDateTime::fromString(text, Qt::ISODate);
}

void take(QJsonObject &field, QJsonValueConstRef value)
{
    field = value.toObject();
}

/// Elements of other kinds than strings are kept as their text, so that a null is an empty choice.
void take(QStringList &field, QJsonValueConstRef value)
{
    const QJsonArray array = value.toArray();
    field.reserve(array.size());
    for (const QJsonValueConstRef element : array)
        field.append(element.isString() ? element.toString() : element.toVariant().toString());
}

/// Unlike the records of a list response, elements that are no objects are left out.
void take(QList<TaskFieldInfo> &field, QJsonValueConstRef value)
{
    const QJsonArray array = value.toArray();
    field.reserve(array.size());
    for (const QJsonValueConstRef element : array) {
        if (element.isObject())
            field.append(TaskFieldInfo::fromJson(element.toObject()));
    }
}

/// One key of a record and how its value gets into the record.
template <typename Record> struct Field {
    std::u16string_view key;
    void (*read)(Record &record, QJsonValueConstRef value);
};

template <auto member, typename Record> void into(Record &record, QJsonValueConstRef value)
{
    take(record.*member, value);
}

template <typename Record, std::size_t size> constexpr bool inKeyOrder(const Field<Record> (&fields)[size])
{
    return std::ranges::is_sorted(fields, {}, &Field<Record>::key);
}

/// Walks members and fields side by side, which works because QJsonObject keeps its members in the order of their keys.
/// It takes little more than half the time of one look-up per field.
template <typename Record, std::size_t size>
Record readRecord(const QJsonObject &object, const Field<Record> (&fields)[size])
{
    Record record;
    auto field = std::begin(fields);
    const auto lastField = std::end(fields);
    const auto lastMember = object.constEnd();
    for (auto member = object.constBegin(); member != lastMember; ++member) {
        const QString key = member.key();
        const std::u16string_view name(QStringView(key).utf16(), std::size_t(key.size()));
        while (field != lastField && field->key < name)
            ++field;
        if (field == lastField)
            break;
        if (field->key == name) {
            field->read(record, member.value());
            ++field;
        }
    }
    return record;
}

// Each table is in the order of its keys.
// clang-format off

constexpr Field<TaskInfo> taskFields[] = {
    {u"createdAt", into<&TaskInfo::createdAt>},
    {u"enabled", into<&TaskInfo::enabled>},
    {u"groupId", into<&TaskInfo::groupId>},
    {u"id", into<&TaskInfo::id>},
    {u"lastRunStatus", into<&TaskInfo::lastRunStatus>},
    {u"name", into<&TaskInfo::name>},
    {u"nextRunAt", into<&TaskInfo::nextRunAt>},
    {u"paramsJson", into<&TaskInfo::paramsJson>},
    {u"scheduleCron", into<&TaskInfo::scheduleCron>},
    {u"scheduleIntervalSec", into<&TaskInfo::scheduleIntervalSec>},
    {u"scheduleMode", into<&TaskInfo::scheduleMode>},
    {u"scheduleStartAt", into<&TaskInfo::scheduleStartAt>},
    {u"type", into<&TaskInfo::type>},
    {u"updatedAt", into<&TaskInfo::updatedAt>},
};
static_assert(inKeyOrder(taskFields));

constexpr Field<GroupInfo> groupFields[] = {
    {u"color", into<&GroupInfo::color>},
    {u"createdAt", into<&GroupInfo::createdAt>},
    {u"description", into<&GroupInfo::description>},
    {u"displayOrder", into<&GroupInfo::displayOrder>},
    {u"enabledTaskCount", into<&GroupInfo::enabledTaskCount>},
    {u"id", into<&GroupInfo::id>},
    {u"name", into<&GroupInfo::name>},
    {u"parentId", into<&GroupInfo::parentId>},
    {u"taskCount", into<&GroupInfo::taskCount>},
    {u"taskType", into<&GroupInfo::taskType>},
    {u"updatedAt", into<&GroupInfo::updatedAt>},
};
static_assert(inKeyOrder(groupFields));

constexpr Field<AuditLogEntry> auditFields[] = {
    {u"action", into<&AuditLogEntry::action>},
    {u"createdAt", into<&AuditLogEntry::createdAt>},
    {u"detailsJson", into<&AuditLogEntry::detailsJson>},
    {u"entityId", into<&AuditLogEntry::entityId>},
    {u"entityName", into<&AuditLogEntry::entityName>},
    {u"id", into<&AuditLogEntry::id>},
    {u"message", into<&AuditLogEntry::message>},
    {u"operator", into<&AuditLogEntry::operatorName>},
    {u"result", into<&AuditLogEntry::result>},
    {u"taskType", into<&AuditLogEntry::taskType>},
};
static_assert(inKeyOrder(auditFields));

constexpr Field<TaskFieldInfo> parameterFields[] = {
    {u"defaultValue", into<&TaskFieldInfo::defaultValue>},
    {u"key", into<&TaskFieldInfo::key>},
    {u"label", into<&TaskFieldInfo::label>},
    {u"max", into<&TaskFieldInfo::max>},
    {u"min", into<&TaskFieldInfo::min>},
    {u"options", into<&TaskFieldInfo::options>},
    {u"placeholder", into<&TaskFieldInfo::placeholder>},
    {u"required", into<&TaskFieldInfo::required>},
    {u"type", into<&TaskFieldInfo::type>},
    {u"visibleIf", into<&TaskFieldInfo::visibleIf>},
};
static_assert(inKeyOrder(parameterFields));

constexpr Field<TaskTypeInfo> typeFields[] = {
    {u"category", into<&TaskTypeInfo::category>},
    {u"description", into<&TaskTypeInfo::description>},
    {u"fields", into<&TaskTypeInfo::fields>},
    {u"name", into<&TaskTypeInfo::name>},
    {u"requiresGui", into<&TaskTypeInfo::requiresGui>},
    {u"type", into<&TaskTypeInfo::type>},
};
static_assert(inKeyOrder(typeFields));
// clang-format on

} // namespace

TaskInfo TaskInfo::fromJson(const QJsonObject &object)
{
    return readRecord(object, taskFields);
}

GroupInfo GroupInfo::fromJson(const QJsonObject &object)
{
    return readRecord(object, groupFields);
}

AuditLogEntry AuditLogEntry::fromJson(const QJsonObject &object)
{
    return readRecord(object, auditFields);
}

TaskFieldInfo TaskFieldInfo::fromJson(const QJsonObject &object)
{
    return readRecord(object, parameterFields);
}

TaskTypeInfo TaskTypeInfo::fromJson(const QJsonObject &object)
{
    return readRecord(object, typeFields);
}

} // namespace Scheduler
