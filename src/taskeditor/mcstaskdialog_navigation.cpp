#include "mcstaskdialog.h"

#include "mcsdynamicformwidget.h"
#include "ui_mcstaskdialog.h"

#include <QScrollBar>

#include <utility>

namespace Scheduler {

void MCsTaskDialog::rebuildNavigation()
{
    m_navSections = {{tr("📋 Basic Info"), m_ui->basicGroup}};
    m_programParametersNavRow = -1;
    if (m_formWidget != nullptr && m_formWidget->hasFields()) {
        m_programParametersNavRow = static_cast<int>(m_navSections.size());
        m_navSections.append({tr("⚙️ Program Parameters"), m_formWidget});
    }
    m_navSections.append({{tr("💾 Output"), m_ui->outputGroup},
                          {tr("🚀 Before Start"), m_ui->actionBeforeGroup},
                          {tr("⏰ Start Target Program"), m_ui->startRecordingGroup},
                          {tr("⏹️ Auto Stop"), m_ui->autoStopGroup},
                          {tr("🏁 After Stop"), m_ui->actionAfterGroup},
                          {tr("🖥️ Display"), m_ui->displayGroup}});
    m_ui->navList->clear();
    for (const NavSection &section : std::as_const(m_navSections))
        m_ui->navList->addItem(section.title);
    m_ui->navList->setCurrentRow(0);
}

void MCsTaskDialog::onNavItemClicked(QListWidgetItem *item)
{
    const int row = m_ui->navList->row(item);
    if (row < 0 || row >= m_navSections.size())
        return;
    const QPoint top = m_navSections.at(row).card->mapTo(m_ui->scrollWidget, QPoint(0, 0));
    m_ui->scrollArea->verticalScrollBar()->setValue(top.y());
}

} // namespace Scheduler
