#include "logfixture.h"
#include "mcsgroupdialog.h"
#include "mcstaskdialog.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHelpEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QToolTip>
#include <QTreeWidget>

#include <algorithm>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

namespace {

/// What the user reads where Qt guesses at the text's format.
QString readAs(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

bool plainLabel(const QLabel *label)
{
    return label->textFormat() == Qt::PlainText ||
           (label->textFormat() == Qt::AutoText && !Qt::mightBeRichText(label->text()));
}

/// Pictures and links; what is merely coloured is none of them.
QStringList liveParts(const QTextDocument &document)
{
    QStringList parts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextCharFormat format = piece.fragment().charFormat();
            if (format.isImageFormat() || format.isAnchor())
                parts.append(piece.fragment().text());
        }
    }
    return parts;
}

/// Everything below root that would show the text other than it stands.
QStringList misreadings(const QWidget *root, const QString &text)
{
    QStringList found;
    QList<const QWidget *> widgets{root};
    for (const QWidget *child : root->findChildren<QWidget *>())
        widgets.append(child);
    for (const QWidget *widget : widgets) {
        for (const QString &help : {widget->toolTip(), widget->statusTip(), widget->whatsThis()}) {
            if (readAs(help) != help && !readAs(help).contains(text))
                found.append(u"help of "_s + describe(widget));
        }
        if (const auto *label = qobject_cast<const QLabel *>(widget);
            label != nullptr && label->text().contains(text) && !plainLabel(label))
            found.append(describe(widget));
        if (const auto *edit = qobject_cast<const QTextEdit *>(widget);
            edit != nullptr && !liveParts(*edit->document()).isEmpty())
            found.append(describe(widget));
    }
    return found;
}

/// The tool tip that comes up over an item, as the user reads it.
QString toolTipOver(QAbstractItemView *view, const QModelIndex &index)
{
    QToolTip::hideText();
    view->scrollTo(index);
    const QPoint place = view->visualRect(index).center();
    QHelpEvent event(QEvent::ToolTip, place, view->viewport()->mapToGlobal(place));
    QApplication::sendEvent(view->viewport(), &event);
    return readAs(QToolTip::text());
}

} // namespace

/// Names, statuses and messages of the daemon and the host are shown as they stand, wherever they appear: none of them
/// is laid out, loads a picture or becomes a link.
class TestOutsideTexts : public QObject {
    Q_OBJECT

private slots:
    void initTestCase_data();
    void init();
    void cleanup();
    void theWindowShowsThemAsTheyStand();
    void theLogShowsThemAsTheyStand();
    void theTaskDialogShowsThemAsTheyStand();
    void theGroupDialogShowsThemAsTheyStand();
    void theBoxesShowThemAsTheyStand();

private:
    std::unique_ptr<LogWindow> m_fixture;
    QString m_text;
};

void TestOutsideTexts::initTestCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("link") << u"<a href=\"file:///etc/passwd\">x</a>"_s;
    QTest::newRow("picture") << u"<img src=\"file:///etc/passwd\">x"_s;
    QTest::newRow("whole page") << u"<html><head><style>*{color:red}</style></head><body><h1>x</h1>&amp;lt; %1 %2"
                                   "<script>x()</script></body></html>"_s;
}

void TestOutsideTexts::init()
{
    QFETCH_GLOBAL(QString, text);
    m_text = text;
    m_fixture = std::make_unique<LogWindow>();
    m_fixture->daemon.answer(
        u"tasktype.list"_s,
        {{u"taskTypes"_s,
          QJsonArray{QJsonObject{{u"type"_s, u"task_type.screen_record"_s},
                                 {u"name"_s, m_text},
                                 {u"fields"_s, QJsonArray{QJsonObject{{u"key"_s, u"a"_s},
                                                                      {u"type"_s, u"int"_s},
                                                                      {u"label"_s, m_text},
                                                                      {u"placeholder"_s, m_text}},
                                                          QJsonObject{{u"key"_s, u"b"_s},
                                                                      {u"type"_s, u"select"_s},
                                                                      {u"label"_s, m_text},
                                                                      {u"options"_s, QJsonArray{m_text}}}}}}}}});
    QVERIFY(m_fixture->connect());
    const QJsonObject task =
        taskJson(u"t1"_s, m_text, {{u"lastRunStatus"_s, m_text}, {u"groupId"_s, u"g1"_s}, {u"description"_s, m_text}});
    m_fixture->setTasks({task});
    m_fixture->setGroups({groupJson(u"g1"_s, m_text, {{u"description"_s, m_text}, {u"color"_s, m_text}})});
    m_fixture->daemon.answer(u"task.get"_s, {{u"task"_s, task}});
    m_fixture->window->onRefreshTaskList();
    m_fixture->window->onRefreshGroups();
    QTRY_COMPARE(m_fixture->widget<QTableWidget>("taskTable")->rowCount(), 1);
}

