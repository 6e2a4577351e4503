#include "groupdialogfixture.h"
#include "testmain.h"

#include <QApplication>
#include <QFormLayout>
#include <QLabel>
#include <QToolTip>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

/// Translates everything, Qt's own texts too.
class MarkingTranslator : public QTranslator {
public:
    QString translate(const char * /*context*/, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return u"translated "_s + QString::fromUtf8(source);
    }
    [[nodiscard]] bool isEmpty() const override
    {
        return false;
    }
};

/// The tool tip that a widget shows; null when none came.
QImage toolTipOf(QWidget *widget)
{
    QToolTip::showText(widget->mapToGlobal(QPoint()), widget->toolTip(), widget);
    QImage image;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("QTipLabel") && window->isVisible())
            image = window->grab().toImage();
    }
    return image;
}

} // namespace

class TestGroupDialogForm : public GroupDialogFixture {
    Q_OBJECT

private slots:
    void fieldsStandInOrderWithTheirLabels();
    void fieldsHaveTheirSettings();
    void theSpinBoxHasDrawnArrows();
    void theSpinBoxDressesNoToolTip();
    void noteAndButtonsFollowTheForm();
    void titleTellsTheMode();
    void textsStayEnglishWithATranslator();
    void tabLeadsOnFromTheDescription();
};

void TestGroupDialogForm::fieldsStandInOrderWithTheirLabels()
{
    openForCreate();
    const auto *form = m_dialog->findChild<QFormLayout *>();
    QVERIFY(form != nullptr);
    QCOMPARE(form->rowCount(), 5);
    const QList<std::pair<QString, QWidget *>> rows{{u"Name*:"_s, name()},
                                                    {u"Description:"_s, description()},
                                                    {u"Color:"_s, color()},
                                                    {u"Parent Group:"_s, parentGroup()},
                                                    {u"Display Order:"_s, displayOrder()}};
    for (int row = 0; row < 5; ++row) {
        const auto *label = qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::LabelRole)->widget());
        QVERIFY(label != nullptr);
        QCOMPARE(label->text(), rows.at(row).first);
        QCOMPARE(label->buddy(), rows.at(row).second);
        QLayoutItem *field = form->itemAt(row, QFormLayout::FieldRole);
        if (row != 2) {
            QCOMPARE(field->widget(), rows.at(row).second);
            continue;
        }
        QCOMPARE(field->layout()->count(), 2);
        QCOMPARE(field->layout()->itemAt(0)->widget(), color());
        QVERIFY(field->layout()->itemAt(1)->spacerItem() != nullptr);
    }
}

void TestGroupDialogForm::fieldsHaveTheirSettings()
{
    openForCreate();
    QCOMPARE(m_dialog->size(), QSize(500, 400));
    QCOMPARE(name()->maxLength(), 100);
    QCOMPARE(name()->text(), QString());
    QCOMPARE(name()->placeholderText(), u"Enter group name (max 100 characters)"_s);
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QVERIFY(name()->hasFocus());
    QCOMPARE(description()->maximumHeight(), 100);
    QCOMPARE(description()->placeholderText(), u"Enter group description (optional)"_s);
    QCOMPARE(color()->text(), u"Choose Color"_s);
    QCOMPARE(color()->styleSheet(), u"background-color: #3498db; color: white;"_s);
    QCOMPARE(parentGroup()->count(), 1);
    QCOMPARE(parentGroup()->currentText(), u"(None - Top Level)"_s);
    QCOMPARE(parentGroup()->itemData(0), QVariant(QString()));
    QVERIFY(!parentGroup()->isEditable());
    QCOMPARE(displayOrder()->minimum(), 0);
    QCOMPARE(displayOrder()->maximum(), 9999);
    QCOMPARE(displayOrder()->value(), 0);
    QCOMPARE(displayOrder()->toolTip(), u"Lower numbers appear first"_s);
}

