#include "formfields.h"
#include "logcapture.h"
#include "testmain.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace FormFields;

class TestDynamicFormFields : public QObject {
    Q_OBJECT

private slots:
    void typeDecidesTheWidget_data();
    void typeDecidesTheWidget();
    void rangeOfANumberField_data();
    void rangeOfANumberField();
    void defaultOfANumberField_data();
    void defaultOfANumberField();
    void defaultOfABoolField_data();
    void defaultOfABoolField();
    void defaultOfATextFieldIsItsText();
    void defaultThatIsNoStringIsLostInTheDefinitionAlone();
    void optionsStandInTheirOrder();
    void selectFieldLogsWhatItFinds_data();
    void selectFieldLogsWhatItFinds();
    void otherFieldsLogNothing();
};

void TestDynamicFormFields::typeDecidesTheWidget_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("className");
    QTest::newRow("int") << u"int"_s << QByteArray("QSpinBox");
    QTest::newRow("double") << u"double"_s << QByteArray("QDoubleSpinBox");
    QTest::newRow("bool") << u"bool"_s << QByteArray("QCheckBox");
    QTest::newRow("select") << u"select"_s << QByteArray("QComboBox");
    QTest::newRow("text") << u"text"_s << QByteArray("QLineEdit");
    QTest::newRow("empty") << QString() << QByteArray("QLineEdit");
    QTest::newRow("unknown") << u"colour"_s << QByteArray("QLineEdit");
    QTest::newRow("other case") << u"Int"_s << QByteArray("QLineEdit");
    QTest::newRow("with a blank") << u"bool "_s << QByteArray("QLineEdit");
}

void TestDynamicFormFields::typeDecidesTheWidget()
{
    QFETCH(const QString, type);
    QFETCH(const QByteArray, className);
    TaskFieldInfo info;
    info.key = u"k"_s;
    info.label = u"Label"_s;
    info.type = type;
    const BuiltForm form({info});
    const auto *widget = widgetAt<QWidget>(form, 0);
    QCOMPARE(QByteArray(widget->metaObject()->className()), className);
    QCOMPARE(widget->accessibleName(), u"Label"_s);
    if (const auto *checkBox = qobject_cast<const QCheckBox *>(widget))
        QVERIFY(checkBox->text().isEmpty());
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        QVERIFY(!combo->isEditable());
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(widget))
        QCOMPARE(box->decimals(), 2);
}

void TestDynamicFormFields::rangeOfANumberField_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("no bounds") << 0 << 0 << 0 << 999999;
    QTest::newRow("both bounds") << 1 << 60 << 1 << 60;
    QTest::newRow("equal bounds") << 5 << 5 << 5 << 999999;
    QTest::newRow("one apart") << 5 << 6 << 5 << 6;
    QTest::newRow("negative min") << -10 << 10 << -10 << 10;
    QTest::newRow("negative min alone") << -10 << 0 << -10 << 0;
    QTest::newRow("both negative") << -10 << -5 << -10 << -5;
    QTest::newRow("max below min") << 100 << 50 << 100 << 999999;
    QTest::newRow("max above the usual one") << 0 << 2000000 << 0 << 2000000;
    QTest::newRow("min above the usual max") << 2000000 << 0 << 2000000 << 2000000;
}

void TestDynamicFormFields::rangeOfANumberField()
{
    QFETCH(const int, min);
    QFETCH(const int, max);
    QFETCH(const int, lowest);
    QFETCH(const int, highest);
    TaskFieldInfo info;
    info.key = u"k"_s;
    info.min = min;
    info.max = max;
    info.type = u"int"_s;
    const BuiltForm intForm({info});
    QCOMPARE(widgetAt<QSpinBox>(intForm, 0)->minimum(), lowest);
    QCOMPARE(widgetAt<QSpinBox>(intForm, 0)->maximum(), highest);
    info.type = u"double"_s;
    const BuiltForm doubleForm({info});
    QCOMPARE(widgetAt<QDoubleSpinBox>(doubleForm, 0)->minimum(), double(lowest));
    QCOMPARE(widgetAt<QDoubleSpinBox>(doubleForm, 0)->maximum(), double(highest));
}

