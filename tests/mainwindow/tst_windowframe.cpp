#include "mcsgrouptreewidget.h"
#include "mcstasktablewidget.h"
#include "testmain.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSplitter>
#include <QStatusBar>
#include <QTextEdit>

using namespace Scheduler;
using namespace TestSupport;
using namespace Qt::StringLiterals;

/// The frame of the window, as tables.
class TestWindowFrame : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void theWindow();
    void widgetsStandInTheirParents_data();
    void widgetsStandInTheirParents();
    void layoutsHaveTheirMargins_data();
    void layoutsHaveTheirMargins();
    void layoutsHoldTheirItemsInOrder_data();
    void layoutsHoldTheirItemsInOrder();
    void labelsHaveTheirTexts_data();
    void labelsHaveTheirTexts();
    void buttonsShowAnIconAndNothingElse_data();
    void buttonsShowAnIconAndNothingElse();
    void buttonsHaveANameForScreenReaders();
    void sizesAreLimited_data();
    void sizesAreLimited();
    void styleRules_data();
    void styleRules();
    void theTree();
    void theTable();
    void theLogView();
    void proportions();
    void theStatusBar();
    void theFilterIsHiddenAndItsLabelShown();
    void theContextMenu();
    void controlsAreOffUntilConnected();
    void slotsAreDeclared();
    void theWindowWithoutArguments();

private:
    std::unique_ptr<WindowFixture> m_fixture;
    MCsMainWindow *m_window = nullptr;
};

void TestWindowFrame::initTestCase()
{
    m_fixture = std::make_unique<WindowFixture>();
    m_fixture->open();
    m_window = m_fixture->window.get();
}

void TestWindowFrame::cleanupTestCase()
{
    m_fixture.reset();
}

void TestWindowFrame::theWindow()
{
    QCOMPARE(m_window->objectName(), u"MCsMainWindow"_s);
    QCOMPARE(m_window->size(), QSize(983, 700));
    QCOMPARE(m_window->windowTitle(), u"Orvel Task Scheduler - Foo"_s);
    QVERIFY(m_window->menuWidget() == nullptr);
    QVERIFY(m_window->findChildren<QAction *>(Qt::FindDirectChildrenOnly).isEmpty());
    QCOMPARE(m_window->centralWidget()->objectName(), u"centralwidget"_s);
}

void TestWindowFrame::widgetsStandInTheirParents_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("parent");
    const auto row = [](const char *name, const char *className, const char *parent) {
        QTest::newRow(name) << QByteArray(name) << QByteArray(className) << QByteArray(parent);
    };
    row("centralwidget", "QWidget", "MCsMainWindow");
    row("label_2", "QLabel", "centralwidget");
    row("mainSplitter", "QSplitter", "centralwidget");
    row("leftPanel", "QWidget", "mainSplitter");
    row("groupTree", "Scheduler::MCsGroupTreeWidget", "leftPanel");
    for (const char *name : {"createGroupButton", "editGroupButton", "deleteGroupButton", "refreshGroupButton"})
        row(name, "QPushButton", "leftPanel");
    row("rightPanel", "QWidget", "mainSplitter");
    row("label", "QLabel", "rightPanel");
    for (const char *name : {"createButton", "editButton", "deleteButton", "triggerButton", "refreshButton"})
        row(name, "QPushButton", "rightPanel");
    row("filterLabel", "QLabel", "rightPanel");
    row("typeFilterCombo", "QComboBox", "rightPanel");
    row("taskCountLabel", "QLabel", "rightPanel");
    row("taskTable", "Scheduler::MCsTaskTableWidget", "rightPanel");
    row("logLabel", "QLabel", "rightPanel");
    row("refreshLogButton", "QPushButton", "rightPanel");
    row("logView", "QTextEdit", "rightPanel");
    row("statusBar", "QStatusBar", "MCsMainWindow");
}

void TestWindowFrame::widgetsStandInTheirParents()
{
    QFETCH(QByteArray, name);
    ORVEL_REQUIRE_WIDGET(QWidget, widget, m_window, name.constData());
    QTEST(QByteArray(widget->metaObject()->className()), "className");
    QTEST(widget->parentWidget()->objectName().toLatin1(), "parent");
}

void TestWindowFrame::layoutsHaveTheirMargins_data()
{
    QTest::addColumn<QMargins>("margins"); // -1: the style's own
    QTest::newRow("centralLayout") << QMargins(5, 8, 5, 8);
    QTest::newRow("verticalLayout") << QMargins(0, -1, -1, -1);
    QTest::newRow("leftLayout") << QMargins(9, 6, 6, 0);
    QTest::newRow("rightLayout") << QMargins(6, 6, 9, 0);
}

