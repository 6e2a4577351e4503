#pragma once

#include "spoilingproxy.h"

namespace TestSupport {

/// A daemon that breaks one rule, and keeps the others.
struct Defect {
    QString rule;
    /// Requests that it answers with success without doing anything.
    std::function<bool(const QJsonObject &request)> swallows;
    SpoilingProxy::Spoil spoil;
};

/// One for each rule.
[[nodiscard]] QList<Defect> defects();

// Defects by subject.
[[nodiscard]] QList<Defect> connectionDefects();
[[nodiscard]] QList<Defect> groupDefects();
[[nodiscard]] QList<Defect> taskDefects();

// What defects are made of. They show in the checks of their rule only.
using Change = std::function<void(QJsonObject &response)>;

/// Answers the command with success, and does nothing.
[[nodiscard]] Defect ignores(const QString &rule, const QString &command);
[[nodiscard]] Defect changes(const QString &rule, const QString &command, const Change &change);
[[nodiscard]] Defect hangsUp(const QString &rule, const QString &command);
[[nodiscard]] Defect isSilent(const QString &rule, const QString &command);

[[nodiscard]] Change refusing();
[[nodiscard]] Change accepting();
/// Sets a member of the data.
[[nodiscard]] Change answering(const QString &key, const QJsonValue &value);
/// Sets a member of an object in the data.
[[nodiscard]] Change inObject(const QString &object, const QString &key, const QJsonValue &value);
/// Sets a member of each object of a list in the data.
[[nodiscard]] Change inEach(const QString &list, const QString &key, const QJsonValue &value);
/// The same, in the first one only.
[[nodiscard]] Change inFirst(const QString &list, const QString &key, const QJsonValue &value);

/// Whether a check of this rule has sent the request.
[[nodiscard]] bool isOf(const QString &rule, const QJsonObject &request);

} // namespace TestSupport
