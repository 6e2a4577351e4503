#include "records.h"
#include "testmain.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTimeZone>

#include <limits>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

enum class Kind { Text, Bool, Int, EntryId, Date, Object, TextList };

struct FieldCase {
    const char *record;
    const char *key;
    Kind kind;
    QVariant (*read)(const QJsonObject &object);
};

template <typename Record, typename Value> Record recordOf(Value Record::*);

template <auto member> QVariant read(const QJsonObject &object)
{
    using Record = decltype(recordOf(member));
    return QVariant::fromValue(Record::fromJson(object).*member);
}

// Every field of every record, but for the fields of a task type, which are records themselves.
const FieldCase fieldCases[] = {
    {"TaskInfo", "id", Kind::Text, read<&TaskInfo::id>},
    {"TaskInfo", "name", Kind::Text, read<&TaskInfo::name>},
    {"TaskInfo", "type", Kind::Text, read<&TaskInfo::type>},
    {"TaskInfo", "enabled", Kind::Bool, read<&TaskInfo::enabled>},
    {"TaskInfo", "groupId", Kind::Text, read<&TaskInfo::groupId>},
    {"TaskInfo", "scheduleMode", Kind::Text, read<&TaskInfo::scheduleMode>},
    {"TaskInfo", "scheduleCron", Kind::Text, read<&TaskInfo::scheduleCron>},
    {"TaskInfo", "scheduleIntervalSec", Kind::Int, read<&TaskInfo::scheduleIntervalSec>},
    {"TaskInfo", "scheduleStartAt", Kind::Date, read<&TaskInfo::scheduleStartAt>},
    {"TaskInfo", "nextRunAt", Kind::Date, read<&TaskInfo::nextRunAt>},
    {"TaskInfo", "lastRunStatus", Kind::Text, read<&TaskInfo::lastRunStatus>},
    {"TaskInfo", "createdAt", Kind::Date, read<&TaskInfo::createdAt>},
    {"TaskInfo", "updatedAt", Kind::Date, read<&TaskInfo::updatedAt>},
    {"TaskInfo", "paramsJson", Kind::Object, read<&TaskInfo::paramsJson>},
    {"GroupInfo", "id", Kind::Text, read<&GroupInfo::id>},
    {"GroupInfo", "name", Kind::Text, read<&GroupInfo::name>},
    {"GroupInfo", "description", Kind::Text, read<&GroupInfo::description>},
    {"GroupInfo", "color", Kind::Text, read<&GroupInfo::color>},
    {"GroupInfo", "parentId", Kind::Text, read<&GroupInfo::parentId>},
    {"GroupInfo", "taskType", Kind::Text, read<&GroupInfo::taskType>},
    {"GroupInfo", "displayOrder", Kind::Int, read<&GroupInfo::displayOrder>},
    {"GroupInfo", "taskCount", Kind::Int, read<&GroupInfo::taskCount>},
    {"GroupInfo", "enabledTaskCount", Kind::Int, read<&GroupInfo::enabledTaskCount>},
    {"GroupInfo", "createdAt", Kind::Date, read<&GroupInfo::createdAt>},
    {"GroupInfo", "updatedAt", Kind::Date, read<&GroupInfo::updatedAt>},
    {"AuditLogEntry", "id", Kind::EntryId, read<&AuditLogEntry::id>},
    {"AuditLogEntry", "action", Kind::Text, read<&AuditLogEntry::action>},
    {"AuditLogEntry", "taskType", Kind::Text, read<&AuditLogEntry::taskType>},
    {"AuditLogEntry", "entityId", Kind::Text, read<&AuditLogEntry::entityId>},
    {"AuditLogEntry", "entityName", Kind::Text, read<&AuditLogEntry::entityName>},
    {"AuditLogEntry", "operator", Kind::Text, read<&AuditLogEntry::operatorName>},
    {"AuditLogEntry", "result", Kind::Bool, read<&AuditLogEntry::result>},
    {"AuditLogEntry", "message", Kind::Text, read<&AuditLogEntry::message>},
    {"AuditLogEntry", "detailsJson", Kind::Object, read<&AuditLogEntry::detailsJson>},
    {"AuditLogEntry", "createdAt", Kind::Date, read<&AuditLogEntry::createdAt>},
    {"TaskTypeInfo", "type", Kind::Text, read<&TaskTypeInfo::type>},
    {"TaskTypeInfo", "name", Kind::Text, read<&TaskTypeInfo::name>},
    {"TaskTypeInfo", "description", Kind::Text, read<&TaskTypeInfo::description>},
    {"TaskTypeInfo", "category", Kind::Text, read<&TaskTypeInfo::category>},
    {"TaskTypeInfo", "requiresGui", Kind::Bool, read<&TaskTypeInfo::requiresGui>},
    {"TaskFieldInfo", "key", Kind::Text, read<&TaskFieldInfo::key>},
    {"TaskFieldInfo", "type", Kind::Text, read<&TaskFieldInfo::type>},
    {"TaskFieldInfo", "label", Kind::Text, read<&TaskFieldInfo::label>},
    {"TaskFieldInfo", "defaultValue", Kind::Text, read<&TaskFieldInfo::defaultValue>},
    {"TaskFieldInfo", "required", Kind::Bool, read<&TaskFieldInfo::required>},
    {"TaskFieldInfo", "options", Kind::TextList, read<&TaskFieldInfo::options>},
    {"TaskFieldInfo", "visibleIf", Kind::Object, read<&TaskFieldInfo::visibleIf>},
    {"TaskFieldInfo", "placeholder", Kind::Text, read<&TaskFieldInfo::placeholder>},
    {"TaskFieldInfo", "min", Kind::Int, read<&TaskFieldInfo::min>},
    {"TaskFieldInfo", "max", Kind::Int, read<&TaskFieldInfo::max>},
};

