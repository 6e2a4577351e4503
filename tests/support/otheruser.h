#pragma once

#include <sys/types.h>
#include <unistd.h>

namespace TestSupport {

/// The process is another user while this lives, which only root can be; in a process with one thread.
///
/// Sockets and files that are made meanwhile belong to that user for good. Root may write everywhere, so this is also
/// how a test that runs as root meets a directory that it may not write to. For any other user it changes nothing.
class OtherUser {
public:
    /// A user without rights; it need not have a name.
    static constexpr uid_t id = 65534;

    /// Root of a container may lack the right.
    static bool possible()
    {
        return OtherUser().m_changed;
    }

    OtherUser()
        : m_changed(::geteuid() == 0 && ::setresuid(id, id, 0) == 0)
    {
    }
    ~OtherUser()
    {
        if (m_changed && ::setresuid(0, 0, 0) != 0)
            ::_exit(1); // nothing that follows would mean anything
    }
    OtherUser(const OtherUser &) = delete;
    OtherUser &operator=(const OtherUser &) = delete;

private:
    bool m_changed;
};

} // namespace TestSupport
