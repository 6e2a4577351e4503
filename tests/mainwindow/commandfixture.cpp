#include "commandfixture.h"

#include <QMetaMethod>
#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

QStringList bundleAfter(const QString &listing)
{
    return {listing, u"task.countByGroupAndType"_s, u"task.countByGroupAndType"_s, u"audit.list"_s};
}

} // namespace

bool CommandFixture::connectQuietly(const QString &taskType, const QString &language)
{
    if (!connectWindow(taskType, language))
        return false;
    timer("statusUpdateTimer")->stop();
    setTasks({taskJson(u"t1"_s, u"One"_s), taskJson(u"t2"_s, u"Two"_s, {{u"enabled"_s, false}}),
              taskJson(u"t3"_s, u"Three"_s)});
    setGroups({groupJson(u"g1"_s, u"Work"_s), groupJson(u"ungrouped"_s, u"Ungrouped"_s)});
    daemon.respondWith(u"task.countByGroupAndType"_s, [](const QJsonObject &payload) {
        const int count = payload.value("groupId"_L1).toString() == "g1"_L1 ? 3 : 1;
        return QJsonObject{{u"ok"_s, true}, {u"data"_s, QJsonObject{{u"count"_s, count}}}};
    });
    window->onRefreshGroups();
    window->onRefreshTaskList();
    daemon.clearRequests();
    return table()->rowCount() == 3 && tree()->topLevelItemCount() == 2;
}

QTableWidget *CommandFixture::table() const
{
    return widget<QTableWidget>("taskTable");
}

QTreeWidget *CommandFixture::tree() const
{
    return widget<QTreeWidget>("groupTree");
}

void CommandFixture::selectTask(int row)
{
    table()->selectRow(row);
    daemon.clearRequests();
}

void CommandFixture::selectGroup(int index)
{
    tree()->setCurrentItem(tree()->topLevelItem(index));
    daemon.clearRequests();
}

void CommandFixture::run(const QString &control)
{
    const QByteArray name = control.toLatin1();
    if (!control.startsWith("on"_L1))
        click(window.get(), name.constData());
    else if (!QMetaObject::invokeMethod(window.get(), name.constData()))
        fail(u"the window has no slot "_s + control);
}

QJsonObject CommandFixture::payloadOf(const QString &cmd) const
{
    const QList<QJsonObject> requests = daemon.requests(cmd);
    return requests.size() == 1 ? requests.first().value("payload"_L1).toObject() : QJsonObject();
}

void expectDeleteQuestion(ModalDriver &driver, const QString &text, QMessageBox::StandardButton press)
{
    driver.expectBox(QMessageBox::Question, u"Confirm Delete"_s, text, QMessageBox::Yes | QMessageBox::No, press);
}

QStringList bundle()
{
    return bundleAfter(u"task.listByType"_s);
}

QStringList bundleOfGroup()
{
    return bundleAfter(u"task.listByGroupAndType"_s);
}

} // namespace TestSupport