void TestWindowFrame::layoutsHaveTheirMargins()
{
    QFETCH(QMargins, margins);
    const auto *layout = m_window->findChild<QLayout *>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(layout != nullptr);
    const QMargins actual = layout->contentsMargins();
    QCOMPARE(actual.left(), margins.left());
    if (margins.top() >= 0)
        QCOMPARE(actual, margins);
}

void TestWindowFrame::layoutsHoldTheirItemsInOrder_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QStringList>("items");
    const auto row = [](const char *name, const char *className, const QStringList &items) {
        QTest::newRow(name) << QByteArray(className) << items;
    };
    row("centralLayout", "QHBoxLayout", {u"verticalLayout"_s});
    row("verticalLayout", "QVBoxLayout", {u"label_2"_s, u"mainSplitter"_s});
    row("leftLayout", "QVBoxLayout", {u"groupTree"_s, u"groupButtonLayout"_s});
    row("groupButtonLayout", "QHBoxLayout",
        {u"createGroupButton"_s, u"editGroupButton"_s, u"deleteGroupButton"_s, u"refreshGroupButton"_s});
    row("rightLayout", "QVBoxLayout", {u"controlLayout"_s, u"taskTable"_s, u"logControlLayout"_s, u"logView"_s});
    row("controlLayout", "QHBoxLayout",
        {u"label"_s, u"createButton"_s, u"editButton"_s, u"deleteButton"_s, u"triggerButton"_s, u"refreshButton"_s,
         u"spacer 40x20"_s, u"filterLabel"_s, u"typeFilterCombo"_s, u"taskCountLabel"_s});
    row("logControlLayout", "QHBoxLayout", {u"logLabel"_s, u"spacer 0x0"_s, u"refreshLogButton"_s});
}

void TestWindowFrame::layoutsHoldTheirItemsInOrder()
{
    const auto *layout = m_window->findChild<QLayout *>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(layout != nullptr);
    QTEST(QByteArray(layout->metaObject()->className()), "className");
    QStringList items;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->widget() != nullptr)
            items.append(item->widget()->objectName());
        else if (item->layout() != nullptr)
            items.append(item->layout()->objectName());
        else {
            items.append(u"spacer %1x%2"_s.arg(item->sizeHint().width()).arg(item->sizeHint().height()));
            QCOMPARE(item->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
            QCOMPARE(item->spacerItem()->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        }
    }
    QTEST(items, "items");
}

void TestWindowFrame::labelsHaveTheirTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("label_2") << u"Note: To run the program, sign in to your Windows account and make sure your PC is "
                                "set not to lock automatically."_s;
    QTest::newRow("label") << u"Task: "_s;
    QTest::newRow("filterLabel") << u"Filter:"_s;
    QTest::newRow("taskCountLabel") << u"Tasks: 0"_s;
    QTest::newRow("logLabel") << u"Activity Log:"_s;
    QTest::newRow("statusLabel") << u"Disconnected"_s;
}

void TestWindowFrame::labelsHaveTheirTexts()
{
    ORVEL_REQUIRE_WIDGET(QLabel, label, m_window, QTest::currentDataTag());
    QTEST(label->text(), "text");
    QVERIFY(label->isVisible());
}

void TestWindowFrame::buttonsShowAnIconAndNothingElse_data()
{
    QTest::addColumn<QString>("image");
    for (const char *name : {"createGroupButton", "createButton"})
        QTest::newRow(name) << u"new"_s;
    for (const char *name : {"editGroupButton", "editButton"})
        QTest::newRow(name) << u"edit"_s;
    for (const char *name : {"deleteGroupButton", "deleteButton"})
        QTest::newRow(name) << u"delete"_s;
    for (const char *name : {"refreshGroupButton", "refreshButton", "refreshLogButton"})
        QTest::newRow(name) << u"refresh"_s;
    QTest::newRow("triggerButton") << u"run"_s;
}

void TestWindowFrame::buttonsShowAnIconAndNothingElse()
{
    QFETCH(QString, image);
    ORVEL_REQUIRE_WIDGET(QPushButton, button, m_window, QTest::currentDataTag());
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), QString());
    const QImage shown = button->icon().pixmap(QSize(64, 64)).toImage();
    QVERIFY(!shown.isNull());
    QCOMPARE(shown, QIcon(u":/images/%1.png"_s.arg(image)).pixmap(QSize(64, 64)).toImage());
}

