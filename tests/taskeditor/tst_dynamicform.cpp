#include "formfields.h"
#include "logcapture.h"
#include "stylesheets.h"
#include "testmain.h"
#include "widgetstyles.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>
#include <QStyle>
#include <QTest>
#include <QTextDocument>
#include <QTranslator>
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace FormFields;

namespace {

const QString typeId = u"task_type.screen_record"_s;

/// A form of the fields, built with the parameter text.
class BuiltForm : public MCsDynamicFormWidget {
public:
    explicit BuiltForm(const QList<TaskFieldInfo> &fields, const QString &parameters = {}, QWidget *parent = nullptr)
        : MCsDynamicFormWidget(parent)
    {
        setTaskTypes({taskType(typeId, fields)});
        isBuilt = buildForTaskType(typeId, parameters);
    }

    bool isBuilt = false;
};

const QList<TaskFieldInfo> &fieldOfEveryKind()
{
    static const QList<TaskFieldInfo> fields{
        field(R"({"key": "i", "type": "int", "label": "I", "min": 1, "max": 60, "defaultValue": "30"})"),
        field(R"({"key": "d", "type": "double", "label": "D", "min": -5, "max": 5, "defaultValue": "1.5"})"),
        field(R"({"key": "b", "type": "bool", "label": "B", "defaultValue": "true"})"),
        field(R"({"key": "s", "type": "select", "label": "S", "options": ["x", "y"], "defaultValue": "y"})"),
        field(R"({"key": "t", "type": "text", "label": "T", "defaultValue": "some text"})"),
    };
    return fields;
}

/// Translates every text to one that shows its context.
class MarkingTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return u"%1|%2"_s.arg(QString::fromUtf8(context), QString::fromUtf8(sourceText));
    }

    bool isEmpty() const override
    {
        return false;
    }
};

qsizetype ownStyleCount(const QWidget *widget)
{
    return widget->findChildren<QStyle *>(QString(), Qt::FindDirectChildrenOnly).size();
}

void deleteDeferred()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestDynamicForm : public QObject {
    Q_OBJECT

private slots:
    void startsHiddenAndEmpty();
    void unknownTypeLeavesNoForm_data();
    void unknownTypeLeavesNoForm();
    void definitionWithoutFieldsHidesTheForm();
    void formShowsAgainWithFields();
    void definitionsAreReplaced();
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
    void labelOfARow_data();
    void labelOfARow();
    void knownLabelsAreTranslated();
    void labelIsPlainText();
    void placeholderOfAField_data();
    void placeholderOfAField();
    void toolTipIsPlainText();
    void cardHasItsHeadingAboveTheRows();
    void optionsStandInTheirOrder();
    void selectFieldLogsWhatItFinds_data();
    void selectFieldLogsWhatItFinds();
    void otherFieldsLogNothing();
    void everyFieldIsShownWhateverItsConditions();
    void malformedParametersAreSilentlyIgnored_data();
    void malformedParametersAreSilentlyIgnored();
    void buildingAgainReplacesEverything();
    void nestedLayoutsAreCleared();
    void everyWidgetIsStyledOnceHoweverOftenTheFormIsBuilt();
    void fieldsTakeTheirPlaceInTheFocusOrder();
};

void TestDynamicForm::startsHiddenAndEmpty()
{
    QWidget parent;
    MCsDynamicFormWidget form(&parent);
    parent.show();
    QVERIFY(form.isHidden());
    QVERIFY(!form.hasFields());
    QVERIFY(form.collectValues().isEmpty());
    QCOMPARE(form.layout()->contentsMargins(), QMargins());
    form.applyValues({{u"i"_s, 5}}, {});
}

void TestDynamicForm::unknownTypeLeavesNoForm_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("empty") << QString();
    QTest::newRow("unknown") << u"task_type.other"_s;
    QTest::newRow("other case") << u"Task_Type.Screen_Record"_s;
}

