#pragma once

#include "faults.h"
#include "moments.h"

#include <QObject>

#include <memory>

namespace TestSupport {

/// Base of the programs that cross moments with faults. All cells of a program share one window: each ends with an
/// exchange in which nothing goes wrong, and the next begins where that has ended.
class FaultMatrix : public QObject {
    Q_OBJECT

protected slots:
    void cleanupTestCase();

protected:
    /// A row for each fault of these outcomes at each moment at which they can be.
    static void addCells(const QList<Moment> &moments, const QList<Fault> &faults);
    /// Runs the cell of the current row.
    void runCell();
    void runCell(const Moment &moment, const Fault &fault);
    /// The window that the cells share.
    [[nodiscard]] Stage *stage();

private:
    std::unique_ptr<Stage> m_stage; ///< none after a cell that failed
};

} // namespace TestSupport
