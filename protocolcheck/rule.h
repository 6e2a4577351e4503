#pragma once

#include <QList>
#include <QString>

namespace Scheduler::ProtocolCheck {

class MCsCheckBench;

struct Outcome {
    enum class Kind { Holds, Differs, NotTried };

    Kind kind = Kind::Holds;
    QString detail; ///< what was expected and what came, or why it was not tried
};

/// One thing that every daemon must do. docs/protocol.md lists all of them by name and text.
struct Rule {
    using Check = void (*)(MCsCheckBench &);

    QString name;    ///< unique; part of the ids of the requests that its check sends
    QString command; ///< the command that it is about; empty for a rule about all of them
    QString text;
    Check check = nullptr;
};

// The rules by subject.
[[nodiscard]] QList<Rule> clientRules();
[[nodiscard]] QList<Rule> frameRules();
[[nodiscard]] QList<Rule> errorRules();
[[nodiscard]] QList<Rule> taskTypeRules();
[[nodiscard]] QList<Rule> groupRules();
[[nodiscard]] QList<Rule> groupListRules();
[[nodiscard]] QList<Rule> groupTaskRules();
[[nodiscard]] QList<Rule> taskRules();
[[nodiscard]] QList<Rule> taskListRules();
[[nodiscard]] QList<Rule> taskActionRules();
[[nodiscard]] QList<Rule> goneRules();
[[nodiscard]] QList<Rule> auditRules();
/// About all answers of a check, so they come last.
[[nodiscard]] QList<Rule> answerRules();

/// Every rule, in the order in which they are tried.
[[nodiscard]] QList<Rule> allRules();

} // namespace Scheduler::ProtocolCheck
