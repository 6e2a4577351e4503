#include "taskdialogfixture.h"

#include "mcsdynamicformwidget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace TestSupport {

namespace {

QSettings settings()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s);
}

void merge(QJsonObject &object, const QJsonObject &changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change)
        object.insert(change.key(), change.value());
}

} // namespace

void TaskDialogFixture::init()
{
    settings().clear();
    m_programName = u"Recorder"_s;
    m_programPath = u"/opt/recorder"_s;
    m_daemon = std::make_unique<ScriptedDaemon>();
    QVERIFY(m_daemon->listen());
    m_client = std::make_unique<MCsSchedulerClient>();
    m_client->setClientType(u"task_type.screen_record"_s);
    QVERIFY(m_client->connectToDaemon());
    m_daemon->clearRequests();
    answerTypes({typeJson(u"task_type.screen_record"_s,
                          {fieldJson(u"fps"_s, u"int"_s, {{u"defaultValue"_s, u"30"_s}, {u"max"_s, 240}}),
                           fieldJson(u"format"_s, u"select"_s, {{u"options"_s, QJsonArray{u"MP4"_s, u"AVI"_s}}}),
                           fieldJson(u"title"_s, u"string"_s)}),
                 typeJson(u"task_type.audio_record"_s)});
    answerGroups({taskGroupJson(u"g1"_s, u"Work"_s), taskGroupJson(u"g2"_s, u"Home"_s)});
    answerTask({});
    m_daemon->answer(u"task.create"_s, {{u"taskId"_s, u"t9"_s}});
}

void TaskDialogFixture::cleanup()
{
    m_dialog.reset();
    m_client.reset();
    m_daemon.reset();
    settings().clear();
    QCOMPARE(openWindows(), QStringList());
}

void TaskDialogFixture::setClientType(const QString &type)
{
    m_client->setClientType(type);
}

void TaskDialogFixture::openForCreate(const QString &groupId, const QString &parametersJson)
{
    open({}, groupId, parametersJson);
}

void TaskDialogFixture::openForEdit(const QJsonObject &params, const QJsonObject &changes)
{
    QJsonObject all{{u"paramsJson"_s, params}};
    merge(all, changes);
    answerTask(all);
    open(u"t1"_s);
}

void TaskDialogFixture::open(const QString &taskId, const QString &groupId, const QString &parametersJson)
{
    m_dialog = std::make_unique<MCsTaskDialog>(m_client.get(), taskId, m_programName, m_programPath, parametersJson,
                                               groupId, nullptr);
    m_dialog->show();
}

void TaskDialogFixture::answerTask(const QJsonObject &changes)
{
    QJsonObject task{{u"id"_s, u"t1"_s},
                     {u"name"_s, u"Demo"_s},
                     {u"type"_s, u"task_type.screen_record"_s},
                     {u"enabled"_s, true},
                     {u"groupId"_s, u"g1"_s}};
    merge(task, changes);
    m_daemon->answer(u"task.get"_s, {{u"task"_s, task}});
}

void TaskDialogFixture::answerGroups(const QJsonArray &groups)
{
    m_daemon->answer(u"group.list"_s, {{u"groups"_s, groups}});
    m_daemon->answer(u"group.listByTaskType"_s, {{u"groups"_s, groups}});
}

void TaskDialogFixture::answerTypes(const QJsonArray &types)
{
    m_daemon->answer(u"tasktype.list"_s, {{u"taskTypes"_s, types}});
}

void TaskDialogFixture::whileWaiting(const QString &cmd, const std::function<void()> &action)
{
    m_daemon->whileWaiting(cmd, action);
}

QAbstractButton *TaskDialogFixture::button(QDialogButtonBox::StandardButton which) const
{
    auto *const box = require<QDialogButtonBox>(m_dialog.get(), "buttonBox");
    return box == nullptr ? nullptr : box->button(which);
}

void TaskDialogFixture::save()
{
    click(button(QDialogButtonBox::Save));
}

void TaskDialogFixture::saveSuccessfully()
{
    ModalDriver driver;
    driver.expectBox(QMessageBox::Information, u"Success"_s,
                     m_dialog->windowTitle() == "Create Task"_L1 ? u"Task created successfully."_s
                                                                 : u"Task updated successfully."_s);
    save();
    QVERIFY2(driver.finished(), driver.problems());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void TaskDialogFixture::expectFailure(ModalDriver &driver, const QString &reason)
{
    driver.expectBox(QMessageBox::Warning, u"Error"_s, u"Failed to save task. reason : "_s + reason);
}

QJsonObject TaskDialogFixture::sentTask(const QString &cmd) const
{
    const QList<QJsonObject> requests = m_daemon->requests(cmd);
    if (requests.size() != 1)
        return {};
    return requests.first().value("payload"_L1).toObject().value("task"_L1).toObject();
}

void TaskDialogFixture::choose(const char *radio) const
{
    auto *const found = m_dialog->findChild<QRadioButton *>(QLatin1StringView(radio));
    QVERIFY2(found != nullptr, radio);
    found->setChecked(true);
}

void TaskDialogFixture::enterEverything() const
{
    widget<QLineEdit>("nameEdit")->setText(u"Typed"_s);
    widget<QComboBox>("groupCombo")->setCurrentIndex(2);
    choose("startModeEveryWeek");
    widget<QCheckBox>("weekdayCheckWed")->setChecked(true);
    choose("stopModeByFileSize");
    choose("useCustomOutputRadio");
    widget<QLineEdit>("customFolderEdit")->setText(u"/typed"_s);
    widget<QLineEdit>("runProgramEdit")->setText(u"/bin/typed"_s);
    choose("afterActionShutdown");
    choose("displayModeHide");
    fps()->setValue(77);
}

QSpinBox *TaskDialogFixture::fps() const
{
    return m_dialog->findChild<MCsDynamicFormWidget *>()->findChild<QSpinBox *>();
}

QStringList TaskDialogFixture::settingsKeys()
{
    return settings().allKeys();
}

QJsonObject typeJson(const QString &type, const QJsonArray &fields)
{
    return {{u"type"_s, type}, {u"name"_s, type}, {u"fields"_s, fields}};
}

QJsonObject fieldJson(const QString &key, const QString &type, const QJsonObject &more)
{
    QJsonObject field{{u"key"_s, key}, {u"type"_s, type}, {u"label"_s, key}};
    merge(field, more);
    return field;
}

QJsonObject taskGroupJson(const QString &id, const QString &name, const QString &taskType)
{
    return {{u"id"_s, id}, {u"name"_s, name}, {u"taskType"_s, taskType}};
}

} // namespace TestSupport
