#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <algorithm>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace TestSupport {

/// A Unix socket made by hand, for what a QLocalServer does not do: an endpoint that nobody serves, or one that is too
/// busy to accept. Closing it leaves its file behind, as the end of a killed process does.
class RawSocket {
public:
    explicit RawSocket(const QString &path)
    {
        const QByteArray name = QFile::encodeName(path);
        m_address.sun_family = AF_UNIX;
        std::copy_n(name.constData(), std::min<qsizetype>(name.size(), sizeof m_address.sun_path - 1),
                    m_address.sun_path);
    }
    ~RawSocket()
    {
        close();
    }
    RawSocket(RawSocket &&other) noexcept
        : m_address(other.m_address)
        , m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    RawSocket(const RawSocket &) = delete;
    RawSocket &operator=(const RawSocket &) = delete;
    RawSocket &operator=(RawSocket &&) = delete;

    [[nodiscard]] bool bind()
    {
        return open() && ::bind(m_descriptor, address(), sizeof m_address) == 0;
    }
    [[nodiscard]] bool listen(int backlog)
    {
        return ::listen(m_descriptor, backlog) == 0;
    }
    /// Never blocks; false when the other end refuses or has no room in its queue.
    [[nodiscard]] bool connect()
    {
        return open() && ::connect(m_descriptor, address(), sizeof m_address) == 0;
    }
    void close()
    {
        if (m_descriptor >= 0)
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    [[nodiscard]] bool open()
    {
        m_descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        return m_descriptor >= 0;
    }
    [[nodiscard]] const sockaddr *address() const
    {
        return reinterpret_cast<const sockaddr *>(&m_address);
    }

    sockaddr_un m_address{};
    int m_descriptor = -1;
};

} // namespace TestSupport
