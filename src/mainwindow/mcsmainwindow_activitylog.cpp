#include "mcsmainwindow.h"

#include "auditline.h"
#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "ui_mcsmainwindow.h"

#include <QScrollBar>
#include <QTextCursor>

namespace Scheduler {

namespace {

constexpr int shownEntries = 100;

/// In one edit, so that the view is laid out once and not for each line; and with the scroll bar in its place, which
/// would otherwise come with the last line and have all of them laid out twice more for the narrower view. Few lines,
/// which need no bar, are laid out once more instead.
void appendLines(QTextEdit &view, const QStringList &lines)
{
    const Qt::ScrollBarPolicy policy = view.verticalScrollBarPolicy();
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QTextCursor edit(view.document());
    edit.beginEditBlock();
    for (const QString &line : lines)
        view.append(line);
    edit.endEditBlock();
    view.setVerticalScrollBarPolicy(policy);
}

} // namespace

void MCsMainWindow::refreshAuditLog()
{
    if (!m_client->isConnected()) {
        showMessage(this, QMessageBox::Warning, tr("Not Connected"),
                    tr("Cannot refresh audit log because not connected to the service."));
        return;
    }
    const quint64 refresh = ++m_logRefresh;
    const quint64 losses = m_losses;
    m_ui->logView->clear();
    QList<AuditLogEntry> newestFirst = m_client->getAuditLogs(shownEntries, false, QDateTime(), QDateTime());
    // A refresh that began while this one waited has filled the view with what is newer, and so has, or will, the next
    // connection.
    if (refresh != m_logRefresh || losses != m_losses)
        return;
    m_ui->logView->clear();
    newestFirst.resize(qMin<qsizetype>(newestFirst.size(), shownEntries)); // whatever the daemon makes of the limit
    QStringList lines;
    for (const AuditLogEntry &entry : std::as_const(newestFirst))
        lines.prepend(formatAuditEntry(entry));
    appendLines(*m_ui->logView, lines);
    // Within an edit the view does not follow what is appended.
    QScrollBar *position = m_ui->logView->verticalScrollBar();
    position->setValue(position->maximum());
}

QString MCsMainWindow::formatAuditEntry(const AuditLogEntry &entry) const
{
    return auditLine(entry);
}

void MCsMainWindow::onRefreshAuditLog()
{
    refreshAuditLog();
}

void MCsMainWindow::onAuditLogAutoRefresh()
{
    if (m_client->isConnected() && m_state == ConnectionState::Connected)
        onRefreshAuditLog();
}

} // namespace Scheduler