QVariant defaultOf(Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return QString();
    case Kind::Bool:
        return false;
    case Kind::Int:
        return 0;
    case Kind::EntryId:
        return qint64(0);
    case Kind::Date:
        return QDateTime();
    case Kind::Object:
        return QJsonObject();
    case Kind::TextList:
        return QStringList();
    }
    return {};
}

struct Sample {
    const char *name;
    QJsonValue value;
    QHash<Kind, QVariant> accepted; ///< by the kinds that take it; all others keep their default
};

const QDateTime sampleDate(QDate(2026, 11, 13), QTime(10, 0), QTimeZone::utc());

QList<Sample> samples()
{
    const QJsonObject object{{u"a"_s, 1}};
    return {
        {"nothing", QJsonValue(QJsonValue::Undefined), {}},
        {"null", QJsonValue(QJsonValue::Null), {}},
        {"true", true, {{Kind::Bool, true}, {Kind::EntryId, qint64(1)}}},
        {"false", false, {}},
        {"7", 7, {{Kind::Int, 7}, {Kind::EntryId, qint64(7)}}},
        {"-7", -7, {{Kind::Int, -7}, {Kind::EntryId, qint64(-7)}}},
        {"7.0", 7.0, {{Kind::Int, 7}, {Kind::EntryId, qint64(7)}}},
        {"7.25", 7.25, {{Kind::EntryId, qint64(7)}}},
        {"beyond int", 3e9, {{Kind::EntryId, qint64(3000000000)}}},
        {"text", u"text"_s, {{Kind::Text, u"text"_s}}},
        {"empty text", QString(), {}},
        {"digits", u"42"_s, {{Kind::Text, u"42"_s}, {Kind::EntryId, qint64(42)}}},
        {"word true", u"true"_s, {{Kind::Text, u"true"_s}}},
        {"date", u"2026-11-13T10:00:00Z"_s, {{Kind::Text, u"2026-11-13T10:00:00Z"_s}, {Kind::Date, sampleDate}}},
        {"array", QJsonArray{u"a"_s, 1}, {{Kind::TextList, QStringList{u"a"_s, u"1"_s}}}},
        {"empty array", QJsonArray(), {}},
        {"object", object, {{Kind::Object, object}}},
        {"empty object", QJsonObject(), {}},
    };
}

/// A value of the right type that no other key of the record has.
QJsonValue distinctValue(const FieldCase &field)
{
    const QString key = QString::fromLatin1(field.key);
    const int number = 1 + int(&field - fieldCases);
    switch (field.kind) {
    case Kind::Text:
        return u"text of "_s + key;
    case Kind::Bool:
        return true;
    case Kind::Int:
    case Kind::EntryId:
        return number;
    case Kind::Date:
        return sampleDate.addDays(number).toString(Qt::ISODate);
    case Kind::Object:
        return QJsonObject{{key, number}};
    case Kind::TextList:
        return QJsonArray{key};
    }
    return {};
}