void TestWindowFrame::buttonsHaveANameForScreenReaders()
{
    QStringList names;
    for (const QPushButton *button : m_window->findChildren<QPushButton *>())
        names.append(button->accessibleName());
    names.sort();
    QCOMPARE(names, QStringList({u"Create group"_s, u"Create task"_s, u"Delete group"_s, u"Delete task"_s,
                                 u"Edit group"_s, u"Edit task"_s, u"Refresh activity log"_s, u"Refresh groups"_s,
                                 u"Refresh tasks"_s, u"Run task now"_s}));
}

void TestWindowFrame::sizesAreLimited_data()
{
    QTest::addColumn<QSize>("maximum");
    QTest::newRow("label_2") << QSize(QWIDGETSIZE_MAX, 18);
    QTest::newRow("logView") << QSize(QWIDGETSIZE_MAX, 150);
    for (const char *name :
         {"createGroupButton", "editGroupButton", "deleteGroupButton", "refreshGroupButton", "refreshLogButton"})
        QTest::newRow(name) << QSize(50, QWIDGETSIZE_MAX);
    QTest::newRow("createButton") << QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

void TestWindowFrame::sizesAreLimited()
{
    ORVEL_REQUIRE_WIDGET(QWidget, widget, m_window, QTest::currentDataTag());
    QTEST(widget->maximumSize(), "maximum");
}

void TestWindowFrame::styleRules_data()
{
    QTest::addColumn<QString>("rules");
    const auto row = [](const char *selector, const QString &rules) { QTest::newRow(selector) << rules; };
    row("QWidget", u"font-family: \"Segoe UI\", \"Microsoft YaHei\"; font-size: 12px; color: #333333; "
                   "background-color: #f4f6f8;"_s);
    row("QMainWindow", u"background-color: #f4f6f8;"_s);
    row("QSplitter::handle", u"background-color: #d0d4d9; width: 1px;"_s);
    row("QGroupBox", u"border: 1px solid #d0d4d9; border-radius: 6px; margin-top: 10px; background-color: #ffffff;"_s);
    row("QGroupBox::title", u"subcontrol-origin: margin; subcontrol-position: top left; padding: 0 6px; "
                            "margin-left: 10px; color: #4a90e2; font-weight: bold;"_s);
    row("QPushButton", u"background-color: #ffffff; border: 1px solid #cfd6dd; border-radius: 4px; "
                       "padding: 4px 10px; min-height: 24px;"_s);
    row("QPushButton:hover", u"background-color: #eaf2ff; border-color: #4a90e2;"_s);
    row("QPushButton:pressed", u"background-color: #dbe9ff;"_s);
    row("QPushButton:disabled", u"background-color: #f0f0f0; color: #999999; border-color: #dddddd;"_s);
    row("QTreeWidget, QTableWidget",
        u"background-color: #ffffff; border: 1px solid #d0d4d9; border-radius: 4px; gridline-color: #e5e8eb; "
        "selection-background-color: #4a90e2; selection-color: #ffffff;"_s);
    row("QHeaderView::section", u"background-color: #f0f2f5; border: none; border-bottom: 1px solid #d0d4d9; "
                                "padding: 4px; font-weight: bold;"_s);
    row("QLineEdit, QComboBox, QSpinBox, QDateTimeEdit, QTimeEdit",
        u"background-color: #ffffff; border: 1px solid #cfd6dd; border-radius: 4px; padding: 3px 6px;"_s);
    row("QLineEdit:focus, QComboBox:focus, QSpinBox:focus, QDateTimeEdit:focus, QTimeEdit:focus",
        u"border-color: #4a90e2;"_s);
    row("QComboBox::drop-down", u"border-left: 1px solid #cfd6dd; width: 18px;"_s);
    row("QCheckBox, QRadioButton", u"spacing: 6px;"_s);
    row("QTextEdit", u"background-color: #ffffff; border: 1px solid #d0d4d9; border-radius: 4px; "
                     "font-family: Consolas, monospace;"_s);
    row("QStatusBar", u"background-color: #f0f2f5; border-top: 1px solid #d0d4d9;"_s);
}

void TestWindowFrame::styleRules()
{
    const QString selector = QString::fromLatin1(QTest::currentDataTag());
    const QRegularExpression rule(
        u"(?:^|\\})\\s*%1 \\{\\s*([^}]*?)\\s*\\}"_s.arg(QRegularExpression::escape(selector)));
    const QRegularExpressionMatch match = rule.match(m_window->styleSheet());
    QVERIFY2(match.hasMatch(), "no such rule");
    QTEST(match.captured(1).simplified(), "rules");
}

void TestWindowFrame::theTree()
{
    ORVEL_REQUIRE_WIDGET(MCsGroupTreeWidget, tree, m_window, "groupTree");
    QCOMPARE(tree->columnCount(), 1);
    QCOMPARE(tree->headerItem()->text(0), u"Groups"_s);
    QVERIFY(!tree->isHeaderHidden());
    QCOMPARE(tree->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(tree->acceptDrops());
    QVERIFY(tree->property("showDropIndicator").toBool());
    QCOMPARE(tree->dragDropMode(), QAbstractItemView::DropOnly);
    QCOMPARE(tree->selectionMode(), QAbstractItemView::SingleSelection);
}

void TestWindowFrame::theTable()
{
    ORVEL_REQUIRE_WIDGET(MCsTaskTableWidget, table, m_window, "taskTable");
    QStringList headers;
    for (int column = 0; column < table->columnCount(); ++column)
        headers.append(table->horizontalHeaderItem(column)->text());
    QCOMPARE(headers, QStringList({u"Name"_s, u"Type"_s, u"Status"_s, u"Next Run"_s, u"Last Run Status"_s}));
    QCOMPARE(table->contextMenuPolicy(), Qt::CustomContextMenu);
    QCOMPARE(table->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(table->dragEnabled());
    QCOMPARE(table->dragDropMode(), QAbstractItemView::DragOnly);
    QCOMPARE(table->defaultDropAction(), Qt::MoveAction);
    QCOMPARE(table->selectionMode(), QAbstractItemView::ExtendedSelection);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->focusPolicy(), Qt::StrongFocus);
    QVERIFY(table->horizontalHeader()->stretchLastSection());
    QCOMPARE(table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Stretch);
    QVERIFY(!table->isSortingEnabled());
    QCOMPARE(table->styleSheet(),
             u"QTableWidget::item:selected, QTableWidget::item:selected:active, QTableWidget::item:selected:!active "
             "{ background-color: #0a64ad; color: #ffffff; }"_s);
    const MCsTaskTableWidget bare;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(bare.palette().color(group, QPalette::Highlight), QColor(u"#0a64ad"_s));
        QCOMPARE(bare.palette().color(group, QPalette::HighlightedText), QColor(Qt::white));
    }
}

void TestWindowFrame::theLogView()
{
    ORVEL_REQUIRE_WIDGET(QTextEdit, view, m_window, "logView");
    QVERIFY(view->isReadOnly());
    QVERIFY(view->isVisible());
}

void TestWindowFrame::proportions()
{
    ORVEL_REQUIRE_WIDGET(QSplitter, splitter, m_window, "mainSplitter");
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->widget(0)->sizePolicy().horizontalStretch(), 1);
    QCOMPARE(splitter->widget(1)->sizePolicy().horizontalStretch(), 3);
    const auto *layout = m_window->findChild<QVBoxLayout *>(u"rightLayout"_s);
    QCOMPARE(layout->stretch(1), 3);
    QCOMPARE(layout->stretch(2), 1);
    QCOMPARE(m_window->findChild<QHBoxLayout *>(u"centralLayout"_s)->spacing(), 6);
}

