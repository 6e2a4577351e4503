#include "formfields.h"
#include "testmain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace FormFields;

namespace {

const char *const intField = R"({"key": "k", "type": "int", "min": 1, "max": 60, "defaultValue": "30"})";
const char *const doubleField = R"({"key": "k", "type": "double", "min": -5, "max": 5, "defaultValue": "1.5"})";
const char *const boolField = R"({"key": "k", "type": "bool", "defaultValue": "true"})";
const char *const selectField =
    R"({"key": "k", "type": "select", "options": ["MP3", "OGG", "WAV"], "defaultValue": "OGG"})";
const char *const textField = R"({"key": "k", "type": "text", "defaultValue": "definition"})";

QString jsonText(const QJsonObject &values)
{
    return QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
}

} // namespace

class TestDynamicFormValues : public QObject {
    Q_OBJECT

private slots:
    void valuesHaveTheTypesOfTheirFields();
    void numbersStayNumbersWhateverTheirSource();
    void textIsTrimmed();
    void selectWithoutOptionsGivesAnEmptyText();
    void shownValuesAreCollected();
    void storedValueIsApplied_data();
    void storedValueIsApplied();
    void unknownKeysAreIgnored();
    void excludedKeysKeepTheirValue();
    void valuesSurviveTheRoundTrip();
    void storedTaskSurvivesAChangeOfTheDefinition();
};

void TestDynamicFormValues::valuesHaveTheTypesOfTheirFields()
{
    const BuiltForm form({field(R"({"key": "i", "type": "int", "defaultValue": "30"})"),
                          field(R"({"key": "d", "type": "double", "defaultValue": "1.5"})"),
                          field(R"({"key": "b", "type": "bool", "defaultValue": "1"})"),
                          field(R"({"key": "s", "type": "select", "options": ["1", "2"], "defaultValue": "2"})"),
                          field(R"({"key": "t", "type": "", "defaultValue": "44100"})")});
    QCOMPARE(jsonText(form.collectValues()), uR"({"b":true,"d":1.5,"i":30,"s":"2","t":"44100"})"_s);
}

void TestDynamicFormValues::numbersStayNumbersWhateverTheirSource()
{
    for (const QString &parameters : {u"{\"k\": \"12\"}"_s, u"{\"k\": 12}"_s, u"{\"k\": \"many\"}"_s,
                                      u"{\"k\": null}"_s, u"{\"k\": \"nan\"}"_s, u"{\"k\": \"inf\"}"_s}) {
        QVERIFY(BuiltForm({field(intField)}, parameters).collectValues().value("k"_L1).isDouble());
        const QJsonObject values = BuiltForm({field(doubleField)}, parameters).collectValues();
        // Neither infinite nor undefined numbers survive in JSON.
        QVERIFY(QJsonDocument::fromJson(QJsonDocument(values).toJson()).object().value("k"_L1).isDouble());
    }
}

void TestDynamicFormValues::textIsTrimmed()
{
    const BuiltForm form({field(textField)});
    widgetAt<QLineEdit>(form, 0)->setText(u" \t two words  "_s);
    QCOMPARE(form.collectValues().value("k"_L1).toString(), u"two words"_s);
    widgetAt<QLineEdit>(form, 0)->setText(u"   "_s);
    QCOMPARE(jsonText(form.collectValues()), uR"({"k":""})"_s);
}

void TestDynamicFormValues::selectWithoutOptionsGivesAnEmptyText()
{
    const BuiltForm form({field(R"({"key": "k", "type": "select"})")});
    QCOMPARE(jsonText(form.collectValues()), uR"({"k":""})"_s);
}

void TestDynamicFormValues::shownValuesAreCollected()
{
    const BuiltForm form({field(intField), field(R"({"key": "b", "type": "bool"})"),
                          field(R"({"key": "s", "type": "select", "options": ["x", " y "]})")});
    widgetAt<QSpinBox>(form, 0)->setValue(59);
    widgetAt<QCheckBox>(form, 1)->setChecked(true);
    widgetAt<QComboBox>(form, 2)->setCurrentIndex(1);
    QCOMPARE(jsonText(form.collectValues()), uR"({"b":true,"k":59,"s":" y "})"_s);
}

