#include "widgetaccess.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

/// Others of that name, for the message about a widget that was not found.
QString namesakes(const QList<QWidget *> &widgets)
{
    QStringList descriptions;
    for (const QWidget *widget : widgets)
        descriptions.append(describe(widget));
    return descriptions.join(", "_L1);
}

} // namespace

QString describe(const QWidget *widget)
{
    if (widget == nullptr)
        return u"no widget"_s;
    QString text = QString::fromLatin1(widget->metaObject()->className());
    if (!widget->objectName().isEmpty())
        text += u" named "_s + quoted(widget->objectName());
    if (widget->isWindow())
        text += u" titled "_s + quoted(widget->windowTitle());
    return text;
}

void fail(const QString &message, const std::source_location &where)
{
    QTest::qFail(message.toUtf8().constData(), where.file_name(), int(where.line()));
}

QWidget *findWidget(const QWidget *root, const char *objectName, const QMetaObject &type, QString *problem)
{
    const QString name = QString::fromLatin1(objectName);
    const QList<QWidget *> named = root == nullptr ? QList<QWidget *>() : root->findChildren<QWidget *>(name);
    QList<QWidget *> found;
    for (QWidget *widget : named) {
        if (widget->metaObject()->inherits(&type))
            found.append(widget);
    }
    if (found.size() == 1)
        return found.first();
    if (problem != nullptr) {
        *problem = u"%1 %2 named \"%3\" in %4"_s.arg(found.isEmpty() ? u"no"_s : u"more than one"_s,
                                                     QString::fromLatin1(type.className()), name, describe(root));
        if (!named.isEmpty())
            *problem += u"; there is: "_s + namesakes(named);
    }
    return nullptr;
}

QString clickProblem(const QAbstractButton *button)
{
    if (button == nullptr)
        return u"the button to click is missing"_s;
    if (!button->isVisible())
        return u"the button to click is hidden: "_s + describe(button);
    if (!button->isEnabled())
        return u"the button to click is disabled: "_s + describe(button);
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != button->window() && !modal->isAncestorOf(button->window()))
        return u"the button to click, %1, is blocked by %2"_s.arg(describe(button), describe(modal));
    return {};
}

bool click(QAbstractButton *button, const std::source_location &where)
{
    if (const QString problem = clickProblem(button); !problem.isEmpty()) {
        fail(problem, where);
        return false;
    }
    button->click();
    return true;
}

bool click(QWidget *root, const char *objectName, const std::source_location &where)
{
    auto *button = require<QAbstractButton>(root, objectName, where);
    return button != nullptr && click(button, where);
}

} // namespace TestSupport
