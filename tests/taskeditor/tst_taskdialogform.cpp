#include "mcsfilesizespinbox.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>
#include <QTextDocument>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString allTypes = u"task_type.all"_s;

/// What a widget in the focus order is called here: the fields of the form have no object names.
QString focusName(const QWidget *widget)
{
    if (widget == nullptr)
        return u"(none)"_s;
    return widget->objectName().isEmpty() ? widget->accessibleName() : widget->objectName();
}

} // namespace

/// The dialog as a whole: its title and size, what is hidden in it, what the host's texts look like, and the focus
/// order.
class TestTaskDialogForm : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void titleTellsNewFromStored();
    void startsAtItsSize();
    void rowsThatNobodyMayChangeAreHidden();
    void typeIsOfferedOnlyWithAllTypes();
    void threeModesAreNotOffered();
    void customOutputStartsDisabled();
    void buttonsAreSaveAndCancel();
    void programNameStandsBesideTheStartHeading_data();
    void programNameStandsBesideTheStartHeading();
    void programPathIsAPlainToolTip_data();
    void programPathIsAPlainToolTip();
    void sizeFieldReplacesTheSpinBoxOfTheForm();
    void tabGoesThroughTheFieldsBeforeTheOutput();
    void tabOrderSurvivesARebuiltForm();
    void tabReachesTheSizeFieldInItsPlace();
    void eachFieldIsNamedForScreenReaders();

private:
    /// Names of what the Tab key reaches from one widget up to another one, both included.
    [[nodiscard]] QStringList tabStops(const char *first, const char *last) const;
};

QStringList TestTaskDialogForm::tabStops(const char *first, const char *last) const
{
    widget<QWidget>(first)->setFocus(Qt::TabFocusReason);
    QStringList names{focusName(m_dialog->focusWidget())};
    while (names.last() != QLatin1StringView(last) && names.size() < 40) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
        names.append(focusName(m_dialog->focusWidget()));
    }
    return names;
}

void TestTaskDialogForm::titleTellsNewFromStored()
{
    openForCreate();
    QCOMPARE(m_dialog->windowTitle(), u"Create Task"_s);
    openForEdit();
    QCOMPARE(m_dialog->windowTitle(), u"Edit Task"_s);
}

void TestTaskDialogForm::startsAtItsSize()
{
    const MCsTaskDialog dialog(m_client.get(), {}, m_programName, m_programPath, {}, {}, nullptr);
    QCOMPARE(dialog.size(), QSize(1000, 700));
    QCOMPARE(dialog.minimumSize(), QSize(0, 0));
    QCOMPARE(dialog.cursor().shape(), Qt::ArrowCursor);
}

void TestTaskDialogForm::rowsThatNobodyMayChangeAreHidden()
{
    for (const QString &type : {u"task_type.screen_record"_s, allTypes}) {
        setClientType(type);
        openForCreate();
        QVERIFY(widget<QLabel>("labelTargetProgram")->isHidden());
        QVERIFY(widget<QLineEdit>("targetProgramEdit")->isHidden());
        QVERIFY(widget<QLineEdit>("programNameEdit")->isVisible());
    }
}

void TestTaskDialogForm::typeIsOfferedOnlyWithAllTypes()
{
    openForCreate();
    QVERIFY(widget<QLabel>("labelTaskType")->isHidden());
    QVERIFY(widget<QComboBox>("typeCombo")->isHidden());
    setClientType(allTypes);
    openForCreate();
    QVERIFY(widget<QLabel>("labelTaskType")->isVisible());
    QVERIFY(widget<QComboBox>("typeCombo")->isVisible());
}

void TestTaskDialogForm::threeModesAreNotOffered()
{
    openForCreate();
    QStringList hidden;
    const QList<QRadioButton *> radios = m_dialog->findChildren<QRadioButton *>();
    for (const QRadioButton *radio : radios) {
        if (!radio->isVisible())
            hidden.append(radio->objectName());
    }
    hidden.sort();
    QCOMPARE(hidden, (QStringList{u"startModeMonitorApp"_s, u"startModeMonitorFolder"_s, u"stopModeAtTime"_s}));
}

void TestTaskDialogForm::customOutputStartsDisabled()
{
    openForCreate();
    QVERIFY(!widget<QWidget>("customOutputWidget")->isEnabled());
    QVERIFY(widget<QWidget>("customOutputWidget")->isVisible());
}

void TestTaskDialogForm::buttonsAreSaveAndCancel()
{
    openForCreate();
    QCOMPARE(widget<QDialogButtonBox>("buttonBox")->standardButtons(),
             QDialogButtonBox::Save | QDialogButtonBox::Cancel);
}

void TestTaskDialogForm::programNameStandsBesideTheStartHeading_data()
{
    QTest::addColumn<QString>("programName");
    QTest::addColumn<QString>("shown");
    QTest::newRow("name") << u"Recorder"_s << u" [ Recorder ] "_s;
    QTest::newRow("no name") << QString() << QString();
    QTest::newRow("markup") << u"<b>R</b>&amp;"_s << u" [ <b>R</b>&amp; ] "_s;
    QTest::newRow("place marker") << u"100%1"_s << u" [ 100%1 ] "_s;
}

void TestTaskDialogForm::programNameStandsBesideTheStartHeading()
{
    QFETCH(const QString, programName);
    QFETCH(const QString, shown);
    m_programName = programName;
    openForCreate();
    ORVEL_REQUIRE_WIDGET(QLabel, label, m_dialog.get(), "m_startProgramName");
    QCOMPARE(label->text(), shown);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(widget<QLineEdit>("programNameEdit")->text(), programName);
}

