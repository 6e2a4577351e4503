#include "formfields.h"
#include "testmain.h"

#include <QApplication>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <QTextDocument>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace FormFields;

namespace {

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

} // namespace

/// The texts beside and in the fields of the form.
class TestDynamicFormTexts : public QObject {
    Q_OBJECT

private slots:
    void labelOfARow_data();
    void labelOfARow();
    void knownLabelsAreTranslated();
    void labelIsPlainText();
    void placeholderOfAField_data();
    void placeholderOfAField();
    void toolTipIsPlainText();
};

void TestDynamicFormTexts::labelOfARow_data()
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

void TestDynamicFormTexts::labelOfARow()
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

void TestDynamicFormTexts::knownLabelsAreTranslated()
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

void TestDynamicFormTexts::labelIsPlainText()
{
    const BuiltForm form({field(R"({"key": "k", "label": "<b>Picture</b> & sound"})")});
    const QLabel *label = labelAt(form, 0);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->text(), u"<b>Picture</b> & sound:"_s);
    // A buddy would swallow the ampersand.
    QCOMPARE(label->buddy(), nullptr);
}

void TestDynamicFormTexts::placeholderOfAField_data()
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

void TestDynamicFormTexts::placeholderOfAField()
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

void TestDynamicFormTexts::toolTipIsPlainText()
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

ORVEL_TEST_MAIN(QApplication, TestDynamicFormTexts)
#include "tst_dynamicformtexts.moc"
