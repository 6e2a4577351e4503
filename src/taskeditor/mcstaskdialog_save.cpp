#include "mcstaskdialog.h"

#include "mcsschedulerclient.h"
#include "messagebox.h"

using namespace Qt::StringLiterals;

namespace Scheduler {

void MCsTaskDialog::onSave()
{
    // A second press while the daemon is asked would make a second task.
    if (m_saving)
        return;
    const QPointer<MCsTaskDialog> self(this);
    if (!validateInput() || self == nullptr)
        return;
    if (!canAskDaemon()) {
        showMessage(this, QMessageBox::Warning, tr("Connection Error"),
                    tr("Not connected to daemon. Please connect first."));
        return;
    }
    const bool wasVisible = isVisible();
    const QJsonObject document = collectTaskDocument();
    m_saving = true;
    const bool saved = sendTask(document);
    if (self == nullptr)
        return;
    if (saved)
        finishSave(document);
    else if (isVisible() || !wasVisible) // nobody waits for the outcome in a dialog that was closed meanwhile
        reportFailedSave();
    if (self != nullptr)
        m_saving = false;
}

bool MCsTaskDialog::sendTask(const QJsonObject &document)
{
    return m_taskId.isEmpty() ? !m_client->createTask(document).isEmpty() : m_client->updateTask(m_taskId, document);
}

// Even if the dialog was cancelled while the daemon stored the task: it is there, and the caller is to show it.
void MCsTaskDialog::finishSave(const QJsonObject &document)
{
    const QPointer<MCsTaskDialog> self(this);
    const MCsLastTaskDefaults lastDefaults = m_lastDefaults;
    showMessage(this, QMessageBox::Information, tr("Success"),
                m_taskId.isEmpty() ? tr("Task created successfully.") : tr("Task updated successfully."));
    lastDefaults.saveDefaults(document.value("type"_L1).toString(), document);
    if (self != nullptr)
        accept();
}

void MCsTaskDialog::reportFailedSave()
{
    const QString reason = m_client == nullptr ? QString() : m_client->lastError();
    showMessage(this, QMessageBox::Warning, tr("Error"), tr("Failed to save task. reason : ") + reason);
}

} // namespace Scheduler
