#pragma once

#include <QByteArray>

#include <optional>

class QIODevice;

namespace Scheduler {

/// Cuts a byte stream into frames at line feeds.
///
/// Every byte is searched once and moved a bounded number of times, whatever the sizes of frames and reads: a huge
/// frame that arrives in small pieces is not searched from its start for each, and taking one of many frames does not
/// move the rest.
class MCsFrameBuffer {
public:
    void append(QByteArrayView bytes);
    /// Appends all that the device has to offer without blocking. Returns the number of bytes.
    qsizetype readFrom(QIODevice &device);

    /// The next complete frame that is not empty, without its terminator; empty frames are dropped.
    [[nodiscard]] std::optional<QByteArray> takeFrame();

    void clear();
    /// Bytes that belong to no taken frame yet.
    [[nodiscard]] qsizetype size() const;

private:
    QByteArray takeAll();
    void makeRoom(qsizetype count);

    QByteArray m_bytes;
    qsizetype m_taken = 0;    ///< bytes at the start that belong to taken frames
    qsizetype m_searched = 0; ///< bytes known to hold no terminator behind m_taken
};

} // namespace Scheduler
