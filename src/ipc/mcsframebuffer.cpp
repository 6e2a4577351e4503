#include "mcsframebuffer.h"

#include <QIODevice>

#include <cstring>

namespace Scheduler {

void MCsFrameBuffer::append(QByteArrayView bytes)
{
    dropTaken();
    m_bytes.append(bytes);
}

qsizetype MCsFrameBuffer::readFrom(QIODevice &device)
{
    dropTaken();
    const qsizetype before = m_bytes.size();
    // A resize to the exact size would copy a large unfinished frame for each small piece.
    const qsizetype needed = before + static_cast<qsizetype>(device.bytesAvailable());
    if (needed > m_bytes.capacity())
        m_bytes.reserve(qMax(needed, 2 * before));
    m_bytes.resize(needed);
    const qint64 count = device.read(m_bytes.data() + before, needed - before);
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

void MCsFrameBuffer::dropTaken()
{
    if (m_taken == 0)
        return;
    // The array keeps its capacity here; one read that was large would otherwise be paid for in memory for ever.
    constexpr qsizetype keptCapacity = 1 << 20;
    if (m_taken == m_bytes.size() && m_bytes.capacity() > keptCapacity)
        m_bytes = QByteArray();
    else
        m_bytes.remove(0, m_taken);
    m_searched -= m_taken;
    m_taken = 0;
}

} // namespace Scheduler
