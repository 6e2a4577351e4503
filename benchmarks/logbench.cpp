#include "benchtable.h"
#include "mcslogger.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

/// Ordinary words, and no secret among them.
QString message(qsizetype size)
{
    return u"The connection to the scheduler service was restored after some attempts. "_s.repeated(size / 74 + 1)
        .first(size);
}

qint64 bytesOfOneEntry(const QString &path, const QString &text)
{
    QFile::remove(path);
    Scheduler::MCsLogger::instance().info(u"Benchmark"_s, text);
    return QFile(path).size();
}

Measured entryOf(qsizetype size)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"bench.log"_s);
    Scheduler::MCsLogger &logger = Scheduler::MCsLogger::instance();
    logger.setLogFilePath(path);
    const QString text = message(size);
    const QByteArray line(bytesOfOneEntry(path, text), 'x');
    const QString floorPath = directory.filePath(u"floor.log"_s);
    return timePair(
        [&] {
            QFile file(floorPath);
            if (file.open(QIODevice::WriteOnly | QIODevice::Append))
                file.write(line);
        },
        [&] { logger.info(u"Benchmark"_s, text); });
}

} // namespace

QList<Row> logRows()
{
    const QString floor = u"open, append, close of the same bytes"_s;
    return {{u"Log entry of 200 bytes, no secret in it"_s, floor, 1.6, [] { return entryOf(200); }},
            {u"Log entry of 10 KB, no secret in it"_s, floor, 1.6, [] { return entryOf(10000); }}};
}

} // namespace Bench