void TestDynamicFormFields::defaultOfANumberField_data()
{
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<int>("intValue");
    QTest::addColumn<double>("doubleValue");
    QTest::newRow("number") << u"42"_s << 42 << 42.0;
    QTest::newRow("negative") << u"-3"_s << -3 << -3.0;
    QTest::newRow("fraction") << u"1.5"_s << 0 << 1.5;
    QTest::newRow("more digits than shown") << u"1.256"_s << 0 << 1.26;
    QTest::newRow("exponent") << u"1e+01"_s << 0 << 10.0;
    QTest::newRow("empty") << QString() << 0 << 0.0;
    QTest::newRow("word") << u"many"_s << 0 << 0.0;
    QTest::newRow("number with unit") << u"30 fps"_s << 0 << 0.0;
    QTest::newRow("hexadecimal") << u"0x10"_s << 0 << 0.0;
    QTest::newRow("too large") << u"1000"_s << 100 << 100.0;
    QTest::newRow("too small") << u"-1000"_s << -10 << -10.0;
    QTest::newRow("beyond an integer") << u"99999999999"_s << 0 << 100.0;
    QTest::newRow("infinite") << u"inf"_s << 0 << 100.0;
    QTest::newRow("no number at all") << u"nan"_s << 0 << 0.0;
}

void TestDynamicFormFields::defaultOfANumberField()
{
    QFETCH(const QString, defaultValue);
    QFETCH(const int, intValue);
    QFETCH(const double, doubleValue);
    TaskFieldInfo info;
    info.key = u"k"_s;
    info.min = -10;
    info.max = 100;
    info.defaultValue = defaultValue;
    info.type = u"int"_s;
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm({info}), 0)->value(), intValue);
    info.type = u"double"_s;
    QCOMPARE(widgetAt<QDoubleSpinBox>(BuiltForm({info}), 0)->value(), doubleValue);
    // Where 0 is out of the range it becomes the nearest that isn't.
    info.min = 5;
    info.type = u"int"_s;
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm({info}), 0)->value(), qMax(5, intValue));
}

void TestDynamicFormFields::defaultOfABoolField_data()
{
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<bool>("checked");
    QTest::newRow("true") << u"true"_s << true;
    QTest::newRow("1") << u"1"_s << true;
    QTest::newRow("True") << u"True"_s << false;
    QTest::newRow("TRUE") << u"TRUE"_s << false;
    QTest::newRow("false") << u"false"_s << false;
    QTest::newRow("0") << u"0"_s << false;
    QTest::newRow("yes") << u"yes"_s << false;
    QTest::newRow("2") << u"2"_s << false;
    QTest::newRow("with a blank") << u" true"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void TestDynamicFormFields::defaultOfABoolField()
{
    QFETCH(const QString, defaultValue);
    QFETCH(const bool, checked);
    TaskFieldInfo info;
    info.key = u"k"_s;
    info.type = u"bool"_s;
    info.defaultValue = defaultValue;
    QCOMPARE(widgetAt<QCheckBox>(BuiltForm({info}), 0)->isChecked(), checked);
    // The parameter file's boolean arrives as "true" or "false".
    QCOMPARE(widgetAt<QCheckBox>(BuiltForm({info}, u"{\"k\": true}"_s), 0)->isChecked(), true);
    QCOMPARE(widgetAt<QCheckBox>(BuiltForm({info}, u"{\"k\": false}"_s), 0)->isChecked(), false);
    QCOMPARE(widgetAt<QCheckBox>(BuiltForm({info}, u"{\"k\": 1}"_s), 0)->isChecked(), true);
}

void TestDynamicFormFields::defaultOfATextFieldIsItsText()
{
    const BuiltForm form({field(R"({"key": "t", "defaultValue": "  <b>100%1</b> "})")});
    QCOMPARE(widgetAt<QLineEdit>(form, 0)->text(), u"  <b>100%1</b> "_s);
}

void TestDynamicFormFields::defaultThatIsNoStringIsLostInTheDefinitionAlone()
{
    const QList<TaskFieldInfo> fields{field(R"({"key": "k", "type": "int", "min": 8, "defaultValue": 44100})")};
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields), 0)->value(), 8);
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields, u"{\"k\": 44100}"_s), 0)->value(), 44100);
    const QString objectForm = u"{\"k\": {\"defaultValue\": %1}}"_s;
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields, objectForm.arg(44100)), 0)->value(), 44100);
    // Six digits are not enough for this one, and the text with an exponent is no integer.
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields, objectForm.arg(1234567)), 0)->value(), 8);
}

