#pragma once

#include <QJsonValue>
#include <QString>

class QWidget;

namespace Scheduler {

struct FieldDefaults;
struct TaskFieldInfo;

// The input widget of one field of the parameter form. The field's type decides its class: "int" a QSpinBox, "double" a
// QDoubleSpinBox, "bool" a QCheckBox, "select" a QComboBox, everything else a QLineEdit. Each function is given a
// widget that was made for the same type.

/// Makes the widget, holding the default. A malformed number reads as 0, and numbers are clamped into the field's
/// range.
[[nodiscard]] QWidget *createFieldWidget(const TaskFieldInfo &field, const FieldDefaults &defaults, QWidget *parent);

/// The widget's value: a number, a boolean, the shown text of a select field, or a trimmed text.
[[nodiscard]] QJsonValue fieldValue(const QString &type, const QWidget *widget);

/// Writes a stored value. A value of another JSON type reads as 0, false or an empty text; a text that is no option of
/// a select field is ignored.
void setFieldValue(const QString &type, QWidget *widget, const QJsonValue &value);

} // namespace Scheduler
