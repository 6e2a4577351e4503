#include "mcsnamedpipeserver.h"

#include <QCoreApplication>

#include <cstdio>

/// Listens on the endpoint of its argument until it is killed. Says "listening", or why it cannot and ends with status
/// 1.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Scheduler::MCsNamedPipeServer server;
    const bool listening = server.listen(QCoreApplication::arguments().value(1));
    std::puts(listening ? "listening" : qPrintable(server.errorString()));
    std::fflush(stdout);
    return listening ? QCoreApplication::exec() : 1;
}
