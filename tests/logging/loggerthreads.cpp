// Threads that log all at once, through rotations and a file that fails. Built with the thread sanitizer by
// tools/check-threads, which sees the races; by itself it sees entries that are lost, torn or mixed. A program of its
// own without a test framework, so that the logger is the only code under the sanitizer.

#include "mcslogger.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <atomic>
#include <cstdio>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

constexpr int threadCount = 4;
constexpr int entriesPerThread = 250;
constexpr qsizetype padding = 8000; // enough for one rotation, and not for two

std::atomic<int> debugMessages = 0;
std::atomic<int> warnings = 0;

void countMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString & /*text*/)
{
    ++(type == QtDebugMsg ? debugMessages : warnings);
}

/// Every way into the logger, with and without secrets, dropped entries among them.
void writeEntries(int number)
{
    MCsLogger &logger = MCsLogger::instance();
    const QString source = u"thread %1"_s.arg(number);
    const QString filling(padding, QChar(u'p' + number));
    for (int i = 0; i < entriesPerThread; ++i) {
        const QString text = u"%1-%2 password=p%2 "_s.arg(number).arg(i) + filling + u'!';
        logger.debug(source, text);
        switch (i % 4) {
        case 0:
            logger.info(source, text);
            break;
        case 1:
            logger.warn(source, text, {{u"token"_s, i}, {u"line"_s, u"auth: a%1"_s.arg(i)}});
            break;
        case 2:
            logger.error(source, text);
            break;
        default:
            logger.log(9, source, text, {{u"nested"_s, QJsonObject{{u"pwd"_s, i}}}});
        }
    }
}

void runThreads()
{
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int number = 0; number < threadCount; ++number)
        threads.emplace_back(writeEntries, number);
    for (std::thread &thread : threads)
        thread.join();
}

/// The distinct entries of a log file that are whole; broken counts the lines that are none.
QSet<QString> wholeEntries(const QString &path, int &broken)
{
    static const QRegularExpression form(
        uR"(\A\[[-:T\d]{19}\] : (\d-\d+) password=\*\*\*REDACTED\*\*\* ([p-s])\2{7999}!\z)"_s);
    QSet<QString> found;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return found;
    while (!file.atEnd()) {
        const QRegularExpressionMatch match = form.match(QString::fromUtf8(file.readLine()).chopped(1));
        if (match.hasMatch())
            found.insert(match.captured(1));
        else
            ++broken;
    }
    return found;
}

bool check(const char *what, qint64 actual, qint64 expected)
{
    if (actual == expected)
        return true;
    std::fprintf(stderr, "%s: %lld instead of %lld\n", what, static_cast<long long>(actual),
                 static_cast<long long>(expected));
    return false;
}

} // namespace

int main()
{
    constexpr int all = threadCount * entriesPerThread;
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"gui_logs.log"_s);
    qInstallMessageHandler(countMessage);

    MCsLogger::instance().setLogFilePath(path);
    runThreads();
    int broken = 0;
    const QSet<QString> entries = wholeEntries(path + u".1"_s, broken) + wholeEntries(path, broken);
    bool right = check("entries in the files", entries.size(), all);
    right &= check("broken lines", broken, 0);
    right &= check("entries in the debug output", debugMessages, all);
    right &= check("warnings", warnings, 0);
    right &= check("rotated files", QFile::exists(path + u".1"_s) ? 1 : 0, 1);

    MCsLogger::instance().setLogFilePath(directory.path());
    runThreads();
    right &= check("entries in the debug output, file failing", debugMessages, 2 * all);
    right &= check("warnings, file failing", warnings, all);
    return right ? 0 : 1;
}
