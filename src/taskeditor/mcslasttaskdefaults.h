#pragma once

#include <QJsonObject>
#include <QString>

namespace Scheduler {

/// Remembers the last saved task of each type in the user's settings, so that the next new task of the type can start
/// from its parameters.
///
/// More is written than is read: the other values of a task stand in the settings, but a new task doesn't take them up.
/// An object of this class holds no settings open and may be copied.
class MCsLastTaskDefaults {
public:
    MCsLastTaskDefaults();

    /// The settings group of a task type.
    [[nodiscard]] QString lastTaskDefaultsGroup(const QString &taskType) const;

    /// Writes what a stored task document holds. A member that the document lacks keeps what was written before. Does
    /// nothing for an empty type.
    void saveDefaults(const QString &taskType, const QJsonObject &document) const;

    /// An object with the member "dynamicParams", or an empty one if the type has none stored or it is malformed.
    [[nodiscard]] QJsonObject loadDefaults(const QString &taskType) const;

private:
    QString m_organization;
    QString m_application;
};

} // namespace Scheduler
