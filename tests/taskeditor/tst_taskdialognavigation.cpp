#include "mcsdynamicformwidget.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QComboBox>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString allTypes = u"task_type.all"_s;
const QString withoutFields = u"task_type.audio_record"_s;
const QString formTitle = u"⚙️ Program Parameters"_s;

QStringList titles(bool withForm)
{
    QStringList all{u"📋 Basic Info"_s,     u"💾 Output"_s,     u"🚀 Before Start"_s, u"⏰ Start Target Program"_s,
                    u"⏹️ Auto Stop"_s, u"🏁 After Stop"_s, u"🖥️ Display"_s};
    if (withForm)
        all.insert(1, formTitle);
    return all;
}

} // namespace

/// The list of sections beside the page.
class TestTaskDialogNavigation : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void typeWithFieldsHasEightSections();
    void typeWithoutFieldsHasSevenSectionsAndNoForm();
    void storedTaskHasTheSectionsOfItsType();
    void changeOfTypeRebuildsTheSections();
    void clickScrollsToTheCard_data();
    void clickScrollsToTheCard();
    void clickAfterARebuildScrollsToTheCardOfItsRow();
    void scrollingThePageKeepsTheSelectedRow();
    void currentRowAloneScrollsNothing();

private:
    [[nodiscard]] QListWidget *list() const;
    [[nodiscard]] QScrollBar *bar() const;
    [[nodiscard]] QStringList rows() const;
    void clickRow(int row) const;
    /// Where the page stands when this card is at its top, as far as the page goes.
    [[nodiscard]] int topOf(const QWidget *card) const;
    void changeType(int key) const;
};

QListWidget *TestTaskDialogNavigation::list() const
{
    return widget<QListWidget>("navList");
}

QScrollBar *TestTaskDialogNavigation::bar() const
{
    return widget<QScrollArea>("scrollArea")->verticalScrollBar();
}

QStringList TestTaskDialogNavigation::rows() const
{
    QStringList texts;
    for (int row = 0; row < list()->count(); ++row)
        texts.append(list()->item(row)->text());
    return texts;
}

void TestTaskDialogNavigation::clickRow(int row) const
{
    const QRect rect = list()->visualItemRect(list()->item(row));
    QVERIFY(list()->viewport()->rect().contains(rect.center()));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, rect.center());
}

int TestTaskDialogNavigation::topOf(const QWidget *card) const
{
    return std::min(card->mapTo(widget<QWidget>("scrollWidget"), QPoint(0, 0)).y(), bar()->maximum());
}

void TestTaskDialogNavigation::changeType(int key) const
{
    QTest::keyClick(widget<QComboBox>("typeCombo"), Qt::Key(key));
}

void TestTaskDialogNavigation::typeWithFieldsHasEightSections()
{
    openForCreate();
    QCOMPARE(rows(), titles(true));
    QCOMPARE(list()->currentRow(), 0);
    QVERIFY(m_dialog->findChild<MCsDynamicFormWidget *>()->isVisible());
}

void TestTaskDialogNavigation::typeWithoutFieldsHasSevenSectionsAndNoForm()
{
    setClientType(withoutFields);
    openForCreate();
    QCOMPARE(rows(), titles(false));
    QCOMPARE(list()->currentRow(), 0);
    QVERIFY(m_dialog->findChild<MCsDynamicFormWidget *>()->isHidden());
}

void TestTaskDialogNavigation::storedTaskHasTheSectionsOfItsType()
{
    openForEdit();
    QCOMPARE(rows(), titles(true));
    setClientType(withoutFields);
    openForEdit({}, {{u"type"_s, withoutFields}});
    QCOMPARE(rows(), titles(false));
    QCOMPARE(list()->currentRow(), 0);
}

void TestTaskDialogNavigation::changeOfTypeRebuildsTheSections()
{
    setClientType(allTypes);
    openForCreate();
    QCOMPARE(rows(), titles(true));
    clickRow(4);
    QCOMPARE(list()->currentRow(), 4);
    changeType(Qt::Key_Down);
    QCOMPARE(rows(), titles(false));
    QCOMPARE(list()->currentRow(), 0);
    clickRow(3);
    changeType(Qt::Key_Up);
    QCOMPARE(rows(), titles(true));
    QCOMPARE(list()->currentRow(), 0);
}

void TestTaskDialogNavigation::clickScrollsToTheCard_data()
{
    QTest::addColumn<QString>("card");
    QTest::addColumn<int>("row");
    QTest::newRow("basic") << u"basicGroup"_s << 0;
    QTest::newRow("form") << QString() << 1;
    QTest::newRow("output") << u"outputGroup"_s << 2;
    QTest::newRow("before") << u"actionBeforeGroup"_s << 3;
    QTest::newRow("start") << u"startRecordingGroup"_s << 4;
    QTest::newRow("stop") << u"autoStopGroup"_s << 5;
    QTest::newRow("after") << u"actionAfterGroup"_s << 6;
    QTest::newRow("display") << u"displayGroup"_s << 7;
}

void TestTaskDialogNavigation::clickScrollsToTheCard()
{
    QFETCH(const QString, card);
    QFETCH(const int, row);
    openForCreate();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    const QWidget *const target =
        card.isEmpty() ? m_dialog->findChild<MCsDynamicFormWidget *>() : widget<QWidget>(qPrintable(card));
    QVERIFY(bar()->maximum() > 0);
    bar()->setValue(row == 0 ? bar()->maximum() : 0);
    clickRow(row);
    QCOMPARE(bar()->value(), topOf(target));
    QCOMPARE(list()->currentRow(), row);
    QVERIFY(row == 0 || bar()->value() > 0);
}

void TestTaskDialogNavigation::clickAfterARebuildScrollsToTheCardOfItsRow()
{
    setClientType(allTypes);
    openForCreate();
    changeType(Qt::Key_Down);
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    QTRY_VERIFY(bar()->maximum() > 0);
    clickRow(1);
    const int output = topOf(widget<QWidget>("outputGroup"));
    QVERIFY(output > 0);
    QCOMPARE(bar()->value(), output);
}

void TestTaskDialogNavigation::scrollingThePageKeepsTheSelectedRow()
{
    openForCreate();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    clickRow(2);
    for (const int value : {bar()->maximum(), 0}) {
        bar()->setValue(value);
        QCOMPARE(list()->currentRow(), 2);
    }
}

void TestTaskDialogNavigation::currentRowAloneScrollsNothing()
{
    openForCreate();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    list()->setCurrentRow(4);
    QCOMPARE(bar()->value(), 0);
}

ORVEL_TEST_MAIN(QApplication, TestTaskDialogNavigation)
#include "tst_taskdialognavigation.moc"
