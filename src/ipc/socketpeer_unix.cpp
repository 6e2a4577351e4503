#include "socketpeer.h"

#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

#ifdef Q_OS_LINUX
std::optional<uid_t> userBehind(int descriptor)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    if (::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return std::nullopt;
    return peer.uid;
}
#else
std::optional<uid_t> userBehind(int descriptor)
{
    uid_t user{};
    gid_t group{};
    if (::getpeereid(descriptor, &user, &group) != 0)
        return std::nullopt;
    return user;
}
#endif

} // namespace

std::optional<QString> strangerBehind(qintptr socketDescriptor)
{
    const std::optional<uid_t> user = userBehind(static_cast<int>(socketDescriptor));
    if (!user)
        return u"the system does not tell which user serves it"_s;
    if (*user != ::geteuid())
        return u"it is served by another user (id %1)"_s.arg(*user);
    return std::nullopt;
}

} // namespace Scheduler
