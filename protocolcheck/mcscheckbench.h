#pragma once

#include "mcschecklink.h"
#include "rule.h"

#include <QJsonArray>

#include <memory>

namespace Scheduler::ProtocolCheck {

struct CheckSettings {
    QString endpoint;
    QString taskType;      ///< to register under, and of the tasks and groups that are made
    int answerMs = 2000;   ///< the time that the manager waits for an answer
    int typeFreeMs = 500;  ///< after how long a manager that has lost its connection comes back
    int patienceMs = 5000; ///< for the type to become free after all
    std::function<bool()> interrupted = [] { return false; };
};

/// What the check of a rule works with: the registered connection, expectations, and tasks and groups of its own.
///
/// The first expectation that is not met decides the rule: from then on nothing is sent and every function returns
/// something empty, so that a check is a plain list of steps. Steps that only lead to what the rule is about are
/// prepare(): where they fail, the rule was not tried.
class MCsCheckBench {
public:
    explicit MCsCheckBench(const CheckSettings &settings);
    ~MCsCheckBench();
    Q_DISABLE_COPY_MOVE(MCsCheckBench)

    /// Connects; returns why not.
    [[nodiscard]] std::optional<QString> open();
    /// Registers and returns the answer, which registration() keeps.
    MCsCheckLink::Frame registerClient();
    [[nodiscard]] const MCsCheckLink::Frame &registration() const;
    /// Ends the connection, and returns whether a new one could be registered in time.
    bool comeBack(int withinMs);

    // One rule.
    void begin(const QString &ruleName);
    [[nodiscard]] const Outcome &outcome() const;
    /// Whether neither has an expectation failed nor anything kept the rule from being tried.
    [[nodiscard]] bool going() const;
    void notTried(const QString &why);
    void expect(bool fits, const QString &expected, const QString &came);
    void expect(bool fits, const QString &expected, const QJsonValue &came);
    /// Expects the members of the one object to be in the other, with the same values.
    void expectMembers(const QJsonObject &expected, const QJsonObject &came);

    // Requests on the registered connection.
    QJsonObject ask(const QString &command, const QJsonObject &payload = {});
    QJsonObject succeed(const QString &command, const QJsonObject &payload = {}); ///< returns the data
    QJsonObject prepare(const QString &command, const QJsonObject &payload = {}); ///< the same
    void refused(const QString &command, const QJsonObject &payload);
    /// Sends bytes and expects an answer to the request of this id.
    QJsonObject askRaw(const QByteArray &bytes, const QString &id);
    QJsonObject answerOn(MCsCheckLink &link, const QByteArray &bytes, const QString &id);

    [[nodiscard]] QString newId();
    [[nodiscard]] MCsCheckLink &link();
    /// A second connection, not registered; null when there is none.
    [[nodiscard]] std::unique_ptr<MCsCheckLink> secondLink();
    [[nodiscard]] const CheckSettings &settings() const;
    [[nodiscard]] QStringList strays() const;
    [[nodiscard]] QStringList malformed() const;

    // Things of its own. Documents are those that a manager would send; the changes replace members of them.
    [[nodiscard]] QString workingType();
    [[nodiscard]] QJsonObject taskDocument(const QJsonObject &changes = {});
    [[nodiscard]] QJsonObject groupDocument(const QJsonObject &changes = {});
    QString makeTask(const QJsonObject &changes = {});
    QString makeGroup(const QJsonObject &changes = {});
    [[nodiscard]] QString goneTask();  ///< id of a task that was made and deleted
    [[nodiscard]] QString goneGroup(); ///< id of a group that was made and deleted
    [[nodiscard]] QJsonObject storedTask(const QString &taskId);
    [[nodiscard]] QJsonObject storedGroup(const QString &groupId);
    /// Has what a check has made by itself removed like the rest.
    void adoptTask(const QString &taskId);
    void adoptGroup(const QString &groupId);

    /// Removes everything of its own that is still there, whatever the user wishes meanwhile. Returns what is left.
    QStringList removeAll();

private:
    /// A command with one argument, and the member of its data that counts.
    struct Query {
        QString command;
        QString key;
        QString result;
    };

    MCsCheckLink::Frame exchange(const QString &command, const QJsonObject &payload);
    [[nodiscard]] std::unique_ptr<MCsCheckLink> newLink() const;
    [[nodiscard]] bool wasInterrupted() const;
    void decide(Outcome::Kind kind, const QString &detail);
    void reportSilence(const QString &of, const MCsCheckLink &link);
    void lookUpTypes();
    QString mark(const QString &kind);
    QStringList ownTasks();
    QStringList ownGroups();
    QStringList ownOf(const QStringList &madeIds, const Query &list, const Query &get);

    CheckSettings m_settings;
    std::unique_ptr<MCsCheckLink> m_link;
    MCsCheckLink::Frame m_registration;
    QStringList m_strays;    ///< of former links
    QStringList m_malformed; ///< of former links
    QString m_ruleName;
    Outcome m_outcome;
    int m_requestCount = 0;
    bool m_cleaning = false;

    std::optional<QJsonObject> m_type; ///< the definition of the working type; empty when the daemon has none
    QString m_mark;                    ///< part of the name of everything that is made
    int m_madeCount = 0;
    QStringList m_taskIds;
    QStringList m_groupIds;
};

} // namespace Scheduler::ProtocolCheck