void TestDynamicForm::unknownTypeLeavesNoForm()
{
    QFETCH(const QString, type);
    QWidget parent;
    BuiltForm form(fieldOfEveryKind(), {}, &parent);
    QVERIFY(form.isBuilt && form.hasFields());
    QVERIFY(!form.buildForTaskType(type, {}));
    QVERIFY(form.isHidden());
    QVERIFY(!form.hasFields());
    QVERIFY(form.collectValues().isEmpty());
    QCOMPARE(form.layout()->count(), 0);
}

void TestDynamicForm::definitionWithoutFieldsHidesTheForm()
{
    QWidget parent;
    MCsDynamicFormWidget form(&parent);
    form.setTaskTypes({taskType(u"full"_s, fieldOfEveryKind()), taskType(u"bare"_s, {})});
    QVERIFY(form.buildForTaskType(u"full"_s, {}));
    QVERIFY(form.buildForTaskType(u"bare"_s, u"{\"i\": 5}"_s));
    QVERIFY(form.isHidden());
    QVERIFY(!form.hasFields());
    QVERIFY(form.collectValues().isEmpty());
    QCOMPARE(form.layout()->count(), 0);
}

void TestDynamicForm::formShowsAgainWithFields()
{
    QWidget parent;
    BuiltForm form(fieldOfEveryKind(), {}, &parent);
    QVERIFY(!form.isHidden());
    QVERIFY(!form.buildForTaskType({}, {}));
    QVERIFY(form.isHidden());
    QVERIFY(form.buildForTaskType(typeId, {}));
    QVERIFY(!form.isHidden());
    QCOMPARE(form.collectValues().size(), 5);
}

void TestDynamicForm::definitionsAreReplaced()
{
    QWidget parent;
    BuiltForm form(fieldOfEveryKind(), {}, &parent);
    form.setTaskTypes({taskType(u"other"_s, {fieldOfEveryKind().first()})});
    QCOMPARE(form.collectValues().size(), 5);
    QVERIFY(!form.buildForTaskType(typeId, {}));
    QVERIFY(form.buildForTaskType(u"other"_s, {}));
    QCOMPARE(form.collectValues().keys(), QStringList{u"i"_s});
}

void TestDynamicForm::typeDecidesTheWidget_data()
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

void TestDynamicForm::typeDecidesTheWidget()
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

void TestDynamicForm::rangeOfANumberField_data()
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

void TestDynamicForm::rangeOfANumberField()
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

void TestDynamicForm::defaultOfANumberField_data()
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

void TestDynamicForm::defaultOfANumberField()
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

void TestDynamicForm::defaultOfABoolField_data()
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

void TestDynamicForm::defaultOfABoolField()
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

void TestDynamicForm::defaultOfATextFieldIsItsText()
{
    const BuiltForm form({field(R"({"key": "t", "defaultValue": "  <b>100%1</b> "})")});
    QCOMPARE(widgetAt<QLineEdit>(form, 0)->text(), u"  <b>100%1</b> "_s);
}

void TestDynamicForm::defaultThatIsNoStringIsLostInTheDefinitionAlone()
{
    const QList<TaskFieldInfo> fields{field(R"({"key": "k", "type": "int", "min": 8, "defaultValue": 44100})")};
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields), 0)->value(), 8);
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields, u"{\"k\": 44100}"_s), 0)->value(), 44100);
    const QString objectForm = u"{\"k\": {\"defaultValue\": %1}}"_s;
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields, objectForm.arg(44100)), 0)->value(), 44100);
    // Six digits are not enough for this one, and the text with an exponent is no integer.
    QCOMPARE(widgetAt<QSpinBox>(BuiltForm(fields, objectForm.arg(1234567)), 0)->value(), 8);
}

void TestDynamicForm::labelOfARow_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("required");
    QTest::addColumn<QString>("text");
    QTest::newRow("optional") << u"Frame rate"_s << false << u"Frame rate:"_s;
    QTest::newRow("required") << u"Frame rate"_s << true << u"Frame rate*:"_s;
    QTest::newRow("known and required") << u"Channels"_s << true << u"Channels*:"_s;
    QTest::newRow("empty") << QString() << false << u":"_s;
    QTest::newRow("with a colon") << u"Rate:"_s << true << u"Rate:*:"_s;
    QTest::newRow("with a place marker") << u"%1"_s << false << u"%1:"_s;
}