void TestOutsideTexts::cleanup()
{
    QToolTip::hideText();
    m_fixture.reset();
    QTRY_COMPARE(openWindows(), QStringList()); // a tool tip may fade
}

void TestOutsideTexts::theWindowShowsThemAsTheyStand()
{
    auto *const table = m_fixture->widget<QTableWidget>("taskTable");
    QCOMPARE(table->item(0, 0)->text(), m_text);
    QCOMPARE(table->item(0, 4)->text(), m_text);
    const QString tip = toolTipOver(table, table->model()->index(0, 4));
    QCOMPARE(tip, m_text);

    auto *const tree = m_fixture->widget<QTreeWidget>("groupTree");
    QCOMPARE(tree->topLevelItemCount(), 1);
    QVERIFY(tree->topLevelItem(0)->text(0).startsWith(m_text));
    tree->setCurrentItem(tree->topLevelItem(0));
    QTRY_VERIFY(m_fixture->widget<QLabel>("taskCountLabel")->text().contains(m_text));
    QCOMPARE(misreadings(m_fixture->window.get(), m_text), QStringList());
}

void TestOutsideTexts::theLogShowsThemAsTheyStand()
{
    m_fixture->happen(u"task.updated"_s, m_text);
    m_fixture->happen(u"task_run.failed"_s, u"T"_s, {{u"detailsJson"_s, QJsonObject{{u"error"_s, m_text}}}});
    m_fixture->happen(m_text, u"T"_s);
    m_fixture->refresh();
    QCOMPARE(m_fixture->lines().size(), 3);
    for (const QString &line : m_fixture->lines())
        QVERIFY2(line.contains(m_text), qPrintable(line));
    QCOMPARE(liveParts(*m_fixture->view->document()), QStringList());
    QVERIFY(m_fixture->view->isReadOnly());
    QVERIFY(!(m_fixture->view->textInteractionFlags() & Qt::LinksAccessibleByMouse));
}

void TestOutsideTexts::theTaskDialogShowsThemAsTheyStand()
{
    QStringList problems{u"no dialog"_s};
    qsizetype labels = 0;
    ModalDriver driver;
    driver.expectDialog<MCsTaskDialog>(u"Edit Task"_s, [&](MCsTaskDialog *dialog) {
        problems = misreadings(dialog, m_text);
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            labels += label->text().contains(m_text) ? 1 : 0;
        dialog->reject();
    });
    m_fixture->widget<QTableWidget>("taskTable")->selectRow(0);
    click(m_fixture->window.get(), "editButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(problems, QStringList());
    QCOMPARE(labels, 2); // those of the two fields
}

void TestOutsideTexts::theGroupDialogShowsThemAsTheyStand()
{
    m_fixture->daemon.answer(u"group.list"_s,
                             {{u"groups"_s, QJsonArray{groupJson(u"g1"_s, m_text), groupJson(u"g2"_s, m_text)}}});
    m_fixture->daemon.answer(
        u"group.get"_s, {{u"group"_s, groupJson(u"g1"_s, m_text, {{u"description"_s, m_text}, {u"color"_s, m_text}})}});
    QStringList problems{u"no dialog"_s};
    bool described = false;
    bool styled = true;
    ModalDriver driver;
    driver.expectDialog<MCsGroupDialog>(u"Edit Group"_s, [&](MCsGroupDialog *dialog) {
        problems = misreadings(dialog, m_text);
        for (const QTextEdit *edit : dialog->findChildren<QTextEdit *>())
            described = described || edit->toPlainText() == m_text;
        styled = std::ranges::any_of(dialog->findChildren<QPushButton *>(), [this](const QPushButton *button) {
            return button->styleSheet().contains(m_text);
        });
        dialog->reject();
    });
    auto *const tree = m_fixture->widget<QTreeWidget>("groupTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    m_fixture->window->onEditGroup();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(problems, QStringList());
    QVERIFY(described);
    QVERIFY(!styled); // what is no colour reaches no style sheet
}

void TestOutsideTexts::theBoxesShowThemAsTheyStand()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Question, u"Confirm Delete"_s,
                     u"Are you sure you want to delete task '"_s + m_text + u"'?"_s, QMessageBox::Yes | QMessageBox::No,
                     QMessageBox::No);
    m_fixture->widget<QTableWidget>("taskTable")->selectRow(0);
    click(m_fixture->window.get(), "deleteButton");
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(driver.seen().first().textFormat, Qt::PlainText);
}

ORVEL_TEST_MAIN(QApplication, TestOutsideTexts)
#include "tst_outsidetexts.moc"
