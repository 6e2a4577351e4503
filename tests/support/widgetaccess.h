#pragma once

#include <QString>
#include <QWidget>

#include <source_location>

class QAbstractButton;

namespace TestSupport {

/// Class, object name and, of a window, title: what a failure message calls the widget.
[[nodiscard]] QString describe(const QWidget *widget);

/// Fails the running test with a readable message at the caller's line. It does not return from the test function.
void fail(const QString &message, const std::source_location &where = std::source_location::current());

/// The one descendant of root with this name and class or a class derived from it; null when there is none or more
/// than one, and then problem, unless null, says so.
[[nodiscard]] QWidget *findWidget(const QWidget *root, const char *objectName, const QMetaObject &type,
                                  QString *problem = nullptr);

/// The descendant of root with this name. A missing widget fails the test, and the result is null:
/// ORVEL_REQUIRE_WIDGET leaves the test function then.
template <typename T>
[[nodiscard]] T *require(QWidget *root, const char *objectName,
                         const std::source_location &where = std::source_location::current())
{
    QString problem;
    QWidget *widget = findWidget(root, objectName, T::staticMetaObject, &problem);
    if (widget == nullptr)
        fail(problem, where);
    return static_cast<T *>(widget);
}

/// What keeps a user from pressing the button: it is missing, hidden, disabled, or behind a modal window. Empty when
/// nothing does.
[[nodiscard]] QString clickProblem(const QAbstractButton *button);

/// Clicks as a user does. A button that a user could not press fails the test, and the result is false.
bool click(QAbstractButton *button, const std::source_location &where = std::source_location::current());
bool click(QWidget *root, const char *objectName, const std::source_location &where = std::source_location::current());

} // namespace TestSupport

/// Declares a pointer to the named descendant of root, or fails the test and leaves the function.
#define ORVEL_REQUIRE_WIDGET(Type, variable, root, objectName)                                                         \
    auto *const variable = TestSupport::require<Type>(root, objectName);                                               \
    if (variable == nullptr)                                                                                           \
    return
