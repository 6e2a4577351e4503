#include "groupdialogfixture.h"
#include "testmain.h"

#include <QColorDialog>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

QString sheetOf(const QString &color)
{
    return u"background-color: %1; color: white;"_s.arg(color);
}

} // namespace

class TestGroupDialogColor : public GroupDialogFixture {
    Q_OBJECT

private slots:
    void pickerOpensWithThePresentColor();
    void pickedColorIsShownAndSaved();
    void pickedColorLosesItsOpacity();
    void cancelledPickerChangesNothing();
    void pickerMayBeOpenedAgain();
    void dialogMayGoWhileThePickerIsOpen();
    void emptyColorOfAGroupKeepsTheDefault();
    void validColorIsShownAndSavedAsItCame_data();
    void validColorIsShownAndSavedAsItCame();
    void otherTextNeverReachesTheStyleSheet_data();
    void otherTextNeverReachesTheStyleSheet();
    void pickingMendsAnInvalidColor();
    void styleSheetGivesTheButtonItsColors();

private:
    void pick(ModalDriver &driver, const QColor &picked);
    [[nodiscard]] QString savedColor();
};

/// Drives the picker to this colour with the next click on the button.
void TestGroupDialogColor::pick(ModalDriver &driver, const QColor &picked)
{
    driver.expectDialog<QColorDialog>(u"Select Group Color"_s, [picked](QColorDialog *picker) {
        picker->setCurrentColor(picked);
        picker->accept();
    });
    click(m_dialog.get(), "colorButton");
}

QString TestGroupDialogColor::savedColor()
{
    m_daemon->clearRequests();
    save();
    return sentGroup(u"group.update"_s).value("color"_L1).toString();
}

void TestGroupDialogColor::pickerOpensWithThePresentColor()
{
    openForEdit();
    ModalDriver driver;
    driver.expectDialog<QColorDialog>(u"Select Group Color"_s, [this](QColorDialog *picker) {
        QCOMPARE(picker->currentColor(), QColor(0xe7, 0x4c, 0x3c));
        QCOMPARE(picker->options(), QColorDialog::ColorDialogOptions());
        QCOMPARE(picker->parentWidget(), m_dialog.get());
        picker->reject();
    });
    QVERIFY(click(m_dialog.get(), "colorButton"));
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupDialogColor::pickedColorIsShownAndSaved()
{
    openForEdit();
    ModalDriver driver;
    pick(driver, QColor(0x12, 0xAB, 0x0F));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(color()->styleSheet(), sheetOf(u"#12ab0f"_s));
    QCOMPARE(savedColor(), u"#12ab0f"_s);
    QVERIFY(m_dialog->findChild<QColorDialog *>() == nullptr);
}

void TestGroupDialogColor::pickedColorLosesItsOpacity()
{
    answerGroup({{u"color"_s, u"#80ff0000"_s}});
    openForEdit();
    QCOMPARE(color()->styleSheet(), sheetOf(u"#80ff0000"_s));
    ModalDriver driver;
    pick(driver, QColor(0x12, 0xAB, 0x0F, 0x40));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(savedColor(), u"#12ab0f"_s);
}

void TestGroupDialogColor::cancelledPickerChangesNothing()
{
    openForEdit();
    ModalDriver driver;
    driver.expectDialog<QColorDialog>(u"Select Group Color"_s, [](QColorDialog *picker) {
        picker->setCurrentColor(Qt::green);
        picker->reject();
    });
    QVERIFY(click(m_dialog.get(), "colorButton"));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(color()->styleSheet(), sheetOf(u"#e74c3c"_s));
    QCOMPARE(savedColor(), u"#e74c3c"_s);
}

void TestGroupDialogColor::pickerMayBeOpenedAgain()
{
    openForEdit();
    ModalDriver driver;
    pick(driver, QColor(Qt::green));
    driver.expectDialog<QColorDialog>(u"Select Group Color"_s, [](QColorDialog *picker) {
        QCOMPARE(picker->currentColor(), QColor(Qt::green));
        picker->reject();
    });
    QVERIFY(click(m_dialog.get(), "colorButton"));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(color()->styleSheet(), sheetOf(u"#00ff00"_s));
}

void TestGroupDialogColor::dialogMayGoWhileThePickerIsOpen()
{
    openForEdit();
    ModalDriver driver;
    driver.expectDialog<QColorDialog>(u"Select Group Color"_s, [this](QColorDialog *) { m_dialog.reset(); });
    QVERIFY(click(m_dialog.get(), "colorButton"));
    QVERIFY2(driver.finished(), driver.problems());
    QVERIFY(m_dialog == nullptr);
}

void TestGroupDialogColor::emptyColorOfAGroupKeepsTheDefault()
{
    answerGroup({{u"color"_s, QString()}});
    openForEdit();
    QCOMPARE(color()->styleSheet(), sheetOf(u"#3498db"_s));
    QCOMPARE(savedColor(), u"#3498db"_s);
}

void TestGroupDialogColor::validColorIsShownAndSavedAsItCame_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    for (const QString &text :
         {u"#3498DB"_s, u"#abc"_s, u"#80ff0000"_s, u"#123456789"_s, u"#123412341234"_s, u"red"_s, u"LightBlue"_s})
        QTest::addRow("%s", qPrintable(text)) << text << text;
    QTest::newRow("blanks are no part of a name") << u"light\tblue "_s << u"lightblue"_s;
}

