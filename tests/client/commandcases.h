#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QVariant>

#include <functional>

namespace Scheduler {
class MCsSchedulerClient;
}

/// What an operation takes out of a response.
struct Outcome {
    enum Kind { Success, Text, Count, Record, List };

    Kind kind = Success;
    const char *key = nullptr;      ///< of the data
    const char *recordId = nullptr; ///< key of a record by which it is recognised
};

/// One call of an operation of the client and what it puts on the wire.
struct CommandCase {
    const char *name;
    std::function<QVariant(Scheduler::MCsSchedulerClient &client)> call; ///< gives ids in place of records
    const char *cmd;
    QByteArray payload; ///< compact JSON
    Outcome outcome;
};

/// The type under which the client of the tests registers.
inline constexpr char16_t testClientType[] = u"task_type.test";

/// Every operation, some with several sets of arguments.
const QList<CommandCase> &commandCases();
