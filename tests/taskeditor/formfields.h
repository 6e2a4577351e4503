#pragma once

#include "mcsdynamicformwidget.h"
#include "records.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLayout>

/// Definitions and look-ups for the tests of the parameter form.
namespace FormFields {

inline QJsonObject object(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

/// A field as the daemon would send it.
inline Scheduler::TaskFieldInfo field(const char *json)
{
    return Scheduler::TaskFieldInfo::fromJson(object(json));
}

inline Scheduler::TaskTypeInfo taskType(const QString &id, const QList<Scheduler::TaskFieldInfo> &fields)
{
    Scheduler::TaskTypeInfo info;
    info.type = id;
    info.name = id;
    info.fields = fields;
    return info;
}

/// The card that stands now; null without one. Cards of earlier builds may still wait for their deletion.
inline QGroupBox *card(const Scheduler::MCsDynamicFormWidget &form)
{
    const QLayoutItem *item = form.layout()->itemAt(0);
    return item == nullptr ? nullptr : qobject_cast<QGroupBox *>(item->widget());
}

inline QFormLayout *rows(const Scheduler::MCsDynamicFormWidget &form)
{
    const QGroupBox *group = card(form);
    return group == nullptr ? nullptr : qobject_cast<QFormLayout *>(group->layout()->itemAt(1)->layout());
}

/// The input widget of a row, as the class that it should be; null if it isn't.
template <typename Widget> Widget *widgetAt(const Scheduler::MCsDynamicFormWidget &form, int row)
{
    const QLayoutItem *item = rows(form)->itemAt(row, QFormLayout::FieldRole);
    return item == nullptr ? nullptr : qobject_cast<Widget *>(item->widget());
}

inline QLabel *labelAt(const Scheduler::MCsDynamicFormWidget &form, int row)
{
    return qobject_cast<QLabel *>(rows(form)->itemAt(row, QFormLayout::LabelRole)->widget());
}

inline const QString typeId = QStringLiteral("task_type.screen_record");

/// A form of the fields, built with the parameter text.
class BuiltForm : public Scheduler::MCsDynamicFormWidget {
public:
    explicit BuiltForm(const QList<Scheduler::TaskFieldInfo> &fields, const QString &parameters = {},
                       QWidget *parent = nullptr)
        : MCsDynamicFormWidget(parent)
    {
        setTaskTypes({taskType(typeId, fields)});
        isBuilt = buildForTaskType(typeId, parameters);
    }

    bool isBuilt = false;
};

inline const QList<Scheduler::TaskFieldInfo> &fieldOfEveryKind()
{
    static const QList<Scheduler::TaskFieldInfo> fields{
        field(R"({"key": "i", "type": "int", "label": "I", "min": 1, "max": 60, "defaultValue": "30"})"),
        field(R"({"key": "d", "type": "double", "label": "D", "min": -5, "max": 5, "defaultValue": "1.5"})"),
        field(R"({"key": "b", "type": "bool", "label": "B", "defaultValue": "true"})"),
        field(R"({"key": "s", "type": "select", "label": "S", "options": ["x", "y"], "defaultValue": "y"})"),
        field(R"({"key": "t", "type": "text", "label": "T", "defaultValue": "some text"})"),
    };
    return fields;
}

} // namespace FormFields