void TestDynamicFormValues::storedValueIsApplied_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("shown");
    const auto row = [](const char *name, const char *info, const char *stored, const char *shown) {
        QTest::newRow(name) << QByteArray(info) << QByteArray(stored) << QByteArray(shown);
    };
    row("int", intField, "45", "45");
    row("int above the range", intField, "1000", "60");
    row("int below the range", intField, "-3", "1");
    row("int with a fraction", intField, "4.5", "1");
    row("int from text", intField, "\"45\"", "1");
    row("int from null", intField, "null", "1");
    row("int from a boolean", intField, "true", "1");
    row("double", doubleField, "2.25", "2.25");
    row("double from a whole number", doubleField, "2", "2");
    row("double rounded", doubleField, "1.239", "1.24");
    row("double above the range", doubleField, "1e9", "5");
    row("double from text", doubleField, "\"2\"", "0");
    row("bool off", boolField, "false", "false");
    row("bool on", boolField, "true", "true");
    row("bool from a number", boolField, "1", "false");
    row("bool from text", boolField, "\"true\"", "false");
    row("select", selectField, "\"WAV\"", "\"WAV\"");
    row("select of another case", selectField, "\"wav\"", "\"OGG\"");
    row("select of a gone option", selectField, "\"FLAC\"", "\"OGG\"");
    row("select from a number", selectField, "0", "\"OGG\"");
    row("select from null", selectField, "null", "\"OGG\"");
    row("text", textField, "\"stored\"", "\"stored\"");
    row("text empty", textField, "\"\"", "\"\"");
    row("text from a number", textField, "5", "\"\"");
    row("text from an object", textField, "{\"a\": 1}", "\"\"");
}

void TestDynamicFormValues::storedValueIsApplied()
{
    QFETCH(const QByteArray, info);
    QFETCH(const QByteArray, stored);
    QFETCH(const QByteArray, shown);
    BuiltForm form({field(info.constData())});
    form.applyValues(object("{\"k\": " + stored + "}"), {});
    QCOMPARE(form.collectValues(), object("{\"k\": " + shown + "}"));
}

void TestDynamicFormValues::unknownKeysAreIgnored()
{
    BuiltForm form({field(intField)});
    form.applyValues(object(R"({"K": 5, "other": "x", "": 7})"), {});
    QCOMPARE(jsonText(form.collectValues()), uR"({"k":30})"_s);
    form.applyValues({}, {});
    QCOMPARE(jsonText(form.collectValues()), uR"({"k":30})"_s);
}

void TestDynamicFormValues::excludedKeysKeepTheirValue()
{
    BuiltForm form({field(intField), field(R"({"key": "t"})")});
    const QJsonObject values = object(R"({"k": 5, "t": "stored"})");
    form.applyValues(values, {u"k"_s, u"t"_s, u"other"_s});
    QCOMPARE(jsonText(form.collectValues()), uR"({"k":30,"t":""})"_s);
    form.applyValues(values, {u"K"_s, u"t"_s});
    QCOMPARE(jsonText(form.collectValues()), uR"({"k":5,"t":""})"_s);
}

void TestDynamicFormValues::valuesSurviveTheRoundTrip()
{
    const QList<TaskFieldInfo> fields{
        field(R"({"key": "i", "type": "int", "min": -100})"), field(R"({"key": "d", "type": "double"})"),
        field(R"({"key": "b", "type": "bool"})"), field(R"({"key": "s", "type": "select", "options": ["x", "y"]})"),
        field(R"({"key": "t"})")};
    const QJsonObject values = object(R"({"i": -7, "d": 0.01, "b": true, "s": "y", "t": "50 % \u00e4 \"<>\""})");
    BuiltForm first(fields);
    first.applyValues(values, {});
    QCOMPARE(first.collectValues(), values);
    BuiltForm second(fields);
    second.applyValues(first.collectValues(), {});
    QCOMPARE(second.collectValues(), values);
}

void TestDynamicFormValues::storedTaskSurvivesAChangeOfTheDefinition()
{
    const QJsonObject stored = object(R"({"kept": 7, "gone": "x", "format": "FLAC"})");
    BuiltForm form({field(R"({"key": "kept", "type": "int", "defaultValue": "1"})"),
                    field(R"({"key": "new", "type": "int", "defaultValue": "2"})"),
                    field(R"({"key": "format", "type": "select", "options": ["MP3", "OGG"]})")},
                   uR"({"kept": 9, "format": "OGG"})"_s);
    form.applyValues(stored, {});
    QCOMPARE(jsonText(form.collectValues()), uR"({"format":"OGG","kept":7,"new":2})"_s);
}

ORVEL_TEST_MAIN(QApplication, TestDynamicFormValues)
#include "tst_dynamicformvalues.moc"
