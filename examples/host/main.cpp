#include "hostwindow.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"orvel-example-host"_s);
    HostWindow window;
    window.show();

    // For trials by machine: open the manager at once, and end with its status, or with 1 where it has none.
    if (QApplication::arguments().contains(u"--open"_s)) {
        QObject::connect(
            &window, &HostWindow::managerEnded, &application,
            [](int status) { QApplication::exit(status < 0 ? 1 : status); }, Qt::QueuedConnection);
        QTimer::singleShot(0, &window, &HostWindow::openManager);
    }
    return QApplication::exec();
}
