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
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace FormFields;

namespace {

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
    void cardHasItsHeadingAboveTheRows();
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
