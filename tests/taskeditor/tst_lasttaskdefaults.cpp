#include "formfields.h"
#include "mcslasttaskdefaults.h"
#include "platform.h"
#include "testmain.h"

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace FormFields;

namespace {

const QString screenType = u"task_type.screen_record"_s;
const QString audioType = u"task_type.audio_record"_s;
const QString screenGroup = u"LastTaskDefaults/task_type.screen_record"_s;

/// The settings file, opened anew.
QMap<QString, QVariant> settingsFile()
{
    const QSettings settings(u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s);
    QMap<QString, QVariant> content;
    for (const QString &key : settings.allKeys())
        content.insert(key, settings.value(key));
    return content;
}

/// What the file holds for the screen recorder.
QString stored(const QString &key)
{
    return settingsFile().value(screenGroup + u'/' + key).toString();
}

QJsonObject document(const char *paramsJson, const QString &groupId = u"group-1"_s)
{
    return {{u"name"_s, u"Task"_s},
            {u"type"_s, screenType},
            {u"enabled"_s, true},
            {u"groupId"_s, groupId},
            {u"programName"_s, u"P"_s},
            {u"targetProgram"_s, u"/p"_s},
            {u"paramsJson"_s, object(paramsJson)}};
}

const char *const fullParams = R"({
    "startRecordingOn": {"mode": "EveryWeek", "weeklyDays": ["Mon", "Sun"], "weeklyTime": "09:00:00"},
    "actionBeforeAutoStart": {"runProgram": "C:\\a, b;%1.exe", "sleepAfterSeconds": 5},
    "autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1073741824},
    "actionAfterAutoStop": {"action": "CloseProgram"},
    "outputSettings": {"mode": "Custom", "customFolder": "/tmp/\u00e4\u65e5", "customFileNamePattern": "%1"},
    "displayMode": "Minimize",
    "dynamicParams": {"rate": 30, "gain": 1.5, "vbr": true, "format": "MP3, OGG", "title": "\u00e4"}
})";

} // namespace

class TestLastTaskDefaults : public QObject {
    Q_OBJECT

private slots:
    void init();
    void groupBearsTheType();
    void everyMemberIsWrittenAsAString();
    void settingsLieInTheFileOfTheProduct();
    void objectsAreCompactJson_data();
    void objectsAreCompactJson();
    void missingMembersKeepWhatWasWritten();
    void documentWithoutParametersWritesTheGroupAlone();
    void emptyGroupIdIsWritten();
    void emptyTypeWritesAndReadsNothing();
    void nothingButTheParametersIsRead();
    void parametersComeBackAsTheyWere();
    void malformedStoredTextCountsAsNone_data();
    void malformedStoredTextCountsAsNone();
    void typesDoNotShareDefaults();
    void savingAnOldTaskRewritesTheDefaults();
    void savingReplacesTheWholeStoredParameters();
    void foreignSettingsAreLeftAlone();
    void identityOfTheApplicationPlaysNoPart();
    void firstTaskShowsDefinitionAndFile();
};

void TestLastTaskDefaults::init()
{
    QSettings settings(u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s);
    settings.clear();
    settings.sync();
    QVERIFY(settingsFile().isEmpty());
}

void TestLastTaskDefaults::groupBearsTheType()
{
    const MCsLastTaskDefaults defaults;
    QCOMPARE(defaults.lastTaskDefaultsGroup(screenType), screenGroup);
    QCOMPARE(defaults.lastTaskDefaultsGroup(u"%1%2"_s), u"LastTaskDefaults/%1%2"_s);
    QCOMPARE(defaults.lastTaskDefaultsGroup(QString()), u"LastTaskDefaults/"_s);
}

void TestLastTaskDefaults::everyMemberIsWrittenAsAString()
{
    MCsLastTaskDefaults().saveDefaults(screenType, document(fullParams));
    const QMap<QString, QVariant> content = settingsFile();
    QStringList keys;
    for (const char *key : {"dynamicParams", "taskFields/actionAfterAutoStop", "taskFields/actionBeforeAutoStart",
                            "taskFields/autoStopCondition", "taskFields/displayMode", "taskFields/groupId",
                            "taskFields/outputSettings", "taskFields/startRecordingOn"})
        keys.append(screenGroup + u'/' + QLatin1StringView(key));
    QCOMPARE(content.keys(), keys);
    for (const QVariant &value : content)
        QCOMPARE(value.metaType(), QMetaType::fromType<QString>());
    QCOMPARE(stored(u"taskFields/displayMode"_s), u"Minimize"_s);
    QCOMPARE(stored(u"taskFields/groupId"_s), u"group-1"_s);
    QCOMPARE(stored(u"taskFields/actionAfterAutoStop"_s), uR"({"action":"CloseProgram"})"_s);
}