void TestTaskDialogForm::programPathIsAPlainToolTip_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("path") << u"C:\\Program Files\\Recorder\\recorder.exe"_s;
    QTest::newRow("markup") << u"/opt/<img src=x><b>recorder</b>"_s;
}

void TestTaskDialogForm::programPathIsAPlainToolTip()
{
    QFETCH(const QString, path);
    m_programPath = path;
    openForCreate();
    const QString toolTip = widget<QLineEdit>("programNameEdit")->toolTip();
    QTextDocument shown;
    if (Qt::mightBeRichText(toolTip))
        shown.setHtml(toolTip);
    else
        shown.setPlainText(toolTip);
    QCOMPARE(shown.toPlainText(), path);
    QCOMPARE(widget<QLineEdit>("targetProgramEdit")->text(), path);
}

void TestTaskDialogForm::sizeFieldReplacesTheSpinBoxOfTheForm()
{
    openForCreate();
    const auto *const form = m_dialog->findChild<QFormLayout *>(u"byFileSizeFormLayout"_s);
    QVERIFY(form != nullptr);
    const auto *const field = qobject_cast<MCsFileSizeSpinBox *>(form->itemAt(0, QFormLayout::FieldRole)->widget());
    QVERIFY(field != nullptr);
    QCOMPARE(field->parentWidget(), widget<QWidget>("byFileSizeWidget"));
    QCOMPARE(field->bytes(), qint64(1073741824));
    QCOMPARE(field->text(), u"1024.0 MB"_s);
    QCOMPARE(form->rowCount(), 1);
    QCOMPARE(form->labelForField(const_cast<MCsFileSizeSpinBox *>(field)), widget<QLabel>("labelFileSize"));
    QTRY_VERIFY(m_dialog->findChild<QWidget *>(u"fileSizeBytesSpin"_s) == nullptr);
}

void TestTaskDialogForm::tabGoesThroughTheFieldsBeforeTheOutput()
{
    openForCreate();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QCOMPARE(
        tabStops("nameEdit", "useDefaultOutputRadio"),
        (QStringList{u"nameEdit"_s, u"groupCombo"_s, u"fps"_s, u"format"_s, u"title"_s, u"useDefaultOutputRadio"_s}));
}

void TestTaskDialogForm::tabOrderSurvivesARebuiltForm()
{
    setClientType(allTypes);
    openForCreate();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QTest::keyClick(widget<QComboBox>("typeCombo"), Qt::Key_Down);
    QCOMPARE(tabStops("nameEdit", "useDefaultOutputRadio"),
             (QStringList{u"nameEdit"_s, u"typeCombo"_s, u"groupCombo"_s, u"useDefaultOutputRadio"_s}));
    QTest::keyClick(widget<QComboBox>("typeCombo"), Qt::Key_Up);
    QCOMPARE(tabStops("nameEdit", "useDefaultOutputRadio"),
             (QStringList{u"nameEdit"_s, u"typeCombo"_s, u"groupCombo"_s, u"fps"_s, u"format"_s, u"title"_s,
                          u"useDefaultOutputRadio"_s}));
}

void TestTaskDialogForm::tabReachesTheSizeFieldInItsPlace()
{
    openForCreate();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    QList<const QWidget *> order;
    const QWidget *stop = widget<QWidget>("nameEdit");
    do {
        order.append(stop);
        stop = stop->nextInFocusChain();
    } while (stop != order.first());
    const auto place = [&order](const QWidget *each) { return order.indexOf(each); };
    const auto size = place(m_dialog->findChild<MCsFileSizeSpinBox *>());
    QVERIFY(place(widget<QWidget>("durationMinutesSpin")) < size);
    QVERIFY(size < place(widget<QWidget>("stopAtTimeEdit")));

    choose("stopModeByFileSize");
    QCOMPARE(tabStops("stopModeByFileSize", "afterActionNone"),
             (QStringList{u"stopModeByFileSize"_s, m_dialog->findChild<MCsFileSizeSpinBox *>()->objectName(),
                          u"afterActionNone"_s}));
}

// By the label in front of it, by an accessible name, or by a text of its own.
void TestTaskDialogForm::eachFieldIsNamedForScreenReaders()
{
    openForCreate();
    QSet<const QWidget *> named;
    for (const QLabel *label : m_dialog->findChildren<QLabel *>()) {
        if (label->buddy() != nullptr && !label->text().isEmpty())
            named.insert(label->buddy());
    }
    int fields = 0;
    for (QWidget *field : m_dialog->findChildren<QWidget *>()) {
        const bool isField =
            qobject_cast<QLineEdit *>(field) != nullptr || qobject_cast<QComboBox *>(field) != nullptr ||
            qobject_cast<QAbstractSpinBox *>(field) != nullptr || qobject_cast<QAbstractButton *>(field) != nullptr;
        if (!isField || field->objectName().startsWith("qt_"_L1)) // of Qt's own making
            continue;
        ++fields;
        const auto *button = qobject_cast<QAbstractButton *>(field);
        const bool hasText = button != nullptr && !button->text().isEmpty();
        QVERIFY2(hasText || named.contains(field) || !field->accessibleName().isEmpty(), qPrintable(describe(field)));
    }
    QVERIFY(fields > 40);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogForm)
#include "tst_taskdialogform.moc"
