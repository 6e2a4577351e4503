#include "menuuser.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

constexpr int pollIntervalMs = 2;

} // namespace

MenuUser::MenuUser(const QString &choice)
    : m_choice(choice)
{
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (menu == nullptr)
            return;
        m_timer.stop();
        use(menu);
    });
    m_timer.start(pollIntervalMs);
}

QStringList MenuUser::items() const
{
    return m_items;
}

bool MenuUser::hasChosen() const
{
    return m_chosen;
}

void MenuUser::use(QMenu *menu)
{
    QAction *choice = nullptr;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        m_items.append(action->isSeparator() ? u"-"_s : action->text());
        if (!action->isSeparator() && action->text() == m_choice)
            choice = action;
    }
    m_chosen = choice != nullptr;
    if (m_chosen)
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(choice).center());
    else
        QTest::keyClick(menu, Qt::Key_Escape);
}

} // namespace TestSupport
