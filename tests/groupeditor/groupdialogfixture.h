#pragma once

#include "mcsgroupdialog.h"
#include "mcsschedulerclient.h"
#include "modaldriver.h"
#include "scripteddaemon.h"
#include "widgetaccess.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTextEdit>

#include <memory>

namespace TestSupport {

/// A scripted daemon, the real client connected to it, and the dialog between them. Base class of the test classes;
/// each test function gets all of it anew.
class GroupDialogFixture : public QObject {
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    /// What a new group of the type "task_type.record" is made with.
    void openForCreate();
    /// Edits the group "g1".
    void openForEdit();
    /// Lets the daemon answer with the group "g1", changed or completed by these members.
    void answerGroup(const QJsonObject &changes = {});
    void answerGroupList(const QJsonArray &groups);

    [[nodiscard]] QAbstractButton *button(QDialogButtonBox::StandardButton which) const;
    void save();
    /// The group object of the only request of this command; empty when there is none or more than one.
    [[nodiscard]] QJsonObject sentGroup(const QString &cmd) const;

    // The fields of the dialog.
    [[nodiscard]] QLineEdit *name() const;
    [[nodiscard]] QTextEdit *description() const;
    [[nodiscard]] QPushButton *color() const;
    [[nodiscard]] QComboBox *parentGroup() const;
    [[nodiscard]] QSpinBox *displayOrder() const;

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<Scheduler::MCsSchedulerClient> m_client;
    std::unique_ptr<Scheduler::MCsGroupDialog> m_dialog;

private:
    void open(const QString &groupId, const QString &taskType);
};

/// One element of the daemon's list of groups.
[[nodiscard]] QJsonObject groupRecord(const QString &id, const QString &name, const QString &parentId = {});

} // namespace TestSupport
