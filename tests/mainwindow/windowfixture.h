#pragma once

#include "mcsmainwindow.h"
#include "scripteddaemon.h"
#include "widgetaccess.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QString>
#include <QTimer>

#include <memory>

namespace TestSupport {

/// A task record as the daemon sends it.
[[nodiscard]] QJsonObject taskJson(const QString &id, const QString &name, const QJsonObject &more = {});
/// A group record as the daemon sends it.
[[nodiscard]] QJsonObject groupJson(const QString &id, const QString &name, const QJsonObject &more = {});
[[nodiscard]] QJsonArray toArray(const QList<QJsonObject> &objects);

/// A main window and the scripted daemon that it finds. The daemon does not listen until told to.
class WindowFixture {
public:
    WindowFixture();
    ~WindowFixture();
    WindowFixture(const WindowFixture &) = delete;
    WindowFixture &operator=(const WindowFixture &) = delete;

    /// Makes and shows the window.
    void open(const QString &taskType = QStringLiteral("task_type.screen_record"),
              const QString &language = QStringLiteral("en"));
    /// Makes the window only; its first show is what starts the connection.
    void make(const QString &taskType = QStringLiteral("task_type.screen_record"),
              const QString &language = QStringLiteral("en"));
    /// Lets the daemon answer with some tasks and groups, and listen.
    [[nodiscard]] bool startDaemon();
    /// startDaemon(), open(), and waits until the window has read everything that it reads after connecting.
    [[nodiscard]] bool connectWindow(const QString &taskType = QStringLiteral("task_type.screen_record"),
                                     const QString &language = QStringLiteral("en"));
    /// Destroys the window.
    void close();

    void setTasks(const QList<QJsonObject> &tasks);
    void setGroups(const QList<QJsonObject> &groups);

    template <typename Widget> [[nodiscard]] Widget *widget(const char *name) const
    {
        return require<Widget>(window.get(), name);
    }
    /// A timer of the window or of its client; null when it does not exist yet.
    [[nodiscard]] QTimer *timer(const char *name) const;
    /// Makes a running timer fire at the next turn of the event loop, without the wait.
    static void fire(QTimer *timer);
    [[nodiscard]] QString status() const;

    ScriptedDaemon daemon;
    std::unique_ptr<Scheduler::MCsMainWindow> window;
};

/// Runs the application's event loop until something quits it. Returns its exit status, or -1 after the given time.
[[nodiscard]] int runUntilQuit(int timeoutMs = 20000);

} // namespace TestSupport