void TestDynamicForm::labelOfARow()
{
    QFETCH(const QString, label);
    QFETCH(const bool, required);
    QFETCH(const QString, text);
    TaskFieldInfo info;
    info.key = u"k"_s;
    info.label = label;
    info.required = required;
    QCOMPARE(labelAt(BuiltForm({info}), 0)->text(), text);
}

void TestDynamicForm::knownLabelsAreTranslated()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QStringList known{u"Audio Source"_s, u"Audio Bitrate"_s,           u"Audio Sample Rate"_s,
                            u"Channels"_s,     u"Enable VBR if supported"_s, u"Output format"_s};
    const QStringList unknown{u"audio source"_s, u"Output Format"_s, u"Channels "_s, u"Frame rate"_s};
    QList<TaskFieldInfo> fields;
    for (const QString &label : known + unknown) {
        TaskFieldInfo info;
        info.key = label;
        info.label = label;
        info.required = true;
        fields.append(info);
    }
    const BuiltForm form(fields);
    QCoreApplication::removeTranslator(&translator);
    int row = 0;
    for (const QString &label : known)
        QCOMPARE(labelAt(form, row++)->text(), u"Scheduler::MCsDynamicFormWidget|"_s + label + u"*:"_s);
    for (const QString &label : unknown)
        QCOMPARE(labelAt(form, row++)->text(), label + u"*:"_s);
    const auto *heading = qobject_cast<QLabel *>(card(form)->layout()->itemAt(0)->widget());
    QCOMPARE(heading->text(), u"Scheduler::MCsDynamicFormWidget|⚙️ Program Parameters"_s);
}

void TestDynamicForm::labelIsPlainText()
{
    const BuiltForm form({field(R"({"key": "k", "label": "<b>Picture</b> & sound"})")});
    const QLabel *label = labelAt(form, 0);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->text(), u"<b>Picture</b> & sound:"_s);
    // A buddy would swallow the ampersand.
    QCOMPARE(label->buddy(), nullptr);
}

void TestDynamicForm::placeholderOfAField_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isToolTip");
    QTest::addColumn<bool>("isPlaceholder");
    QTest::newRow("int") << u"int"_s << true << false;
    QTest::newRow("double") << u"double"_s << true << false;
    QTest::newRow("bool") << u"bool"_s << false << false;
    QTest::newRow("select") << u"select"_s << false << false;
    QTest::newRow("text") << u"text"_s << false << true;
    QTest::newRow("unknown") << QString() << false << true;
}

void TestDynamicForm::placeholderOfAField()
{
    QFETCH(const QString, type);
    QFETCH(const bool, isToolTip);
    QFETCH(const bool, isPlaceholder);
    for (const QString &placeholder : {u"Frames per second"_s, QString()}) {
        TaskFieldInfo info;
        info.key = u"k"_s;
        info.type = type;
        info.placeholder = placeholder;
        const BuiltForm form({info});
        QCOMPARE(widgetAt<QWidget>(form, 0)->toolTip(), isToolTip ? placeholder : QString());
        if (isPlaceholder)
            QCOMPARE(widgetAt<QLineEdit>(form, 0)->placeholderText(), placeholder);
    }
}

void TestDynamicForm::toolTipIsPlainText()
{
    const QString placeholder = u"<b>Frames</b> & <img src='x'> \"seconds\""_s;
    TaskFieldInfo info;
    info.key = u"k"_s;
    info.type = u"int"_s;
    info.placeholder = placeholder;
    const QString toolTip = widgetAt<QSpinBox>(BuiltForm({info}), 0)->toolTip();
    // What the tool tip shows once it has been taken for rich text.
    QVERIFY(Qt::mightBeRichText(toolTip));
    QTextDocument document;
    document.setHtml(toolTip);
    QCOMPARE(document.toPlainText().replace(QChar::Nbsp, u' '), placeholder);
}

