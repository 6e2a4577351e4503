#pragma once

#include "records.h"

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class QFormLayout;
class QVBoxLayout;

namespace Scheduler {

/// The card of the task dialog that holds the parameters of a task type.
///
/// The daemon's definition says which fields there are; the host's parameter file may override their defaults and
/// options. A build replaces all widgets, and what was typed into them is gone. Whoever builds the form applies the
/// widget styles to it afterwards. The form starts hidden, and hides when it has no fields.
class MCsDynamicFormWidget : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsDynamicFormWidget)

public:
    explicit MCsDynamicFormWidget(QWidget *parent = nullptr);

    /// Replaces the definitions. A form that stands already is left as it is.
    void setTaskTypes(const QList<TaskTypeInfo> &types);

    /// Builds the form of a task type. Malformed parameter text counts as none. False, and no form, when the type is
    /// empty or unknown.
    bool buildForTaskType(const QString &taskType, const QString &parametersJson);

    /// Moves the fields behind a widget in the focus order of their window. New widgets come last in it, so this is to
    /// be done after every build.
    void placeInTabOrder(QWidget *previous);

    [[nodiscard]] bool hasFields() const;

    /// The values, keyed by field key: a number, a boolean or a string by the field's type.
    [[nodiscard]] QJsonObject collectValues() const;

    /// Writes stored values into the fields whose keys they have, but for the excluded keys.
    void applyValues(const QJsonObject &values, const QStringList &excludedKeys);

private:
    /// A field of the form that stands now. The card owns the widget.
    struct FieldBinding {
        QString key;
        QString label;
        QString type;
        QWidget *widget = nullptr;
    };

    void clearForm();
    void buildForm(const TaskTypeInfo &definition, const QString &parametersJson);
    void addField(QFormLayout *layout, const TaskFieldInfo &field, const QJsonObject &parameters);
    [[nodiscard]] static QString displayLabel(const QString &label);

    QList<FieldBinding> m_bindings;
    QVBoxLayout *m_formLayout = nullptr;
    QHash<QString, TaskTypeInfo> m_definitions;
};

} // namespace Scheduler
