#include "programparameters.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

class TestProgramParameters : public QObject {
    Q_OBJECT

private slots:
    void textThatIsNoObjectCountsAsNone_data();
    void textThatIsNoObjectCountsAsNone();
    void objectIsTakenAsItIs();
    void memberOverridesTheDefault_data();
    void memberOverridesTheDefault();
    void memberOverridesTheOptions_data();
    void memberOverridesTheOptions();
    void memberOfAnotherKeyChangesNothing();
};

void TestProgramParameters::textThatIsNoObjectCountsAsNone_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("null") << QString();
    QTest::newRow("blank") << u"  "_s;
    QTest::newRow("words") << u"bitrate = 5"_s;
    QTest::newRow("cut off") << u"{\"bitrate\": 5"_s;
    QTest::newRow("trailing text") << u"{\"bitrate\": 5} x"_s;
    QTest::newRow("trailing comma") << u"{\"bitrate\": 5,}"_s;
    QTest::newRow("array") << u"[{\"bitrate\": 5}]"_s;
    QTest::newRow("string") << u"\"bitrate\""_s;
    QTest::newRow("number") << u"5"_s;
    QTest::newRow("null value") << u"null"_s;
    QTest::newRow("empty object") << u"{}"_s;
}

void TestProgramParameters::textThatIsNoObjectCountsAsNone()
{
    QFETCH(const QString, json);
    QVERIFY(parseProgramParameters(json).isEmpty());
}

void TestProgramParameters::objectIsTakenAsItIs()
{
    const QJsonObject parameters = parseProgramParameters(u"{\"b\": 5, \"a\": {\"options\": [\"ä\"]}}"_s);
    QCOMPARE(parameters.keys(), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(parameters.value("a"_L1)["options"_L1][0].toString(), u"ä"_s);
}

void TestProgramParameters::memberOverridesTheDefault_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("defaultValue");
    const auto row = [](const QString &value, const QString &defaultValue) {
        QTest::newRow(qPrintable(value)) << value << defaultValue;
    };
    row(u"0"_s, u"0"_s);
    row(u"30"_s, u"30"_s);
    row(u"-5"_s, u"-5"_s);
    row(u"44100"_s, u"44100"_s);
    row(u"999999"_s, u"999999"_s);
    row(u"1000000"_s, u"1e+06"_s);
    row(u"1234567"_s, u"1.23457e+06"_s);
    row(u"0.1"_s, u"0.1"_s);
    row(u"3.14159265"_s, u"3.14159"_s);
    row(u"0.00001"_s, u"1e-05"_s);
    row(u"12.0"_s, u"12"_s);
    row(u"true"_s, u"true"_s);
    row(u"false"_s, u"false"_s);
    row(u"\"MP3\""_s, u"MP3"_s);
    row(u"\"1234567\""_s, u"1234567"_s);
    row(u"\"\""_s, QString());
    row(u"null"_s, QString());
    row(u"[\"MP3\"]"_s, QString());
}

void TestProgramParameters::memberOverridesTheDefault()
{
    QFETCH(const QString, value);
    QFETCH(const QString, defaultValue);
    TaskFieldInfo field;
    field.key = u"key"_s;
    field.defaultValue = u"of the definition"_s;
    field.options = QStringList{u"a"_s, u"b"_s};
    // A value by itself and as the member of an object mean the same.
    for (const QString &form : {u"{\"key\": %1}"_s, u"{\"key\": {\"defaultValue\": %1}}"_s}) {
        const QJsonObject parameters = parseProgramParameters(form.arg(value));
        QVERIFY(parameters.contains("key"_L1));
        const FieldDefaults defaults = effectiveDefaults(field, parameters);
        QCOMPARE(defaults.defaultValue, defaultValue);
        QCOMPARE(defaults.options, field.options);
    }
}

void TestProgramParameters::memberOverridesTheOptions_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QStringList>("options");
    const QString kept = u"b"_s;
    const QStringList keptOptions{u"a"_s, u"b"_s};
    QTest::newRow("options alone") << u"{\"options\": [\"x\", \"y\"]}"_s << kept << QStringList{u"x"_s, u"y"_s};
    QTest::newRow("options and default") << u"{\"options\": [\"x\", \"y\"], \"defaultValue\": \"y\"}"_s << u"y"_s
                                         << QStringList{u"x"_s, u"y"_s};
    QTest::newRow("elements that are no strings")
        << u"{\"options\": [1, \"x\", null, true]}"_s << kept << QStringList{QString(), u"x"_s, QString(), QString()};
    QTest::newRow("empty options") << u"{\"options\": []}"_s << kept << keptOptions;
    QTest::newRow("empty options with default")
        << u"{\"options\": [], \"defaultValue\": \"a\"}"_s << u"a"_s << keptOptions;
    QTest::newRow("options that are no array") << u"{\"options\": \"x\"}"_s << kept << keptOptions;
    QTest::newRow("options that are an object") << u"{\"options\": {\"x\": 1}}"_s << kept << keptOptions;
    QTest::newRow("neither") << u"{\"default\": \"x\"}"_s << kept << keptOptions;
    QTest::newRow("empty object") << u"{}"_s << kept << keptOptions;
    QTest::newRow("keys of another case")
        << u"{\"DefaultValue\": \"x\", \"Options\": [\"x\"]}"_s << kept << keptOptions;
    QTest::newRow("null default") << u"{\"defaultValue\": null}"_s << QString() << keptOptions;
    QTest::newRow("object default") << u"{\"defaultValue\": {\"defaultValue\": \"x\"}}"_s << QString() << keptOptions;
}

void TestProgramParameters::memberOverridesTheOptions()
{
    QFETCH(const QString, member);
    QFETCH(const QString, defaultValue);
    QFETCH(const QStringList, options);
    TaskFieldInfo field;
    field.key = u"key"_s;
    field.defaultValue = u"b"_s;
    field.options = QStringList{u"a"_s, u"b"_s};
    const QJsonObject parameters = parseProgramParameters(u"{\"key\": "_s + member + u'}');
    QVERIFY(!parameters.isEmpty());
    const FieldDefaults defaults = effectiveDefaults(field, parameters);
    QCOMPARE(defaults.defaultValue, defaultValue);
    QCOMPARE(defaults.options, options);
}

void TestProgramParameters::memberOfAnotherKeyChangesNothing()
{
    TaskFieldInfo field;
    field.key = u"key"_s;
    field.defaultValue = u"b"_s;
    field.options = QStringList{u"a"_s, u"b"_s};
    for (const QString &json : {u"{}"_s, u"{\"Key\": \"x\", \"defaultValue\": \"y\", \"options\": [\"z\"]}"_s}) {
        const FieldDefaults defaults = effectiveDefaults(field, parseProgramParameters(json));
        QCOMPARE(defaults.defaultValue, field.defaultValue);
        QCOMPARE(defaults.options, field.options);
    }
}

ORVEL_TEST_MAIN(QCoreApplication, TestProgramParameters)
#include "tst_programparameters.moc"
