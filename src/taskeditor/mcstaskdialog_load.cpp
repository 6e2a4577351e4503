#include "mcstaskdialog.h"

#include "mcsdynamicformwidget.h"
#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "programparameters.h"
#include "tasktypes.h"
#include "ui_mcstaskdialog.h"
#include "widgetstyles.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

int indexOfId(const QComboBox *combo, const QString &id)
{
    return combo->findData(id, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

} // namespace

bool MCsTaskDialog::canAskDaemon() const
{
    return m_client != nullptr && m_client->isConnected();
}

void MCsTaskDialog::loadTaskTypes()
{
    if (!canAskDaemon())
        return;
    m_ui->typeCombo->clear();
    for (const TaskTypeInfo &type : std::as_const(m_taskTypes)) {
        if (m_client->isAllTypesClient() || type.type == m_client->clientType())
            m_ui->typeCombo->addItem(taskTypeDisplayName(type.type), type.type);
    }
}

void MCsTaskDialog::loadGroups()
{
    if (!canAskDaemon())
        return;
    QComboBox *combo = m_ui->groupCombo;
    combo->clear();
    combo->addItem(tr("Ungrouped"), QString());
    const bool ofChosenType = !m_taskId.isEmpty() || m_client->isAllTypesClient();
    const QString type = ofChosenType ? m_ui->typeCombo->currentData().toString() : m_client->clientType();
    const QPointer<MCsTaskDialog> self(this);
    const quint64 listing = ++m_groupListing;
    const QList<GroupInfo> groups = type.isEmpty() ? m_client->listGroups() : m_client->listGroupsByTaskType(type);
    // Meanwhile another type may have been chosen, whose groups are in the list already.
    if (self == nullptr || listing != m_groupListing)
        return;
    for (const GroupInfo &group : groups) {
        if (group.id != ungroupedGroupId)
            combo->addItem(group.name, group.id);
    }
}

void MCsTaskDialog::loadTask()
{
    if (!canAskDaemon() || m_taskId.isEmpty())
        return;
    const TaskInfo task = m_client->getTask(m_taskId);
    m_ui->nameEdit->setText(task.name);
    warnAboutType(task);
    const int typeIndex = indexOfId(m_ui->typeCombo, task.type);
    if (typeIndex >= 0)
        m_ui->typeCombo->setCurrentIndex(typeIndex);
    m_ui->enabledCheck->setChecked(task.enabled);
    m_ui->groupCombo->setCurrentIndex(std::max(0, indexOfId(m_ui->groupCombo, task.groupId)));
    buildParameterForm(task.type);
    loadTaskParams(task.paramsJson);
}

// The dialog is not up yet, so the boxes stand before the window that opens it, unless that was closed while the task
// was read. Loading goes on after them.
void MCsTaskDialog::warnAboutType(const TaskInfo &task)
{
    if (parentWidget() != nullptr && !parentWidget()->isVisible())
        return;
    const bool known =
        std::ranges::any_of(m_taskTypes, [&task](const TaskTypeInfo &type) { return type.type == task.type; });
    if (m_client == nullptr || task.type != m_client->clientType())
        showMessage(parentWidget(), QMessageBox::Critical, tr("Critical Error!"), tr("Task type mismatch!"));
    if (!known)
        showMessage(parentWidget(), QMessageBox::Critical, tr("Critical Error!"), tr("Task type not accepted!"));
}

void MCsTaskDialog::startNewTask()
{
    QString type = m_ui->typeCombo->currentData().toString();
    if (type.isEmpty() && m_client != nullptr)
        type = m_client->clientType();
    buildParameterForm(type);
    applyLastTaskDefaults(type);
    placeGroup();
}

// A new task starts in the group that is selected in the window. A window of all types may show groups of a type other
// than the first one, which this dialog starts with.
void MCsTaskDialog::placeGroup()
{
    if (m_groupId.isEmpty() || selectGroup(m_groupId))
        return;
    if (m_client != nullptr && m_client->isAllTypesClient() && selectTypeOfGroup(m_groupId))
        selectGroup(m_groupId);
}

bool MCsTaskDialog::selectGroup(const QString &groupId)
{
    const int index = indexOfId(m_ui->groupCombo, groupId);
    if (index >= 0)
        m_ui->groupCombo->setCurrentIndex(index);
    return index >= 0;
}

bool MCsTaskDialog::selectTypeOfGroup(const QString &groupId)
{
    const QString type = m_client->getGroup(groupId).taskType;
    const int index = type.isEmpty() ? -1 : indexOfId(m_ui->typeCombo, type);
    if (index < 0 || index == m_ui->typeCombo->currentIndex())
        return false;
    m_ui->typeCombo->setCurrentIndex(index);
    buildParameterForm(type);
    loadGroups();
    return true;
}

void MCsTaskDialog::onTaskTypeChanged(int index)
{
    buildParameterForm(m_ui->typeCombo->itemData(index).toString());
    if (m_client != nullptr && m_client->isAllTypesClient())
        loadGroups();
}

void MCsTaskDialog::buildParameterForm(const QString &taskType)
{
    m_formWidget->buildForTaskType(taskType, m_programParametersJson);
    applySpinBoxStyle(m_formWidget);
    applyCheckBoxStyle(m_formWidget);
    m_formWidget->placeInTabOrder(m_ui->groupCombo);
    m_formWidget->setVisible(m_formWidget->hasFields());
    rebuildNavigation();
}

// What the host's parameter file names wins over what was saved last.
void MCsTaskDialog::applyLastTaskDefaults(const QString &taskType)
{
    const QJsonObject stored = m_lastDefaults.loadDefaults(taskType).value("dynamicParams"_L1).toObject();
    if (!m_formWidget->hasFields())
        return;
    m_formWidget->applyValues(stored, parseProgramParameters(m_programParametersJson).keys());
}

} // namespace Scheduler
