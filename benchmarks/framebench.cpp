#include "benchtable.h"
#include "mcsframebuffer.h"

#include <benchmark/benchmark.h>

#include <QByteArray>

#include <cstring>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

constexpr qsizetype pieceSize = 4096;

QByteArray frames(qsizetype count, qsizetype size)
{
    const QByteArray frame = QByteArray(size - 1, 'x') + '\n';
    return frame.repeated(count);
}

/// Searches and copies each byte once.
void searchAndCopy(const QByteArray &bytes)
{
    const char *position = bytes.constData();
    const char *const end = position + bytes.size();
    while (position < end) {
        const void *found = std::memchr(position, '\n', static_cast<std::size_t>(end - position));
        const char *next = found == nullptr ? end : static_cast<const char *>(found) + 1;
        QByteArray frame(position, next - position);
        benchmark::DoNotOptimize(frame.data());
        position = next;
    }
}

void feed(const QByteArray &bytes, qsizetype size)
{
    Scheduler::MCsFrameBuffer buffer;
    for (qsizetype at = 0; at < bytes.size(); at += size) {
        buffer.append(QByteArrayView(bytes).sliced(at, qMin(size, bytes.size() - at)));
        while (std::optional<QByteArray> frame = buffer.takeFrame())
            benchmark::DoNotOptimize(frame->data());
    }
}

Measured manyFrames(qsizetype size)
{
    const QByteArray bytes = frames(10000, 10000);
    return timePair([&] { searchAndCopy(bytes); }, [&] { feed(bytes, size < 0 ? bytes.size() : size); });
}

Measured hugeFrame()
{
    const QByteArray bytes = frames(1, 64 * 1024 * 1024);
    return timePair([&] { feed(bytes, bytes.size()); }, [&] { feed(bytes, pieceSize); });
}

} // namespace

QList<Row> frameRows()
{
    const QString floor = u"memchr over the same bytes plus one copy"_s;
    return {
        {u"Frame reader: 100 MB as 10,000 frames, glued"_s, floor, 1.5, [] { return manyFrames(-1); }},
        {u"Frame reader: 100 MB as 10,000 frames, in pieces of 4 KiB"_s, floor, 1.5,
         [] { return manyFrames(pieceSize); }},
        {u"Frame reader: one frame of 64 MiB in pieces of 4 KiB"_s, u"the same frame in one piece"_s, 1.5, hugeFrame}};
}

} // namespace Bench