void TestLastTaskDefaults::settingsLieInTheFileOfTheProduct()
{
    if (!TestSupport::settingsAreAFile)
        QSKIP("the settings are no file here");
    MCsLastTaskDefaults().saveDefaults(screenType, document(fullParams));
    QFile file(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/Tamrix Laboratory/Orvel Task Scheduler.conf"_s);
    QVERIFY2(file.open(QFile::ReadOnly), qPrintable(file.fileName()));
    QVERIFY(file.readAll().contains("[LastTaskDefaults]"));
}

void TestLastTaskDefaults::objectsAreCompactJson_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("member");
    QTest::newRow("dynamicParams") << u"dynamicParams"_s << u"dynamicParams"_s;
    for (const char *member :
         {"startRecordingOn", "actionBeforeAutoStart", "autoStopCondition", "actionAfterAutoStop", "outputSettings"})
        QTest::newRow(member) << u"taskFields/"_s + QLatin1StringView(member) << QString::fromLatin1(member);
}

void TestLastTaskDefaults::objectsAreCompactJson()
{
    QFETCH(const QString, key);
    QFETCH(const QString, member);
    MCsLastTaskDefaults().saveDefaults(screenType, document(fullParams));
    const QJsonObject value = object(fullParams).value(member).toObject();
    QVERIFY(!value.isEmpty());
    QCOMPARE(stored(key), QString::fromUtf8(QJsonDocument(value).toJson(QJsonDocument::Compact)));
}

void TestLastTaskDefaults::missingMembersKeepWhatWasWritten()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(screenType, document(fullParams));
    defaults.saveDefaults(screenType, document(R"({"startRecordingOn": {"mode": "EveryDay"}, "displayMode": "Show"})"));
    QCOMPARE(stored(u"taskFields/startRecordingOn"_s), uR"({"mode":"EveryDay"})"_s);
    QCOMPARE(stored(u"taskFields/displayMode"_s), u"Show"_s);
    QCOMPARE(stored(u"taskFields/actionAfterAutoStop"_s), uR"({"action":"CloseProgram"})"_s);
    // A task without form fields has no parameters, and the earlier ones stay.
    QCOMPARE(defaults.loadDefaults(screenType).value("dynamicParams"_L1)["rate"_L1].toInt(), 30);
}

void TestLastTaskDefaults::documentWithoutParametersWritesTheGroupAlone()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(screenType, {{u"groupId"_s, u"g"_s}, {u"paramsJson"_s, u"no object"_s}});
    QCOMPARE(settingsFile().keys(), QStringList{screenGroup + u"/taskFields/groupId"_s});
    defaults.saveDefaults(audioType, {});
    QCOMPARE(settingsFile().size(), 1);
}

void TestLastTaskDefaults::emptyGroupIdIsWritten()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(screenType, document("{}"));
    defaults.saveDefaults(screenType, document("{}", QString()));
    QVERIFY(settingsFile().contains(screenGroup + u"/taskFields/groupId"_s));
    QCOMPARE(stored(u"taskFields/groupId"_s), QString());
}

void TestLastTaskDefaults::emptyTypeWritesAndReadsNothing()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(QString(), document(fullParams));
    QVERIFY(settingsFile().isEmpty());
    QSettings settings(u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s);
    settings.setValue(u"LastTaskDefaults/dynamicParams"_s, u"{\"a\":1}"_s);
    settings.sync();
    QVERIFY(defaults.loadDefaults(QString()).isEmpty());
}

void TestLastTaskDefaults::nothingButTheParametersIsRead()
{
    const MCsLastTaskDefaults defaults;
    QVERIFY(defaults.loadDefaults(screenType).isEmpty());
    defaults.saveDefaults(screenType, document(R"({"displayMode": "Hide", "outputSettings": {"mode": "Custom"}})"));
    QVERIFY(defaults.loadDefaults(screenType).isEmpty());
    defaults.saveDefaults(screenType, document(fullParams));
    QCOMPARE(defaults.loadDefaults(screenType).keys(), QStringList{u"dynamicParams"_s});
}

void TestLastTaskDefaults::parametersComeBackAsTheyWere()
{
    const MCsLastTaskDefaults defaults;
    for (const char *params :
         {R"({"rate": 30, "gain": 1.5, "vbr": true, "format": "MP3, OGG", "title": "\u00e4\u65e5 \"q\" \\ %1\n@x;"})",
          R"({"@": "@"})", "{}"}) {
        const QJsonObject values = object(params);
        QJsonObject task = document("{}");
        task.insert("paramsJson"_L1, QJsonObject{{u"dynamicParams"_s, values}});
        defaults.saveDefaults(screenType, task);
        QCOMPARE(defaults.loadDefaults(screenType), QJsonObject({{u"dynamicParams"_s, values}}));
    }
}

