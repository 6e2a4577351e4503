#pragma once

#include "mcsschedulerclient.h"
#include "mcstaskdialog.h"
#include "modaldriver.h"
#include "scripteddaemon.h"
#include "widgetaccess.h"

#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QSpinBox;

namespace TestSupport {

/// A task type as the daemon defines it.
[[nodiscard]] QJsonObject typeJson(const QString &type, const QJsonArray &fields = {});
/// A field of a task type.
[[nodiscard]] QJsonObject fieldJson(const QString &key, const QString &type, const QJsonObject &more = {});
[[nodiscard]] QJsonObject taskGroupJson(const QString &id, const QString &name, const QString &taskType = {});

/// Base of the tests of the task dialog: a connected client of the type "task_type.screen_record", and a scripted
/// daemon that knows this type with three fields ("fps" int, "format" select of MP4 and AVI, "title" text), the type
/// "task_type.audio_record" without fields, and the groups "g1" and "g2" of both. The settings are empty.
class TaskDialogFixture : public QObject {
    Q_OBJECT

protected slots:
    void init();
    void cleanup();

protected:
    /// Sets the type before a dialog is opened; "task_type.all" for all types.
    void setClientType(const QString &type);
    void openForCreate(const QString &groupId = {}, const QString &parametersJson = {});
    /// The daemon answers with this "paramsJson".
    void openForEdit(const QJsonObject &params = {}, const QJsonObject &changes = {});
    void open(const QString &taskId, const QString &groupId = {}, const QString &parametersJson = {});
    void answerTask(const QJsonObject &changes);
    void answerGroups(const QJsonArray &groups);
    void answerTypes(const QJsonArray &types);

    /// Runs the action while the daemon holds back the answer to the next request of this command.
    void whileWaiting(const QString &cmd, const std::function<void()> &action);

    [[nodiscard]] QAbstractButton *button(QDialogButtonBox::StandardButton which) const;
    void save();
    /// Presses Save and acknowledges the box that tells of the success.
    void saveSuccessfully();
    /// Save will not succeed, for the reason that the client gives.
    static void expectFailure(ModalDriver &driver, const QString &reason);
    /// The document of the one request of this command so far; empty when there is none or more than one.
    [[nodiscard]] QJsonObject sentTask(const QString &cmd) const;

    template <typename Widget> [[nodiscard]] Widget *widget(const char *name) const
    {
        return require<Widget>(m_dialog.get(), name);
    }
    /// Checks a radio button, a hidden one too.
    void choose(const char *radio) const;
    /// Leaves no block of the document at its starting value.
    void enterEverything() const;
    /// The field of that name; it is the only spin box of its form.
    [[nodiscard]] QSpinBox *fps() const;

    /// Everything in the settings file of the application.
    [[nodiscard]] static QStringList settingsKeys();

    // The host's; reset before each test.
    QString m_programName;
    QString m_programPath;
    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<Scheduler::MCsSchedulerClient> m_client;
    std::unique_ptr<Scheduler::MCsTaskDialog> m_dialog;
};

} // namespace TestSupport