void TestDynamicFormFields::optionsStandInTheirOrder()
{
    const BuiltForm form({field(R"({"key": "s", "type": "select", "options": ["MP3", "", "ogg", "MP3"]})")});
    const auto *combo = widgetAt<QComboBox>(form, 0);
    QStringList texts;
    for (int index = 0; index < combo->count(); ++index) {
        texts.append(combo->itemText(index));
        QVERIFY(!combo->itemData(index).isValid());
    }
    QCOMPARE(texts, QStringList({u"MP3"_s, QString(), u"ogg"_s, u"MP3"_s}));
    QCOMPARE(combo->currentIndex(), 0);
}

void TestDynamicFormFields::selectFieldLogsWhatItFinds_data()
{
    QTest::addColumn<QByteArray>("info");
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("default found")
        << QByteArray(R"({"key": "s", "type": "select", "options": ["MP3", "OGG"], "defaultValue": "OGG"})")
        << QString()
        << QStringList{u"DEBUG [SELECT] combo item count=2 contains OGG=1"_s, u"DEBUG [SELECT] findText(OGG) = idx 1"_s,
                       u"DEBUG [SELECT] final currentText=OGG"_s};
    QTest::newRow("no default") << QByteArray(R"({"key": "s", "type": "select", "options": ["MP3", "ogg"]})")
                                << QString()
                                << QStringList{u"DEBUG [SELECT] combo item count=2 contains OGG=0"_s,
                                               u"DEBUG [SELECT] final currentText=MP3"_s};
    QTest::newRow("default not found, its case differs")
        << QByteArray(R"({"key": "s", "type": "select", "options": ["MP3", "OGG"], "defaultValue": "ogg"})")
        << QString()
        << QStringList{u"DEBUG [SELECT] combo item count=2 contains OGG=1"_s,
                       u"DEBUG [SELECT] findText(ogg) = idx -1"_s,
                       u"WARN [SELECT] WARNING: overrideDefault not found in combo items!"_s,
                       u"DEBUG [SELECT] final currentText=MP3"_s};
    QTest::newRow("no options") << QByteArray(R"({"key": "s", "type": "select", "defaultValue": "x"})") << QString()
                                << QStringList{u"DEBUG [SELECT] combo item count=0 contains OGG=0"_s,
                                               u"DEBUG [SELECT] findText(x) = idx -1"_s,
                                               u"WARN [SELECT] WARNING: overrideDefault not found in combo items!"_s,
                                               u"DEBUG [SELECT] final currentText="_s};
    QTest::newRow("options of the file")
        << QByteArray(R"({"key": "s", "type": "select", "options": ["MP3"], "defaultValue": "MP3"})")
        << uR"({"s": {"options": ["WAV", "OGG"], "defaultValue": "WAV"}})"_s
        << QStringList{u"DEBUG [SELECT] combo item count=2 contains OGG=1"_s, u"DEBUG [SELECT] findText(WAV) = idx 0"_s,
                       u"DEBUG [SELECT] final currentText=WAV"_s};
    QTest::newRow("default with place markers")
        << QByteArray(R"({"key": "s", "type": "select", "options": ["%2%1"], "defaultValue": "%2%1"})") << QString()
        << QStringList{u"DEBUG [SELECT] combo item count=1 contains OGG=0"_s,
                       u"DEBUG [SELECT] findText(%2%1) = idx 0"_s, u"DEBUG [SELECT] final currentText=%2%1"_s};
}

void TestDynamicFormFields::selectFieldLogsWhatItFinds()
{
    QFETCH(const QByteArray, info);
    QFETCH(const QString, parameters);
    QFETCH(const QStringList, lines);
    const TestSupport::LogCapture log;
    const BuiltForm form({field(info.constData())}, parameters);
    QCOMPARE(log.lines(u"DynamicFormWidget"_s), lines);
}

void TestDynamicFormFields::otherFieldsLogNothing()
{
    const TestSupport::LogCapture log;
    QList<TaskFieldInfo> fields = fieldOfEveryKind();
    fields.removeAt(3);
    BuiltForm form(fields, u"no JSON"_s);
    form.applyValues(object(R"({"i": "x", "t": 5})"), {});
    QVERIFY(!form.buildForTaskType(u"unknown"_s, {}));
    QCOMPARE(log.lines(), QStringList());
}

ORVEL_TEST_MAIN(QApplication, TestDynamicFormFields)
#include "tst_dynamicformfields.moc"
