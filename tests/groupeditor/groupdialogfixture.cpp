#include "groupdialogfixture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace TestSupport {

void GroupDialogFixture::init()
{
    m_daemon = std::make_unique<ScriptedDaemon>();
    QVERIFY(m_daemon->listen());
    m_client = std::make_unique<MCsSchedulerClient>();
    m_client->setClientType(u"task_type.client"_s);
    QVERIFY(m_client->connectToDaemon());
    m_daemon->clearRequests();
    answerGroup();
    m_daemon->answer(u"group.create"_s, {{u"groupId"_s, u"g9"_s}});
}

void GroupDialogFixture::cleanup()
{
    m_dialog.reset();
    m_client.reset();
    m_daemon.reset();
    QCOMPARE(openWindows(), QStringList());
}

void GroupDialogFixture::openForCreate()
{
    open({}, u"task_type.record"_s);
}

void GroupDialogFixture::openForEdit()
{
    open(u"g1"_s, {});
}

void GroupDialogFixture::open(const QString &groupId, const QString &taskType)
{
    m_dialog = std::make_unique<MCsGroupDialog>(m_client.get(), groupId, taskType, nullptr);
    m_dialog->show();
}

void GroupDialogFixture::answerGroup(const QJsonObject &changes)
{
    QJsonObject group = groupRecord(u"g1"_s, u"Nightly"_s);
    group.insert("description"_L1, u"Every night"_s);
    group.insert("color"_L1, u"#e74c3c"_s);
    group.insert("taskType"_L1, u"task_type.record"_s);
    group.insert("displayOrder"_L1, 5);
    for (auto change = changes.begin(); change != changes.end(); ++change)
        group.insert(change.key(), change.value());
    m_daemon->answer(u"group.get"_s, {{u"group"_s, group}});
}

void GroupDialogFixture::answerGroupList(const QJsonArray &groups)
{
    m_daemon->answer(u"group.listByTaskType"_s, {{u"groups"_s, groups}});
}

QAbstractButton *GroupDialogFixture::button(QDialogButtonBox::StandardButton which) const
{
    auto *const box = require<QDialogButtonBox>(m_dialog.get(), "buttonBox");
    return box == nullptr ? nullptr : box->button(which);
}

void GroupDialogFixture::save()
{
    click(button(QDialogButtonBox::Save));
}

QJsonObject GroupDialogFixture::sentGroup(const QString &cmd) const
{
    const QList<QJsonObject> requests = m_daemon->requests(cmd);
    if (requests.size() != 1)
        return {};
    return requests.first().value("payload"_L1).toObject().value("group"_L1).toObject();
}

QLineEdit *GroupDialogFixture::name() const
{
    return require<QLineEdit>(m_dialog.get(), "nameEdit");
}

QTextEdit *GroupDialogFixture::description() const
{
    return require<QTextEdit>(m_dialog.get(), "descriptionEdit");
}

QPushButton *GroupDialogFixture::color() const
{
    return require<QPushButton>(m_dialog.get(), "colorButton");
}

QComboBox *GroupDialogFixture::parentGroup() const
{
    return require<QComboBox>(m_dialog.get(), "parentCombo");
}

QSpinBox *GroupDialogFixture::displayOrder() const
{
    return require<QSpinBox>(m_dialog.get(), "displayOrderSpin");
}

QJsonObject groupRecord(const QString &id, const QString &name, const QString &parentId)
{
    return {{u"id"_s, id}, {u"name"_s, name}, {u"parentId"_s, parentId}};
}

} // namespace TestSupport
