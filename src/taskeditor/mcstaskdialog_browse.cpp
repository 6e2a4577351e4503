#include "mcstaskdialog.h"

#include "messagebox.h"
#include "ui_mcstaskdialog.h"

#include <QFileDialog>

namespace Scheduler {

namespace {

/// Takes over the chosen path; a cancelled dialog changes nothing.
///
/// The file dialog lives on the heap, which QFileDialog's static functions do not offer: the task dialog may be
/// destroyed while it is up, and takes it and the edit along.
void browse(const QPointer<QFileDialog> &dialog, QLineEdit *target)
{
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog == nullptr)
        return;
    const QStringList chosen = dialog->selectedFiles();
    delete dialog;
    if (accepted && !chosen.isEmpty() && !chosen.first().isEmpty())
        target->setText(chosen.first());
}

void browseFile(QWidget *parent, QLineEdit *target, const QString &title, const QString &filter)
{
    auto *dialog = new QFileDialog(parent, title, QString(), filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    browse(dialog, target);
}

void browseFolder(QWidget *parent, QLineEdit *target, const QString &title)
{
    auto *dialog = new QFileDialog(parent, title);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    browse(dialog, target);
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