void TestDynamicForm::cardHasItsHeadingAboveTheRows()
{
    const BuiltForm form(fieldOfEveryKind());
    const QGroupBox *group = card(form);
    QVERIFY(group != nullptr);
    QVERIFY(group->title().isEmpty());
    QCOMPARE(group->styleSheet(), formCardStyleSheet());
    QVERIFY(qobject_cast<QVBoxLayout *>(group->layout()) != nullptr);
    const auto *heading = qobject_cast<QLabel *>(group->layout()->itemAt(0)->widget());
    QCOMPARE(heading->text(), u"⚙️ Program Parameters"_s);
    QCOMPARE(heading->property("class").toString(), u"sectionTitleLabel"_s);
    QCOMPARE(heading->styleSheet(), formHeadingStyleSheet());
    QCOMPARE(rows(form)->rowCount(), 5);
    QStringList labels;
    for (int row = 0; row < 5; ++row)
        labels.append(labelAt(form, row)->text());
    QCOMPARE(labels, QStringList({u"I:"_s, u"D:"_s, u"B:"_s, u"S:"_s, u"T:"_s}));
}

void TestDynamicForm::optionsStandInTheirOrder()
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

void TestDynamicForm::selectFieldLogsWhatItFinds_data()
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

void TestDynamicForm::selectFieldLogsWhatItFinds()
{
    QFETCH(const QByteArray, info);
    QFETCH(const QString, parameters);
    QFETCH(const QStringList, lines);
    const TestSupport::LogCapture log;
    const BuiltForm form({field(info.constData())}, parameters);
    QCOMPARE(log.lines(u"DynamicFormWidget"_s), lines);
}

void TestDynamicForm::otherFieldsLogNothing()
{
    const TestSupport::LogCapture log;
    QList<TaskFieldInfo> fields = fieldOfEveryKind();
    fields.removeAt(3);
    BuiltForm form(fields, u"no JSON"_s);
    form.applyValues(object(R"({"i": "x", "t": 5})"), {});
    QVERIFY(!form.buildForTaskType(u"unknown"_s, {}));
    QCOMPARE(log.lines(), QStringList());
}

void TestDynamicForm::everyFieldIsShownWhateverItsConditions()
{
    QWidget parent;
    BuiltForm form({field(R"({"key": "a", "type": "bool"})"), field(R"({"key": "b", "visibleIf": {"a": true}})")}, {},
                   &parent);
    parent.show();
    QVERIFY(widgetAt<QCheckBox>(form, 0)->isVisible());
    QVERIFY(widgetAt<QLineEdit>(form, 1)->isVisible());
    QVERIFY(labelAt(form, 1)->isVisible());
}

void TestDynamicForm::malformedParametersAreSilentlyIgnored_data()
{
    QTest::addColumn<QString>("parameters");
    QTest::newRow("none") << QString();
    QTest::newRow("cut off") << u"{\"i\": 5"_s;
    QTest::newRow("array") << u"[{\"i\": 5}]"_s;
    QTest::newRow("words") << u"i=5"_s;
    QTest::newRow("unknown keys") << u"{\"I\": 5, \"other\": {\"defaultValue\": 7}}"_s;
}

void TestDynamicForm::malformedParametersAreSilentlyIgnored()
{
    QFETCH(const QString, parameters);
    const TestSupport::LogCapture log(2);
    const BuiltForm form(fieldOfEveryKind(), parameters);
    QVERIFY(form.isBuilt);
    QCOMPARE(form.collectValues(), object(R"({"i": 30, "d": 1.5, "b": true, "s": "y", "t": "some text"})"));
    QCOMPARE(log.rawMessages(), QStringList());
}

void TestDynamicForm::buildingAgainReplacesEverything()
{
    QWidget parent;
    BuiltForm form(fieldOfEveryKind(), {}, &parent);
    parent.show();
    const QPointer<QGroupBox> oldCard = card(form);
    const QPointer<QSpinBox> oldBox = widgetAt<QSpinBox>(form, 0);
    oldBox->setValue(5);
    QVERIFY(form.buildForTaskType(typeId, u"{\"i\": 12}"_s));
    // Nothing is destroyed on the spot, but the old card doesn't show any more.
    QVERIFY(!oldCard.isNull() && !oldBox.isNull());
    QVERIFY(oldCard->isHidden());
    QVERIFY(card(form) != oldCard);
    QCOMPARE(form.layout()->count(), 1);
    QCOMPARE(form.collectValues().size(), 5);
    QCOMPARE(form.collectValues().value("i"_L1).toInt(), 12);
    deleteDeferred();
    QVERIFY(oldCard.isNull() && oldBox.isNull());
    QCOMPARE(form.findChildren<QGroupBox *>().size(), 1);
    QTRY_VERIFY(card(form)->isVisible());
    QCOMPARE(form.collectValues().value("i"_L1).toInt(), 12);
}

