#pragma once

#include "cannedanswers.h"
#include "mcsmainwindow.h"

class QTableWidget;
class QTextEdit;
class QTreeWidget;

namespace Bench {

/// A shown main window that is connected to the canned daemon and has read everything. Its own timers stand still, so
/// that only what is measured runs.
class BenchWindow {
public:
    explicit BenchWindow(const QString &taskType = benchTaskType);

    [[nodiscard]] Scheduler::MCsMainWindow &window()
    {
        return m_window;
    }
    [[nodiscard]] QTableWidget *table() const;
    [[nodiscard]] QTreeWidget *tree() const;
    [[nodiscard]] QTextEdit *log() const;

private:
    Scheduler::MCsMainWindow m_window;
};

/// Runs the event loop until the window has read everything that it reads after connecting; false when it takes
/// unreasonably long.
bool waitUntilLoaded(const Scheduler::MCsMainWindow &window);

} // namespace Bench
