#include "mcsframebuffer.h"

#include <QIODevice>

#include <cstring>
#include <utility>

namespace Scheduler {

namespace {

/// Room for several reads, so that what is left of one seldom moves.
constexpr qsizetype usualCapacity = 1 << 16;
/// The array keeps its capacity; one read that was large would otherwise be paid for in memory for ever.
constexpr qsizetype keptCapacity = 1 << 20;

} // namespace

void MCsFrameBuffer::append(QByteArrayView bytes)
{
    makeRoom(bytes.size());
    m_bytes.append(bytes);
}

qsizetype MCsFrameBuffer::readFrom(QIODevice &device)
{
    const auto available = static_cast<qsizetype>(device.bytesAvailable());
    makeRoom(available);
    const qsizetype before = m_bytes.size();
    m_bytes.resize(before + available);
    const qint64 count = device.read(m_bytes.data() + before, available);
    m_bytes.resize(before + static_cast<qsizetype>(qMax<qint64>(count, 0)));
    return m_bytes.size() - before;
}

std::optional<QByteArray> MCsFrameBuffer::takeFrame()
{
    while (m_searched < m_bytes.size()) {
        const char *start = m_bytes.constData();
        const void *found = std::memchr(start + m_searched, '\n', static_cast<size_t>(m_bytes.size() - m_searched));
        if (found == nullptr) {
            m_searched = m_bytes.size();
            break;
        }
        const qsizetype frameStart = m_taken;
        const qsizetype frameEnd = static_cast<const char *>(found) - start;
        m_taken = m_searched = frameEnd + 1;
        if (frameStart == 0 && m_taken == m_bytes.size() && m_taken > usualCapacity)
            return takeAll();
        if (frameEnd > frameStart)
            return m_bytes.sliced(frameStart, frameEnd - frameStart);
    }
    return std::nullopt;
}

void MCsFrameBuffer::clear()
{
    m_bytes.clear();
    m_taken = m_searched = 0;
}

qsizetype MCsFrameBuffer::size() const
{
    return m_bytes.size() - m_taken;
}

/// A large frame that is all there is goes out as it is, without a copy.
QByteArray MCsFrameBuffer::takeAll()
{
    QByteArray frame = std::exchange(m_bytes, {});
    frame.chop(1);
    m_taken = m_searched = 0;
    return frame;
}

/// Sees to it that so many bytes can be appended without being moved. Bytes of taken frames go when nothing else is
/// left or when their room is needed.
void MCsFrameBuffer::makeRoom(qsizetype count)
{
    const qsizetype left = size();
    if (left == 0 && m_bytes.capacity() > keptCapacity)
        m_bytes = QByteArray();
    if (left == 0 || (m_taken > 0 && m_bytes.size() + count > m_bytes.capacity())) {
        std::memmove(m_bytes.data(), m_bytes.constData() + m_taken, static_cast<size_t>(left));
        m_bytes.resize(left);
        m_searched -= m_taken;
        m_taken = 0;
    }
    // Twice as much each time: the exact size would copy a large unfinished frame for each small piece.
    if (const qsizetype needed = m_bytes.size() + count; needed > m_bytes.capacity())
        m_bytes.reserve(qMax(needed, qMax(usualCapacity, 2 * m_bytes.size())));
}

} // namespace Scheduler