void TestWindowFrame::theStatusBar()
{
    ORVEL_REQUIRE_WIDGET(QLabel, status, m_window, "statusLabel");
    QCOMPARE(status->styleSheet(), u"color: red;"_s);
    QCOMPARE(m_window->statusBar()->objectName(), u"statusBar"_s);
    QCOMPARE(status->parentWidget(), m_window->statusBar());
    // A permanent widget stays where a temporary message covers the others.
    m_window->statusBar()->showMessage(u"x"_s);
    QVERIFY(status->isVisible());
    m_window->statusBar()->clearMessage();
}

void TestWindowFrame::theFilterIsHiddenAndItsLabelShown()
{
    ORVEL_REQUIRE_WIDGET(QComboBox, filter, m_window, "typeFilterCombo");
    QVERIFY(filter->isHidden());
    QVERIFY(m_fixture->widget<QLabel>("filterLabel")->isVisible());
    QCOMPARE(filter->count(), 1);
    QCOMPARE(filter->itemText(0), u"All Types"_s);
    QVERIFY(!filter->itemData(0).isValid());
    QVERIFY(filter->itemIcon(0).isNull());
}

void TestWindowFrame::theContextMenu()
{
    const auto *menu = m_window->findChild<QMenu *>(u"groupContextMenu"_s);
    QVERIFY(menu != nullptr);
    QStringList texts;
    for (const QAction *action : menu->actions())
        texts.append(action->isSeparator() ? u"-"_s : action->text());
    QCOMPARE(texts, QStringList({u"Enable All Tasks"_s, u"Disable All Tasks"_s, u"-"_s, u"Trigger All Tasks"_s, u"-"_s,
                                 u"Delete All Tasks"_s}));
}