void TestGroupDialogForm::theSpinBoxHasDrawnArrows()
{
    openForCreate();
    QVERIFY(displayOrder()->property("win10SpinBoxStyleApplied").toBool());
    QCOMPARE(displayOrder()->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
}

void TestGroupDialogForm::theSpinBoxDressesNoToolTip()
{
    openForCreate();
    QSpinBox plain(m_dialog.get());
    plain.setToolTip(displayOrder()->toolTip());
    plain.show();
    const QImage expected = toolTipOf(&plain);
    QVERIFY(!expected.isNull());
    QCOMPARE(toolTipOf(displayOrder()), expected);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestGroupDialogForm::noteAndButtonsFollowTheForm()
{
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QLabel, note, m_dialog.get(), "noteLabel");
    ORVEL_REQUIRE_WIDGET(QDialogButtonBox, buttons, m_dialog.get(), "buttonBox");
    QCOMPARE(note->text(),
             u"<i>Note: Groups can be nested up to 2 levels deep. Circular references are not allowed.</i>"_s);
    QVERIFY(note->wordWrap());
    QCOMPARE(note->styleSheet(), u"color: gray; font-size: 10pt;"_s);
    QCOMPARE(buttons->standardButtons(), QDialogButtonBox::Save | QDialogButtonBox::Cancel);

    QLayout *layout = m_dialog->layout();
    QCOMPARE(layout->count(), 4);
    QVERIFY(qobject_cast<QFormLayout *>(layout->itemAt(0)->layout()) != nullptr);
    QCOMPARE(layout->itemAt(1)->widget(), note);
    QVERIFY(layout->itemAt(2)->spacerItem() != nullptr);
    QCOMPARE(layout->itemAt(3)->widget(), buttons);
}

void TestGroupDialogForm::titleTellsTheMode()
{
    openForCreate();
    QCOMPARE(m_dialog->windowTitle(), u"Create Group"_s);
    openForEdit();
    QCOMPARE(m_dialog->windowTitle(), u"Edit Group"_s);
}

void TestGroupDialogForm::textsStayEnglishWithATranslator()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    openForEdit();
    QStringList texts{m_dialog->windowTitle(),
                      name()->placeholderText(),
                      description()->placeholderText(),
                      displayOrder()->toolTip(),
                      color()->text(),
                      parentGroup()->itemText(0),
                      button(QDialogButtonBox::Save)->text(),
                      button(QDialogButtonBox::Cancel)->text()};
    const QList<QLabel *> labels = m_dialog->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts.append(label->text());
    QCOMPARE(texts, (QStringList{u"Edit Group"_s, u"Enter group name (max 100 characters)"_s,
                                 u"Enter group description (optional)"_s, u"Lower numbers appear first"_s,
                                 u"Choose Color"_s, u"(None - Top Level)"_s, u"Save"_s, u"Cancel"_s, u"Name*:"_s,
                                 u"Description:"_s, u"Color:"_s, u"Parent Group:"_s, u"Display Order:"_s,
                                 u"<i>Note: Groups can be nested up to 2 levels deep. Circular references are not "
                                 "allowed.</i>"_s}));

    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Validation Error"_s, u"Group name cannot be empty."_s);
    name()->clear();
    save();
    m_daemon->refuse(u"group.update"_s, u"BUSY"_s, u"later"_s);
    driver.expectBox(QMessageBox::Critical, u"Error"_s,
                     u"Failed to save group. Please check the error log for details."_s);
    name()->setText(u"x"_s);
    save();
    driver.expectDialog<QDialog>(u"Select Group Color"_s, [](QDialog *picker) { picker->reject(); });
    click(m_dialog.get(), "colorButton");
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupDialogForm::tabLeadsOnFromTheDescription()
{
    openForCreate();
    description()->setFocus();
    QTest::keyClick(description(), Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), color());
    QCOMPARE(description()->toPlainText(), QString());
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogForm)
#include "tst_groupdialogform.moc"
