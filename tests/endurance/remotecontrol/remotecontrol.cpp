#include <QCloseEvent>
#include <QCoreApplication>
#include <QGenericPlugin>
#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <unistd.h>

/// Closes a program from outside, on a platform without a window manager: Qt loads it into the program when
/// QT_QPA_GENERIC_PLUGINS names it. It obeys letters on the standard input: "c" closes its windows by
/// their title bars, and "q" quits, as the end of the session would.
class RemoteControl : public QObject {
    Q_OBJECT

public:
    RemoteControl()
        : m_input(STDIN_FILENO, QSocketNotifier::Read)
    {
        connect(&m_input, &QSocketNotifier::activated, this, &RemoteControl::obey);
    }

private slots:
    void obey()
    {
        char letter = 0;
        if (read(STDIN_FILENO, &letter, 1) <= 0)
            m_input.setEnabled(false);
        else if (letter == 'q')
            QCoreApplication::quit();
        else if (letter == 'c')
            closeAll();
    }

private:
    // As the window system does it. QWindow::close() would not be the user's doing but the program's own.
    static void askToClose(QWindow *window)
    {
        QCloseEvent event;
        QCoreApplication::sendEvent(window, &event);
    }

    // A user who wants to be rid of the program closes whatever is in front until nothing is left.
    static void closeAll()
    {
        QWindow *front = QGuiApplication::modalWindow();
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (QWindow *window : windows) {
            if (front == nullptr && window->isVisible())
                front = window;
        }
        if (front == nullptr)
            return;
        askToClose(front);
        // Not as a posted event: those that post the next one keep timers and sockets from their turn.
        QTimer::singleShot(1, qGuiApp, &RemoteControl::closeAll);
    }

    QSocketNotifier m_input;
};

class RemoteControlPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "remotecontrol.json")

public:
    QObject *create(const QString & /*name*/, const QString & /*values*/) override
    {
        return new RemoteControl;
    }
};

#include "remotecontrol.moc"