void TestLastTaskDefaults::malformedStoredTextCountsAsNone_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("empty") << QVariant(QString());
    QTest::newRow("words") << QVariant(u"rate = 5"_s);
    QTest::newRow("cut off") << QVariant(u"{\"rate\": 5"_s);
    QTest::newRow("array") << QVariant(u"[1]"_s);
    QTest::newRow("null") << QVariant(u"null"_s);
    QTest::newRow("list") << QVariant(QStringList{u"{\"rate\": 5"_s, u"\"gain\": 1}"_s});
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\xfe{}"));
}

void TestLastTaskDefaults::malformedStoredTextCountsAsNone()
{
    QFETCH(const QVariant, value);
    QSettings settings(u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s);
    settings.setValue(screenGroup + u"/dynamicParams"_s, value);
    settings.sync();
    QVERIFY(MCsLastTaskDefaults().loadDefaults(screenType).isEmpty());
}

void TestLastTaskDefaults::typesDoNotShareDefaults()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(screenType, document(fullParams));
    const QMap<QString, QVariant> before = settingsFile();
    defaults.saveDefaults(audioType, document(R"({"dynamicParams": {"rate": 44100}, "displayMode": "Hide"})"));
    QMap<QString, QVariant> after = settingsFile();
    QVERIFY(after.size() > before.size());
    after.removeIf([](const auto &entry) { return entry.key().contains(audioType); });
    QCOMPARE(after, before);
    QCOMPARE(defaults.loadDefaults(audioType).value("dynamicParams"_L1)["rate"_L1].toInt(), 44100);
    QCOMPARE(defaults.loadDefaults(screenType).value("dynamicParams"_L1)["rate"_L1].toInt(), 30);
}

void TestLastTaskDefaults::savingAnOldTaskRewritesTheDefaults()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(screenType, document(R"({"dynamicParams": {"rate": 60}})"));
    defaults.saveDefaults(screenType, document(R"({"dynamicParams": {"rate": 5}})"));
    QCOMPARE(stored(u"dynamicParams"_s), uR"({"rate":5})"_s);
}

void TestLastTaskDefaults::savingReplacesTheWholeStoredParameters()
{
    const MCsLastTaskDefaults defaults;
    defaults.saveDefaults(screenType, document(R"({"dynamicParams": {"rate": 60, "gone": "x"}})"));
    MCsDynamicFormWidget form(nullptr);
    form.setTaskTypes({taskType(screenType, {field(R"({"key": "rate", "type": "int", "defaultValue": "30"})")})});
    QVERIFY(form.buildForTaskType(screenType, {}));
    form.applyValues(defaults.loadDefaults(screenType).value("dynamicParams"_L1).toObject(), {});
    QJsonObject task = document("{}");
    task.insert("paramsJson"_L1, QJsonObject{{u"dynamicParams"_s, form.collectValues()}});
    defaults.saveDefaults(screenType, task);
    QCOMPARE(stored(u"dynamicParams"_s), uR"({"rate":60})"_s);
}

void TestLastTaskDefaults::foreignSettingsAreLeftAlone()
{
    QSettings settings(u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s);
    settings.setValue(u"other"_s, 5);
    settings.setValue(screenGroup + u"/taskFields/foreign"_s, u"kept"_s);
    settings.sync();
    MCsLastTaskDefaults().saveDefaults(screenType, document(fullParams));
    QCOMPARE(settingsFile().value(u"other"_s).toInt(), 5);
    QCOMPARE(stored(u"taskFields/foreign"_s), u"kept"_s);
}

void TestLastTaskDefaults::identityOfTheApplicationPlaysNoPart()
{
    QCoreApplication::setOrganizationName(u"Elsewhere"_s);
    QCoreApplication::setApplicationName(u"Another"_s);
    MCsLastTaskDefaults().saveDefaults(screenType, document(fullParams));
    QCOMPARE(stored(u"taskFields/displayMode"_s), u"Minimize"_s);
    QVERIFY(!QFile::exists(qEnvironmentVariable("XDG_CONFIG_HOME") + u"/Elsewhere"_s));
}

void TestLastTaskDefaults::firstTaskShowsDefinitionAndFile()
{
    MCsDynamicFormWidget form(nullptr);
    form.setTaskTypes({taskType(screenType, {field(R"({"key": "a", "type": "int", "defaultValue": "30"})"),
                                             field(R"({"key": "b", "type": "int", "defaultValue": "31"})")})});
    QVERIFY(form.buildForTaskType(screenType, u"{\"b\": 5}"_s));
    QVERIFY(MCsLastTaskDefaults().loadDefaults(screenType).isEmpty());
    QCOMPARE(form.collectValues(), object(R"({"a": 30, "b": 5})"));
}

ORVEL_TEST_MAIN(QApplication, TestLastTaskDefaults)
#include "tst_lasttaskdefaults.moc"