QVariant toField(const QJsonValue &value, Kind kind)
{
    if (kind == Kind::Date)
        return QDateTime::fromString(value.toString(), Qt::ISODate);
    if (kind == Kind::Object)
        return value.toObject();
    return kind == Kind::TextList ? value.toVariant().toStringList() : value.toVariant();
}

} // namespace

class TestRecords : public QObject {
    Q_OBJECT

private slots:
    void everyFieldTakesItsOwnJsonTypeOnly_data();
    void everyFieldTakesItsOwnJsonTypeOnly();
    void everyKeyFillsItsOwnFieldAmongForeignKeys_data();
    void everyKeyFillsItsOwnFieldAmongForeignKeys();
    void fieldsOfTaskTypeAreReadInOrderWithoutWhatIsNoObject();
    void fieldsOfTaskTypeAreEmptyUnlessAnArray_data();
    void fieldsOfTaskTypeAreEmptyUnlessAnArray();
    void optionsOfOtherTypesBecomeTheirText();
    void auditIdKeepsAllDigits_data();
    void auditIdKeepsAllDigits();
    void dateInAnotherFormIsInvalid();
    void valuesOutsideAsciiArrive();
};

void TestRecords::everyFieldTakesItsOwnJsonTypeOnly_data()
{
    QTest::addColumn<qsizetype>("field");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QVariant>("expected");
    const QList<Sample> all = samples();
    for (const FieldCase &field : fieldCases) {
        for (const Sample &sample : all)
            QTest::addRow("%s.%s = %s", field.record, field.key, sample.name)
                << qsizetype(&field - fieldCases) << sample.value
                << sample.accepted.value(field.kind, defaultOf(field.kind));
    }
}

void TestRecords::everyFieldTakesItsOwnJsonTypeOnly()
{
    QFETCH(const qsizetype, field);
    QFETCH(const QJsonValue, value);
    QFETCH(const QVariant, expected);
    const FieldCase &tested = fieldCases[field];
    QJsonObject object;
    if (!value.isUndefined())
        object.insert(QLatin1StringView(tested.key), value);

    for (const FieldCase &other : fieldCases) {
        if (QByteArrayView(other.record) != tested.record)
            continue;
        const QVariant actual = other.read(object);
        QVERIFY2(actual == (&other == &tested ? expected : defaultOf(other.kind)), other.key);
    }
}

void TestRecords::everyKeyFillsItsOwnFieldAmongForeignKeys_data()
{
    QTest::addColumn<QByteArray>("record");
    for (const char *record : {"TaskInfo", "GroupInfo", "AuditLogEntry", "TaskTypeInfo", "TaskFieldInfo"})
        QTest::newRow(record) << QByteArray(record);
}

void TestRecords::everyKeyFillsItsOwnFieldAmongForeignKeys()
{
    QFETCH(const QByteArray, record);
    QJsonObject object;
    for (const char16_t *foreign : {u"", u"!", u"A", u"zz", u"ä", u"\U0001F600", u"\uFFFD"})
        object.insert(QString::fromUtf16(foreign), u"foreign"_s);
    for (const FieldCase &field : fieldCases) {
        const QString key = QString::fromLatin1(field.key);
        // Keys that stand just before and just behind the real one.
        object.insert(key.chopped(1), u"foreign"_s);
        object.insert(key + u'a', u"foreign"_s);
        object.insert(key.toUpper(), u"foreign"_s);
    }
    for (const FieldCase &field : fieldCases)
        object.remove(QLatin1StringView(field.key));
    for (const FieldCase &field : fieldCases)
        QCOMPARE(field.read(object), defaultOf(field.kind));

    for (const FieldCase &field : fieldCases) {
        if (field.record == record)
            object.insert(QLatin1StringView(field.key), distinctValue(field));
    }
    for (const FieldCase &field : fieldCases) {
        if (field.record == record)
            QVERIFY2(field.read(object) == toField(distinctValue(field), field.kind), field.key);
    }
}

