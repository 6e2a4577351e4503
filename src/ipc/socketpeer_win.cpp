#include "socketpeer.h"

// A pipe does not tell the user at its other end as a socket does.
std::optional<QString> Scheduler::strangerBehind(qintptr /*socketDescriptor*/)
{
    return std::nullopt;
}
