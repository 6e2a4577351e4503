#include "mcstaskdialog.h"

#include "messagebox.h"
#include "ui_mcstaskdialog.h"

#include <QFileDialog>

namespace Scheduler {

namespace {

// Each dialog runs an event loop in which the edit may go, and a cancelled dialog leaves it as it is.
void takePath(const QPointer<QLineEdit> &target, const QString &path)
{
    if (target != nullptr && !path.isEmpty())
        target->setText(path);
}

void browseFile(QWidget *parent, const QPointer<QLineEdit> &target, const QString &title, const QString &filter)
{
    takePath(target, QFileDialog::getOpenFileName(parent, title, QString(), filter));
}

void browseFolder(QWidget *parent, const QPointer<QLineEdit> &target, const QString &title)
{
    takePath(target, QFileDialog::getExistingDirectory(parent, title, QString(),
                                                       QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks));
}

} // namespace

void MCsTaskDialog::onBrowseRunProgram()
{
    browseFile(this, m_ui->runProgramEdit, tr("Select Program"), tr("Executable Files (*.exe);;All Files (*.*)"));
}

void MCsTaskDialog::onBrowseMonitorProgram()
{
    browseFile(this, m_ui->monitorProgramEdit, tr("Select Program to Monitor"),
               tr("Executable Files (*.exe);;All Files (*.*)"));
}

void MCsTaskDialog::onBrowseMonitorFolder()
{
    browseFolder(this, m_ui->monitorFolderPathEdit, tr("Select Folder to Monitor"));
}

void MCsTaskDialog::onBrowseOutputFolder()
{
    browseFolder(this, m_ui->customFolderEdit, tr("Select Output Folder"));
}

void MCsTaskDialog::onShowFileNameHelp()
{
    showMessage(this, QMessageBox::Information, tr("File Name Pattern Help"),
                tr("Available format variables:\n\n[YYYY-MM-DD] - Date (e.g., 2024-03-15)\n[hh-mm-ss] - Time (e.g., "
                   "14-30-45)\n[TaskName] - Task name\n[Counter] - Auto-incrementing counter\n\nExample: "
                   "[YYYY-MM-DD][hh-mm-ss]_[TaskName]\nResult: 2024-03-15_14-30-45_MyTask.mp4"));
}

} // namespace Scheduler