void TestGroupDialogColor::validColorIsShownAndSavedAsItCame()
{
    QFETCH(const QString, text);
    QFETCH(const QString, shown);
    answerGroup({{u"color"_s, text}});
    openForEdit();
    QCOMPARE(color()->styleSheet(), sheetOf(shown));
    QCOMPARE(savedColor(), text);
}

void TestGroupDialogColor::otherTextNeverReachesTheStyleSheet_data()
{
    QTest::addColumn<QString>("text");
    const QString attack = u"; border-image: url(/etc/passwd)"_s;
    QTest::newRow("no color") << u"nonsense"_s;
    QTest::newRow("blank") << u" "_s;
    QTest::newRow("declaration behind a color") << u"red"_s + attack;
    QTest::newRow("declaration behind digits") << u"#ff0000"_s + attack;
    QTest::newRow("rule behind a color") << u"red; } QWidget { color: red"_s;
    QTest::newRow("behind a character beyond Latin-1") << u"red→"_s + attack;
    QTest::newRow("behind a null character") << u"red"_s + QChar(u'\0') + attack;
    QTest::newRow("behind a line break") << u"red\n"_s + attack;
    QTest::newRow("function") << u"rgb(255, 0, 0)"_s;
    QTest::newRow("place marker") << u"%1"_s;
    QTest::newRow("blanks between digits") << u"#34 98 db"_s;
    QTest::newRow("digits too few") << u"#12"_s;
    QTest::newRow("digits of another alphabet") << u"#١٢٣٤٥٦"_s;
}

void TestGroupDialogColor::otherTextNeverReachesTheStyleSheet()
{
    QFETCH(const QString, text);
    answerGroup({{u"color"_s, text}});
    openForEdit();
    QCOMPARE(color()->styleSheet(), QString());
    QCOMPARE(name()->text(), u"Nightly"_s);

    ModalDriver driver;
    driver.expectBox(QMessageBox::Warning, u"Validation Error"_s, u"Invalid color format."_s);
    QCOMPARE(savedColor(), QString());
    QVERIFY2(driver.finished(), driver.problems());
}

void TestGroupDialogColor::pickingMendsAnInvalidColor()
{
    answerGroup({{u"color"_s, u"nonsense"_s}});
    openForEdit();
    ModalDriver driver;
    pick(driver, QColor(Qt::blue));
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(color()->styleSheet(), sheetOf(u"#0000ff"_s));
    QCOMPARE(savedColor(), u"#0000ff"_s);
}

void TestGroupDialogColor::styleSheetGivesTheButtonItsColors()
{
    openForEdit();
    QCOMPARE(color()->palette().color(QPalette::Button), QColor(0xe7, 0x4c, 0x3c));
    QCOMPARE(color()->palette().color(QPalette::ButtonText), QColor(Qt::white));
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogColor)
#include "tst_groupdialogcolor.moc"
