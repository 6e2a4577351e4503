#include "checkoptions.h"
#include "mcsprotocolcheck.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

namespace {

using namespace Qt::StringLiterals;
using namespace Scheduler::ProtocolCheck;

volatile std::sig_atomic_t interrupted = 0;

/// The first signal lets the check tidy up; a second one ends it at once.
void onSignal(int number)
{
    interrupted = 1;
    (void)std::signal(number, SIG_DFL);
}

void print(std::FILE *stream, const QString &text)
{
    // Who cannot be told cannot be told of that either.
    (void)std::fprintf(stream, "%s\n", qUtf8Printable(text));
    (void)std::fflush(stream);
}

int runCheck(CheckSettings settings)
{
    (void)std::signal(SIGINT, &onSignal);
    (void)std::signal(SIGTERM, &onSignal);
    settings.interrupted = [] { return interrupted != 0; };
    MCsProtocolCheck check(
        settings, [](const QString &line) { print(stdout, line); },
        [](const QString &line) { print(stderr, u"orvel-protocol-check: "_s + line); });
    return check.run();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"orvel-protocol-check"_s);
    QCoreApplication::setApplicationVersion(QLatin1StringView(ORVEL_VERSION));

    const CommandLine commandLine = parseCommandLine(QCoreApplication::arguments());
    if (commandLine.settings)
        return runCheck(*commandLine.settings);
    print(commandLine.exitStatus == 0 ? stdout : stderr, commandLine.text);
    return commandLine.exitStatus;
}
