#pragma once

#include <QString>
#include <QStringList>
#include <QTimer>

class QMenu;

namespace TestSupport {

/// Waits for a context menu, which blocks whoever brought it up, notes its items and clicks one of them, or leaves it
/// with the Escape key when it is to choose none or the menu has no such item.
class MenuUser {
public:
    explicit MenuUser(const QString &choice = {});
    MenuUser(const MenuUser &) = delete;
    MenuUser &operator=(const MenuUser &) = delete;

    /// The texts of the menu that has come, a separator being "-". Empty when none has.
    [[nodiscard]] QStringList items() const;
    /// Whether the choice was there to be clicked.
    [[nodiscard]] bool hasChosen() const;

private:
    void use(QMenu *menu);

    QString m_choice;
    QTimer m_timer;
    QStringList m_items;
    bool m_chosen = false;
};

} // namespace TestSupport
