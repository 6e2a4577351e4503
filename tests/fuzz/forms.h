#pragma once

#include "fuzzing.h"

#include "mcsdynamicformwidget.h"

#include <QApplication>
#include <QEvent>

// What the targets share that fill the parameter form.

namespace Fuzzing {

// Neither application nor widgets are ever destroyed: when the process ends, parts of Qt go before they would.

inline void startApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    [[maybe_unused]] static const auto *const application = new QApplication(argc, argv);
}

/// One form for all inputs, in a window that is not shown: a form by itself would become a window with each build.
inline Scheduler::MCsDynamicFormWidget &hiddenForm()
{
    static auto *const form = new Scheduler::MCsDynamicFormWidget(new QWidget);
    return *form;
}

/// A definition with a field of every kind.
inline Scheduler::TaskTypeInfo typeOfEveryKind()
{
    return Scheduler::TaskTypeInfo::fromJson(objectFrom(R"({"type": "task_type.test", "fields": [
        {"key": "i", "type": "int", "label": "I", "min": -1, "max": 60, "defaultValue": "30"},
        {"key": "d", "type": "double", "label": "D", "min": -5, "max": 5, "defaultValue": "1.5"},
        {"key": "b", "type": "bool", "label": "B", "required": true, "defaultValue": "true"},
        {"key": "s", "type": "select", "label": "S", "options": ["x", "y", ""], "defaultValue": "y"},
        {"key": "t", "type": "text", "label": "T", "placeholder": "<b>", "defaultValue": "some text"}]})"));
}

/// The values of a form fill the same form without changing it: what was shown once is stored and shown again.
inline void checkFixpoint(Scheduler::MCsDynamicFormWidget &form)
{
    const QJsonObject values = form.collectValues();
    form.applyValues(objectFrom(QJsonDocument(values).toJson()), {});
    require(form.collectValues() == values, "a form takes back its own values");
}

/// Carries out what was put off, so that one input does not pay for another.
inline void deleteLeftOvers()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
}

} // namespace Fuzzing
