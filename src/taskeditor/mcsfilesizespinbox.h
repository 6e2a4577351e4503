#pragma once

#include <QDoubleSpinBox>
#include <QtGlobal>

namespace Scheduler {

/// Input of a size in bytes, from 204800 (200 KB) to 10995116277760 (10240 GB), shown in KB, MB or GB.
///
/// The unit follows the value by itself, also while the user types or steps: MB above 2097152 bytes, GB above
/// 2147483648. Units are binary. What is shown is what counts: a size that needs more digits than the unit shows comes
/// back rounded.
class MCsFileSizeSpinBox : public QDoubleSpinBox {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsFileSizeSpinBox)

public:
    explicit MCsFileSizeSpinBox(QWidget *parent = nullptr);

    /// The shown value in bytes, truncated.
    [[nodiscard]] qint64 bytes() const;

    /// Shows the value in the unit that suits it; a value outside the limits becomes the nearer limit.
    void setBytes(qint64 bytes);

private slots:
    void onValueChanged();

private:
    void applyUnit(int unit, qint64 bytes);

    int m_unit = 0;          ///< 0 KB, 1 MB, 2 GB
    bool m_updating = false; ///< a change of unit is under way, and its changes of the value are not the user's
};

} // namespace Scheduler
