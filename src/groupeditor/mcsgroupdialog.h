#pragma once

#include <QDialog>
#include <QPointer>
#include <QString>

class QComboBox;
class QJsonObject;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTextEdit;
class QVBoxLayout;

namespace Scheduler {

class MCsSchedulerClient;

/// The modal dialog in which a task group is made or edited.
///
/// It reads and saves through the client by itself: when it ends with accept, the group is saved, and the caller only
/// refreshes its views. Its texts are fixed English and never translated. Whether the nesting is allowed is the
/// daemon's decision; its reason goes to the log and not to the user.
///
/// Daemon calls run an event loop, the constructor's too. The dialog may be closed or destroyed meanwhile.
class MCsGroupDialog : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsGroupDialog)

public:
    /// An empty id makes a new group of the task type. With an id, the group's own task type is read along with it.
    /// Without a client or a connection the dialog opens, but cannot save.
    MCsGroupDialog(MCsSchedulerClient *client, const QString &groupId, const QString &taskType, QWidget *parent);

private slots:
    void onColorButtonClicked();
    void onSave();
    void onCancel();

private:
    void setupForm();
    void setupFields(QVBoxLayout *layout);
    void setupNoteAndButtons(QVBoxLayout *layout);
    void populateParentCombo();
    void loadGroup();
    [[nodiscard]] bool canAskDaemon() const;
    void applyColor();
    [[nodiscard]] bool validateInput();
    [[nodiscard]] QJsonObject collectGroup() const;
    [[nodiscard]] bool sendGroup(const QJsonObject &group);

    QPointer<MCsSchedulerClient> m_client;
    QString m_groupId; ///< empty while a new group is made
    QString m_taskType;
    QLineEdit *m_nameEdit = nullptr;
    QTextEdit *m_descriptionEdit = nullptr;
    QPushButton *m_colorButton = nullptr;
    QComboBox *m_parentCombo = nullptr;
    QSpinBox *m_displayOrderSpin = nullptr;
    QString m_selectedColor; ///< as the daemon or the colour picker gave it; not always a valid colour
    bool m_saving = false;
};

} // namespace Scheduler
