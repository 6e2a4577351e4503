#include "benchwindow.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr int patienceMs = 60000;

} // namespace

bool waitUntilLoaded(const Scheduler::MCsMainWindow &window)
{
    // The log's timer is started when everything else has been read.
    const auto *last = window.findChild<QTimer *>("auditRefreshTimer"_L1);
    const QDeadlineTimer deadline(patienceMs);
    while (!last->isActive() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return last->isActive();
}

BenchWindow::BenchWindow(const QString &taskType)
    : m_window(u"en"_s, taskType, u"Bench"_s, u"/usr/bin/true"_s, {})
{
    m_window.show();
    if (!waitUntilLoaded(m_window)) {
        std::fputs("the window did not connect\n", stderr);
        std::exit(1);
    }
    for (QTimer *timer : m_window.findChildren<QTimer *>())
        timer->stop();
    QCoreApplication::processEvents();
}

QTableWidget *BenchWindow::table() const
{
    return m_window.findChild<QTableWidget *>("taskTable"_L1);
}

QTreeWidget *BenchWindow::tree() const
{
    return m_window.findChild<QTreeWidget *>("groupTree"_L1);
}

QTextEdit *BenchWindow::log() const
{
    return m_window.findChild<QTextEdit *>("logView"_L1);
}

} // namespace Bench
