#include "mcsdynamicformwidget.h"

#include "fieldwidgets.h"
#include "programparameters.h"
#include "stylesheets.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

/// The labels of the daemon's definitions that have a translation.
constexpr const char *translatedLabels[] = {
    QT_TRANSLATE_NOOP("Scheduler::MCsDynamicFormWidget", "Audio Source"),
    QT_TRANSLATE_NOOP("Scheduler::MCsDynamicFormWidget", "Audio Bitrate"),
    QT_TRANSLATE_NOOP("Scheduler::MCsDynamicFormWidget", "Audio Sample Rate"),
    QT_TRANSLATE_NOOP("Scheduler::MCsDynamicFormWidget", "Channels"),
    QT_TRANSLATE_NOOP("Scheduler::MCsDynamicFormWidget", "Enable VBR if supported"),
    QT_TRANSLATE_NOOP("Scheduler::MCsDynamicFormWidget", "Output format"),
};

/// Empties a layout and the layouts in it. Widgets vanish at once and are deleted later, for one of them may be at
/// work.
void clearLayout(QLayout *layout)
{
    while (const std::unique_ptr<QLayoutItem> item{layout->takeAt(0)}) {
        if (QWidget *widget = item->widget()) {
            widget->hide();
            widget->deleteLater();
        } else if (QLayout *nested = item->layout()) {
            clearLayout(nested);
        }
    }
}

/// A label that shows its text as it stands. It is nobody's buddy, which would make an ampersand a shortcut.
QLabel *createRowLabel(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

} // namespace

MCsDynamicFormWidget::MCsDynamicFormWidget(QWidget *parent)
    : QWidget(parent)
    , m_formLayout(new QVBoxLayout(this))
{
    m_formLayout->setContentsMargins(0, 0, 0, 0);
    hide();
}

void MCsDynamicFormWidget::setTaskTypes(const QList<TaskTypeInfo> &types)
{
    m_definitions.clear();
    for (const TaskTypeInfo &type : types)
        m_definitions.insert(type.type, type);
}

bool MCsDynamicFormWidget::buildForTaskType(const QString &taskType, const QString &parametersJson)
{
    const auto definition = m_definitions.constFind(taskType);
    if (taskType.isEmpty() || definition == m_definitions.constEnd()) {
        clearForm();
        hide();
        return false;
    }
    buildForm(TaskTypeInfo(*definition), parametersJson);
    return true;
}

void MCsDynamicFormWidget::placeInTabOrder(QWidget *previous)
{
    for (const FieldBinding &binding : std::as_const(m_bindings)) {
        setTabOrder(previous, binding.widget);
        previous = binding.widget;
    }
}

bool MCsDynamicFormWidget::hasFields() const
{
    return !m_bindings.isEmpty();
}

QJsonObject MCsDynamicFormWidget::collectValues() const
{
    QJsonObject values;
    for (const FieldBinding &binding : m_bindings)
        values.insert(binding.key, fieldValue(binding.type, binding.widget));
    return values;
}

void MCsDynamicFormWidget::applyValues(const QJsonObject &values, const QStringList &excludedKeys)
{
    for (const FieldBinding &binding : std::as_const(m_bindings)) {
        if (values.contains(binding.key) && !excludedKeys.contains(binding.key))
            setFieldValue(binding.type, binding.widget, values.value(binding.key));
    }
}

void MCsDynamicFormWidget::clearForm()
{
    clearLayout(m_formLayout);
    m_bindings.clear();
}

void MCsDynamicFormWidget::buildForm(const TaskTypeInfo &definition, const QString &parametersJson)
{
    clearForm();
    setVisible(!definition.fields.isEmpty());
    if (definition.fields.isEmpty())
        return;
    auto *card = new QGroupBox(this);
    card->setStyleSheet(formCardStyleSheet());
    auto *cardLayout = new QVBoxLayout(card);
    auto *heading = new QLabel(tr("⚙️ Program Parameters"), card);
    heading->setProperty("class", u"sectionTitleLabel"_s);
    heading->setStyleSheet(formHeadingStyleSheet());
    cardLayout->addWidget(heading);
    auto *fieldsLayout = new QFormLayout;
    cardLayout->addLayout(fieldsLayout);
    const QJsonObject parameters = parseProgramParameters(parametersJson);
    for (const TaskFieldInfo &field : definition.fields)
        addField(fieldsLayout, field, parameters);
    m_formLayout->addWidget(card);
}

void MCsDynamicFormWidget::addField(QFormLayout *layout, const TaskFieldInfo &field, const QJsonObject &parameters)
{
    const QString label = displayLabel(field.label);
    QWidget *card = layout->parentWidget();
    QWidget *widget = createFieldWidget(field, effectiveDefaults(field, parameters), card);
    widget->setAccessibleName(label);
    layout->addRow(createRowLabel(label + (field.required ? "*:"_L1 : ":"_L1), card), widget);
    m_bindings.append({field.key, field.label, field.type, widget});
}

QString MCsDynamicFormWidget::displayLabel(const QString &label)
{
    for (const char *source : translatedLabels) {
        if (label == QLatin1StringView(source))
            return tr(source);
    }
    return label;
}

} // namespace Scheduler