void TestRecords::fieldsOfTaskTypeAreReadInOrderWithoutWhatIsNoObject()
{
    const QJsonArray fields{1,
                            QJsonObject{{u"key"_s, u"b"_s}, {u"max"_s, 9}},
                            u"text"_s,
                            QJsonArray{QJsonObject{{u"key"_s, u"c"_s}}},
                            QJsonValue(),
                            QJsonObject(),
                            QJsonObject{{u"key"_s, u"a"_s}}};
    const TaskTypeInfo type = TaskTypeInfo::fromJson({{u"type"_s, u"t"_s}, {u"fields"_s, fields}});
    QCOMPARE(type.type, u"t"_s);
    QCOMPARE(type.fields.size(), 3);
    QCOMPARE(type.fields.at(0).key, u"b"_s);
    QCOMPARE(type.fields.at(0).max, 9);
    QCOMPARE(type.fields.at(1).key, QString());
    QCOMPARE(type.fields.at(2).key, u"a"_s);

    QCOMPARE(TaskTypeInfo::fromJson({{u"fields"_s, QJsonArray{1, QJsonObject()}}}).fields.size(), 1);
}

void TestRecords::fieldsOfTaskTypeAreEmptyUnlessAnArray_data()
{
    QTest::addColumn<QJsonObject>("object");
    for (const Sample &sample : samples()) {
        if (!sample.value.isArray() && !sample.value.isUndefined())
            QTest::newRow(sample.name) << QJsonObject{{u"fields"_s, sample.value}};
    }
    QTest::newRow("missing") << QJsonObject();
    QTest::newRow("empty") << QJsonObject{{u"fields"_s, QJsonArray()}};
    QTest::newRow("object with a key") << QJsonObject{{u"fields"_s, QJsonObject{{u"0"_s, QJsonObject()}}}};
}

void TestRecords::fieldsOfTaskTypeAreEmptyUnlessAnArray()
{
    QFETCH(const QJsonObject, object);
    QVERIFY(TaskTypeInfo::fromJson(object).fields.isEmpty());
}

void TestRecords::optionsOfOtherTypesBecomeTheirText()
{
    const QJsonArray options{1,   u"a"_s,    QJsonValue(),        true,
                             2.5, QString(), qint64(30000000000), QJsonObject{{u"k"_s, 1}}};
    const QStringList expected{u"1"_s, u"a"_s, QString(), u"true"_s, u"2.5"_s, QString(), u"30000000000"_s, QString()};
    QCOMPARE(TaskFieldInfo::fromJson({{u"options"_s, options}}).options, expected);
}

void TestRecords::auditIdKeepsAllDigits_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<qint64>("id");
    QTest::newRow("number") << QByteArray("42") << qint64(42);
    QTest::newRow("text") << QByteArray("\"42\"") << qint64(42);
    QTest::newRow("negative text") << QByteArray("\"-42\"") << qint64(-42);
    QTest::newRow("largest number") << QByteArray("9223372036854775807") << std::numeric_limits<qint64>::max();
    QTest::newRow("largest text") << QByteArray("\"9223372036854775807\"") << std::numeric_limits<qint64>::max();
    QTest::newRow("text beyond") << QByteArray("\"9223372036854775808\"") << qint64(0);
    QTest::newRow("no number") << QByteArray("\"42a\"") << qint64(0);
}

void TestRecords::auditIdKeepsAllDigits()
{
    QFETCH(const QByteArray, json);
    QFETCH(const qint64, id);
    const QJsonObject object = QJsonDocument::fromJson("{\"id\":" + json + '}').object();
    QVERIFY(object.contains("id"_L1));
    QCOMPARE(AuditLogEntry::fromJson(object).id, id);
}

void TestRecords::dateInAnotherFormIsInvalid()
{
    QVERIFY(TaskInfo::fromJson({{u"nextRunAt"_s, u"2026-11-13T10:00:00Z"_s}}).nextRunAt.isValid());
    QVERIFY(!TaskInfo::fromJson({{u"nextRunAt"_s, u"13.11.2026"_s}}).nextRunAt.isValid());
}

void TestRecords::valuesOutsideAsciiArrive()
{
    const QString name = u"Überwachung – 録画 🎬 <b>%1</b>"_s;
    QCOMPARE(TaskInfo::fromJson({{u"name"_s, name}}).name, name);
}

ORVEL_TEST_MAIN(QCoreApplication, TestRecords)
#include "tst_records.moc"
