#include "fieldwidgets.h"

#include "mcslogger.h"
#include "plaintooltip.h"
#include "programparameters.h"
#include "records.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int defaultMaximum = 999999;

/// How one type of field is made, read and written.
struct FieldKind {
    QStringView type;
    QWidget *(*create)(const TaskFieldInfo &field, const FieldDefaults &defaults, QWidget *parent) = nullptr;
    QJsonValue (*read)(const QWidget *widget) = nullptr;
    void (*write)(QWidget *widget, const QJsonValue &value) = nullptr;
};

template <typename Widget> const Widget *as(const QWidget *widget)
{
    return static_cast<const Widget *>(widget);
}

template <typename Widget> Widget *as(QWidget *widget)
{
    return static_cast<Widget *>(widget);
}

int maximumOf(const TaskFieldInfo &field)
{
    return field.max > field.min ? field.max : defaultMaximum;
}

QWidget *createIntField(const TaskFieldInfo &field, const FieldDefaults &defaults, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setRange(field.min, maximumOf(field));
    box->setValue(defaults.defaultValue.toInt());
    box->setToolTip(plainToolTip(field.placeholder));
    return box;
}

QJsonValue readInt(const QWidget *widget)
{
    return as<QSpinBox>(widget)->value();
}

void writeInt(QWidget *widget, const QJsonValue &value)
{
    as<QSpinBox>(widget)->setValue(value.toInt(0));
}

QWidget *createDoubleField(const TaskFieldInfo &field, const FieldDefaults &defaults, QWidget *parent)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setDecimals(2);
    box->setRange(field.min, maximumOf(field));
    // "nan" converts, too, but the box must hold a number.
    const double value = defaults.defaultValue.toDouble();
    box->setValue(std::isnan(value) ? 0.0 : value);
    box->setToolTip(plainToolTip(field.placeholder));
    return box;
}

QJsonValue readDouble(const QWidget *widget)
{
    return as<QDoubleSpinBox>(widget)->value();
}

void writeDouble(QWidget *widget, const QJsonValue &value)
{
    as<QDoubleSpinBox>(widget)->setValue(value.toDouble(0.0));
}

QWidget *createBoolField(const TaskFieldInfo & /*field*/, const FieldDefaults &defaults, QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setChecked(defaults.defaultValue == "true"_L1 || defaults.defaultValue == "1"_L1);
    return box;
}

QJsonValue readBool(const QWidget *widget)
{
    return as<QCheckBox>(widget)->isChecked();
}

void writeBool(QWidget *widget, const QJsonValue &value)
{
    as<QCheckBox>(widget)->setChecked(value.toBool(false));
}

void logDebug(const QString &message)
{
    MCsLogger::instance().debug(u"DynamicFormWidget"_s, message);
}

void selectDefault(QComboBox *combo, const QString &defaultValue)
{
    const int index = combo->findText(defaultValue);
    logDebug(u"[SELECT] findText(%1) = idx %2"_s.arg(defaultValue, QString::number(index)));
    if (index >= 0) {
        combo->setCurrentIndex(index);
        return;
    }
    MCsLogger::instance().warn(u"DynamicFormWidget"_s,
                               u"[SELECT] WARNING: overrideDefault not found in combo items!"_s);
}

QWidget *createSelectField(const TaskFieldInfo & /*field*/, const FieldDefaults &defaults, QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    combo->addItems(defaults.options);
    const int hasOgg = combo->findText(u"OGG"_s) >= 0 ? 1 : 0;
    logDebug(u"[SELECT] combo item count=%1 contains OGG=%2"_s.arg(combo->count()).arg(hasOgg));
    if (!defaults.defaultValue.isEmpty())
        selectDefault(combo, defaults.defaultValue);
    logDebug(u"[SELECT] final currentText=%1"_s.arg(combo->currentText()));
    return combo;
}

QJsonValue readSelect(const QWidget *widget)
{
    return as<QComboBox>(widget)->currentText();
}

void writeSelect(QWidget *widget, const QJsonValue &value)
{
    as<QComboBox>(widget)->setCurrentText(value.toString());
}

QWidget *createTextField(const TaskFieldInfo &field, const FieldDefaults &defaults, QWidget *parent)
{
    auto *edit = new QLineEdit(defaults.defaultValue, parent);
    edit->setPlaceholderText(field.placeholder);
    return edit;
}

QJsonValue readText(const QWidget *widget)
{
    return as<QLineEdit>(widget)->text().trimmed();
}

void writeText(QWidget *widget, const QJsonValue &value)
{
    as<QLineEdit>(widget)->setText(value.toString());
}

constexpr FieldKind fieldKinds[] = {
    {u"int", createIntField, readInt, writeInt},
    {u"double", createDoubleField, readDouble, writeDouble},
    {u"bool", createBoolField, readBool, writeBool},
    {u"select", createSelectField, readSelect, writeSelect},
};
constexpr FieldKind textKind{u"", createTextField, readText, writeText};

const FieldKind &kindOf(const QString &type)
{
    for (const FieldKind &kind : fieldKinds) {
        if (kind.type == type)
            return kind;
    }
    return textKind;
}

} // namespace

QWidget *createFieldWidget(const TaskFieldInfo &field, const FieldDefaults &defaults, QWidget *parent)
{
    return kindOf(field.type).create(field, defaults, parent);
}

QJsonValue fieldValue(const QString &type, const QWidget *widget)
{
    return kindOf(type).read(widget);
}

void setFieldValue(const QString &type, QWidget *widget, const QJsonValue &value)
{
    kindOf(type).write(widget, value);
}

} // namespace Scheduler