void TestDynamicForm::nestedLayoutsAreCleared()
{
    QWidget parent;
    BuiltForm form(fieldOfEveryKind(), {}, &parent);
    auto *outer = new QHBoxLayout;
    auto *inner = new QVBoxLayout;
    const QPointer<QWidget> nested(new QWidget);
    inner->addWidget(nested);
    inner->addStretch();
    outer->addLayout(inner);
    static_cast<QVBoxLayout *>(form.layout())->addLayout(outer);
    QVERIFY(!form.buildForTaskType({}, {}));
    QCOMPARE(form.layout()->count(), 0);
    QVERIFY(!nested.isNull());
    deleteDeferred();
    QVERIFY(nested.isNull());
}

void TestDynamicForm::everyWidgetIsStyledOnceHoweverOftenTheFormIsBuilt()
{
    QDialog dialog;
    auto *ownBox = new QSpinBox(&dialog);
    auto *ownCheck = new QCheckBox(&dialog);
    applySpinBoxStyle(&dialog);
    applyCheckBoxStyle(&dialog);
    const QStyle *ownBoxStyle = ownBox->style();
    const QStyle *ownCheckStyle = ownCheck->style();
    BuiltForm form(fieldOfEveryKind(), {}, &dialog);
    for (int build = 0; build < 2; ++build) {
        QVERIFY(form.buildForTaskType(typeId, {}));
        applySpinBoxStyle(&form);
        applyCheckBoxStyle(&form);
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 widgetAt<QSpinBox>(form, 0), widgetAt<QDoubleSpinBox>(form, 1), widgetAt<QCheckBox>(form, 2)}) {
            QCOMPARE(ownStyleCount(widget), 1);
            const bool isCheck = widget->inherits("QCheckBox");
            QCOMPARE(widget->property("win10CheckBoxStyleApplied").toBool(), isCheck);
            QCOMPARE(widget->property("win10SpinBoxStyleApplied").toBool(), !isCheck);
        }
        applySpinBoxStyle(&dialog);
        applyCheckBoxStyle(&dialog);
        QCOMPARE(ownBox->style(), ownBoxStyle);
        QCOMPARE(ownCheck->style(), ownCheckStyle);
        QCOMPARE(ownStyleCount(ownBox), 1);
        QCOMPARE(ownStyleCount(ownCheck), 1);
    }
}

void TestDynamicForm::fieldsTakeTheirPlaceInTheFocusOrder()
{
    QWidget window;
    QVBoxLayout layout(&window);
    auto *before = new QLineEdit;
    auto *form = new BuiltForm(fieldOfEveryKind());
    auto *after = new QLineEdit;
    for (QWidget *widget : std::initializer_list<QWidget *>{before, form, after})
        layout.addWidget(widget);
    QVERIFY(form->buildForTaskType(typeId, {}));
    form->placeInTabOrder(before);
    deleteDeferred();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    before->setFocus();
    QList<QWidget *> visited;
    for (int press = 0; press < 6; ++press) {
        QTest::keyClick(&window, Qt::Key_Tab);
        visited.append(QApplication::focusWidget());
    }
    const QList<QWidget *> expected{widgetAt<QSpinBox>(*form, 0),  widgetAt<QDoubleSpinBox>(*form, 1),
                                    widgetAt<QCheckBox>(*form, 2), widgetAt<QComboBox>(*form, 3),
                                    widgetAt<QLineEdit>(*form, 4), after};
    QCOMPARE(visited, expected);
}

ORVEL_TEST_MAIN(QApplication, TestDynamicForm)
#include "tst_dynamicform.moc"
