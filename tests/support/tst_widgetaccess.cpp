#include "testmain.h"
#include "widgetaccess.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace TestSupport;

class TestWidgetAccess : public QObject {
    Q_OBJECT

private slots:
    void missingWidgetIsReportedWithItsNamesakes();
    void buttonThatCannotBePressedIsReported();
    void missingWidgetOrButtonFailsTheTest();
    void clickPressesTheNamedButton();
};

void TestWidgetAccess::missingWidgetIsReportedWithItsNamesakes()
{
    QWidget window;
    const auto addLabel = [&window](const QString &name) { (new QLabel(&window))->setObjectName(name); };
    addLabel(u"one"_s);
    addLabel(u"two"_s);
    addLabel(u"two"_s);

    QString problem;
    QVERIFY(findWidget(&window, "one", QLabel::staticMetaObject, &problem) != nullptr);
    QVERIFY(findWidget(&window, "one", QWidget::staticMetaObject, &problem) != nullptr);
    QCOMPARE(problem, QString());
    QCOMPARE(require<QLabel>(&window, "one")->objectName(), u"one"_s);

    QVERIFY(findWidget(&window, "none", QLabel::staticMetaObject, &problem) == nullptr);
    QCOMPARE(problem, u"no QLabel named \"none\" in QWidget titled \"\""_s);
    QVERIFY(findWidget(&window, "one", QPushButton::staticMetaObject, &problem) == nullptr);
    QCOMPARE(problem, u"no QPushButton named \"one\" in QWidget titled \"\"; there is: QLabel named \"one\""_s);
    QVERIFY(findWidget(&window, "two", QLabel::staticMetaObject, &problem) == nullptr);
    QVERIFY(problem.startsWith("more than one QLabel named \"two\""_L1));
    QVERIFY(findWidget(nullptr, "one", QLabel::staticMetaObject, &problem) == nullptr);
    QCOMPARE(problem, u"no QLabel named \"one\" in no widget"_s);
}

void TestWidgetAccess::buttonThatCannotBePressedIsReported()
{
    QWidget window;
    QPushButton button(&window);
    button.setObjectName(u"go"_s);
    QVERIFY(clickProblem(nullptr).contains("missing"_L1));
    QCOMPARE(clickProblem(&button), u"the button to click is hidden: QPushButton named \"go\""_s);
    window.show();
    QCOMPARE(clickProblem(&button), QString());
    button.setEnabled(false);
    QCOMPARE(clickProblem(&button), u"the button to click is disabled: QPushButton named \"go\""_s);
    button.setEnabled(true);

    QDialog modal;
    modal.setWindowTitle(u"Modal"_s);
    QPushButton inside(&modal);
    modal.open();
    QCOMPARE(clickProblem(&inside), QString());
    QCOMPARE(clickProblem(&button),
             u"the button to click, QPushButton named \"go\", is blocked by QDialog titled \"Modal\""_s);
}

void TestWidgetAccess::missingWidgetOrButtonFailsTheTest()
{
    QWidget window;
    QPushButton hidden(&window);
    hidden.setObjectName(u"hidden"_s);
    QEXPECT_FAIL("", "no such widget", Continue);
    QVERIFY(require<QLabel>(&window, "none") == nullptr);
    QEXPECT_FAIL("", "no such button", Continue);
    QVERIFY(!click(&window, "none"));
    QEXPECT_FAIL("", "button is hidden", Continue);
    QVERIFY(!click(&window, "hidden"));
}

void TestWidgetAccess::clickPressesTheNamedButton()
{
    QWidget window;
    QCheckBox box(&window);
    box.setObjectName(u"box"_s);
    window.show();
    QVERIFY(click(&window, "box"));
    QVERIFY(box.isChecked());
    ORVEL_REQUIRE_WIDGET(QCheckBox, found, &window, "box");
    QVERIFY(click(found));
    QVERIFY(!box.isChecked());
}

ORVEL_TEST_MAIN(QApplication, TestWidgetAccess)
#include "tst_widgetaccess.moc"
