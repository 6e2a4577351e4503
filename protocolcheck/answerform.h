#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace Scheduler::ProtocolCheck {

enum class JsonKind { Text, Flag, Number, Object, List, Date, Id, EntryNumber };

/// A member of a record, which may be left out or null unless it is an id.
struct Member {
    QLatin1StringView key;
    JsonKind kind = JsonKind::Text;
};

// The members of the records, by kind of record.
[[nodiscard]] const QList<Member> &taskMembers();
[[nodiscard]] const QList<Member> &groupMembers();
[[nodiscard]] const QList<Member> &auditMembers();
[[nodiscard]] const QList<Member> &taskTypeMembers();
[[nodiscard]] const QList<Member> &fieldMembers();

/// What is wrong with the members, in words; empty when the manager reads all of them.
[[nodiscard]] QString recordProblem(const QJsonObject &record, const QList<Member> &members);
/// The first problem in a list of records.
[[nodiscard]] QString listProblem(const QJsonArray &records, const QList<Member> &members);

/// What is wrong with a response, its id and the members of its data apart; empty when it has the right form.
[[nodiscard]] QString answerProblem(const QJsonObject &answer);

/// An id that the manager can send back: a text, not empty, without a comma.
[[nodiscard]] bool isId(const QJsonValue &value);

} // namespace Scheduler::ProtocolCheck
