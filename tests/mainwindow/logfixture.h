#pragma once

#include "windowfixture.h"

#include <QStringList>
#include <QTextEdit>

namespace TestSupport {

/// A connected window whose daemon keeps an audit trail, and its own ticks off.
class LogWindow : public WindowFixture {
public:
    /// When everything happens, as the view shows it.
    static const QString time;

    [[nodiscard]] bool connect(const QString &taskType = QStringLiteral("task_type.screen_record"));
    /// Something happens at the daemon, after everything before.
    void happen(const QString &action, const QString &name, const QJsonObject &more = {});
    /// Presses the log's button.
    void refresh();
    /// The lines of the view; none when it is empty.
    [[nodiscard]] QStringList lines() const;

    QList<QJsonObject> entries; ///< newest first
    QTextEdit *view = nullptr;
};

} // namespace TestSupport
