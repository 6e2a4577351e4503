#include "mcsfilesizespinbox.h"

#include <QLatin1StringView>

namespace Scheduler {

namespace {

/// How a size is shown in a unit. The limits are the same sizes in every row.
struct UnitRow {
    const char *suffix;
    int decimals;
    double singleStep;
    double minimum;
    double maximum;
    double unitBytes;
};

constexpr UnitRow unitRows[] = {
    {" KB", 0, 10.0, 200.0, 10737418240.0, 1024.0},
    {" MB", 1, 0.1, 0.1953125, 10485760.0, 1048576.0},
    {" GB", 1, 0.1, 0.00019073486328125, 10240.0, 1073741824.0},
};

constexpr int kilobytes = 0;
constexpr int megabytes = 1;
constexpr int gigabytes = 2;

constexpr qint64 lowerLimit = 204800;
constexpr qint64 upperLimit = 10995116277760;
constexpr qint64 megabytesAbove = 2097152;
constexpr qint64 gigabytesAbove = 2147483648;

struct Size {
    qint64 bytes;
    int unit;
};

/// The size within the limits, with the unit to show it in.
constexpr Size limitedSize(qint64 bytes)
{
    if (bytes < lowerLimit)
        return {lowerLimit, kilobytes};
    if (bytes > upperLimit)
        return {upperLimit, gigabytes};
    if (bytes > gigabytesAbove)
        return {bytes, gigabytes};
    return {bytes, bytes > megabytesAbove ? megabytes : kilobytes};
}

} // namespace

MCsFileSizeSpinBox::MCsFileSizeSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    applyUnit(kilobytes, lowerLimit);
    connect(this, &QDoubleSpinBox::valueChanged, this, &MCsFileSizeSpinBox::onValueChanged);
}

qint64 MCsFileSizeSpinBox::bytes() const
{
    return qint64(value() * unitRows[m_unit].unitBytes);
}

void MCsFileSizeSpinBox::setBytes(qint64 bytes)
{
    const Size size = limitedSize(bytes);
    applyUnit(size.unit, size.bytes);
}

void MCsFileSizeSpinBox::onValueChanged()
{
    if (m_updating)
        return;
    const Size size = limitedSize(bytes());
    // Within a unit the text is left alone, for the user may be typing in it.
    if (size.unit != m_unit)
        applyUnit(size.unit, size.bytes);
}

void MCsFileSizeSpinBox::applyUnit(int unit, qint64 bytes)
{
    const UnitRow &row = unitRows[unit];
    m_updating = true;
    m_unit = unit;
    setDecimals(row.decimals);
    setSuffix(QLatin1StringView(row.suffix));
    setSingleStep(row.singleStep);
    setRange(row.minimum, row.maximum);
    setValue(double(bytes) / row.unitBytes);
    m_updating = false;
}

} // namespace Scheduler