void TestWindowFrame::controlsAreOffUntilConnected()
{
    for (const char *name :
         {"createButton", "editButton", "deleteButton", "triggerButton", "refreshButton", "typeFilterCombo",
          "createGroupButton", "editGroupButton", "deleteGroupButton", "refreshGroupButton"})
        QVERIFY2(!m_fixture->widget<QWidget>(name)->isEnabled(), name);
    QVERIFY(m_fixture->widget<QPushButton>("refreshLogButton")->isEnabled());
    QVERIFY(m_fixture->timer("auditRefreshTimer") != nullptr);
    QVERIFY(!m_fixture->timer("auditRefreshTimer")->isActive());
    QVERIFY(m_fixture->timer("connectionMonitorTimer") == nullptr);
}

void TestWindowFrame::slotsAreDeclared()
{
    const QStringList expected{u"autoConnectToDaemon()"_s,
                               u"onAutoConnectStep()"_s,
                               u"onConnectToDaemon()"_s,
                               u"onDisconnectFromDaemon()"_s,
                               u"onClientConnected()"_s,
                               u"onClientDisconnected()"_s,
                               u"onClientConnectionLost()"_s,
                               u"onClientReconnecting(int,int)"_s,
                               u"onClientReconnected()"_s,
                               u"onClientReconnectFailed()"_s,
                               u"onClientError(QString)"_s,
                               u"onCreateTask()"_s,
                               u"onEditTask()"_s,
                               u"onDeleteTask()"_s,
                               u"onToggleTaskEnabled()"_s,
                               u"onTriggerTask()"_s,
                               u"onRefreshTaskList()"_s,
                               u"onTaskSelectionChanged()"_s,
                               u"onViewTaskRuns()"_s,
                               u"onViewTaskLogs()"_s,
                               u"onFilterByType(QString)"_s,
                               u"onExportLogs()"_s,
                               u"onUpdateTaskStatus()"_s,
                               u"onCreateGroup()"_s,
                               u"onEditGroup()"_s,
                               u"onDeleteGroup()"_s,
                               u"onGroupSelectionChanged()"_s,
                               u"onEnableAllTasksInGroup()"_s,
                               u"onDisableAllTasksInGroup()"_s,
                               u"onDeleteAllTasksInGroup()"_s,
                               u"onTriggerAllTasksInGroup()"_s,
                               u"onTaskDroppedOnGroup(QString,QString)"_s,
                               u"onTasksDroppedOnGroup(QStringList,QString)"_s,
                               u"onGroupExpanded(QModelIndex)"_s,
                               u"onGroupCollapsed(QModelIndex)"_s,
                               u"onRefreshGroups()"_s,
                               u"checkEmptyTasksAndPrompt()"_s,
                               u"onRefreshAuditLog()"_s,
                               u"onAuditLogAutoRefresh()"_s};
    QStringList declared;
    const QMetaObject &meta = MCsMainWindow::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        declared.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(declared, expected);
}

void TestWindowFrame::theWindowWithoutArguments()
{
    m_fixture->close(); // would find the daemon, too
    WindowFixture fixture;
    QVERIFY(fixture.startDaemon());
    fixture.window = std::make_unique<MCsMainWindow>();
    QCOMPARE(fixture.window->windowTitle(), u"Orvel Task Scheduler - "_s);
    fixture.window->show();
    QTRY_COMPARE(fixture.window->connectionState(), ConnectionState::Connected);
    QCOMPARE(fixture.daemon.requests(u"client.register"_s).first().value("payload"_L1).toObject(),
             QJsonObject({{u"clientType"_s, u"unknow"_s}}));
}

ORVEL_TEST_MAIN(QApplication, TestWindowFrame)
#include "tst_windowframe.moc"
