#pragma once

#include "mcslasttaskdefaults.h"
#include "records.h"

#include <QDialog>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>
#include <QPointer>
#include <QString>

#include <array>
#include <memory>

class QCheckBox;
class QGraphicsOpacityEffect;
class QListWidgetItem;
class QRadioButton;
class Ui_MCsTaskDialog;

namespace Scheduler {

class MCsDynamicFormWidget;
class MCsFileSizeSpinBox;
class MCsSchedulerClient;

/// The modal dialog in which one task is made or edited: a list of sections, and one long page of cards.
///
/// It reads and saves through the client by itself: when it ends with accept, the task is stored, and the caller only
/// refreshes its views. Whatever goes wrong with the daemon, the dialog stays open with all input.
///
/// The host's program name and path always replace the stored ones. Daemon calls run an event loop, the constructor's
/// too: the dialog must outlive its constructor, but may be closed or destroyed during a save. The client may go before
/// the dialog, but not while it waits for an answer.
class MCsTaskDialog : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MCsTaskDialog)

public:
    /// An empty task id makes a new task, in the group if there is one of that id. The parameter text is the host's
    /// parameter file, which may be empty or malformed. The constructor reads from the daemon and may show boxes about
    /// what it finds; without a client or a connection the dialog opens, but cannot save.
    MCsTaskDialog(MCsSchedulerClient *client, const QString &taskId, const QString &programName,
                  const QString &programPath, const QString &programParametersJson, const QString &groupId,
                  QWidget *parent);
    ~MCsTaskDialog() override;

    /// The task as the widgets have it now, valid or not, in the form that the daemon stores.
    [[nodiscard]] QJsonObject collectTaskDocument() const;

    /// Fills the widgets from the "paramsJson" of a stored task. What is missing or malformed leaves its widget alone.
    /// The parameter form must have been built for the task's type before.
    void loadTaskParams(const QJsonObject &params);

private slots:
    void onTaskEnabledChanged(bool checked);
    void onTaskTypeChanged(int index);
    void onStartRecordingModeChanged();
    void onAutoStopModeChanged();
    void onOutputModeChanged();
    void onBrowseRunProgram();
    void onBrowseMonitorProgram();
    void onBrowseMonitorFolder();
    void onBrowseOutputFolder();
    void onShowFileNameHelp();
    void onSave();
    void onCancel();
    void onNavItemClicked(QListWidgetItem *item);

private:
    /// A value of the task document and the radio button that stands for it.
    struct ModeRadio {
        QLatin1StringView value;
        QRadioButton *radio = nullptr;
    };
    /// An entry of the list of sections and the card that it leads to.
    struct NavSection {
        QString title;
        QWidget *card = nullptr;
    };

    // Construction, in this order
    void createWidgets();
    void replaceFileSizeSpin();
    void applyStyles();
    void showProgram();
    void createParameterForm();
    void setStartingTimes();
    void setupOpacityEffects();
    void connectSignals();
    void connectBrowseButtons();
    void showInitialState();
    void finishSetup();

    // Reading from the daemon
    [[nodiscard]] bool canAskDaemon() const;
    void loadTaskTypes();
    void loadGroups();
    void loadTask();
    void startNewTask();
    void placeGroup();
    bool selectGroup(const QString &groupId);
    bool selectTypeOfGroup(const QString &groupId);
    void warnAboutType(const TaskInfo &task);
    void buildParameterForm(const QString &taskType);
    void applyLastTaskDefaults(const QString &taskType);

    // Radio groups, in the order of the document's values
    [[nodiscard]] QList<ModeRadio> startModes() const;
    [[nodiscard]] QList<ModeRadio> stopModes() const;
    [[nodiscard]] QList<ModeRadio> afterStopActions() const;
    [[nodiscard]] QList<ModeRadio> displayModes() const;
    [[nodiscard]] QString startRecordingMode() const;
    void setStartRecordingMode(const QString &mode);
    [[nodiscard]] QString autoStopMode() const;
    void setAutoStopMode(const QString &mode);
    [[nodiscard]] QString afterStopAction() const;
    void setAfterStopAction(const QString &action);
    [[nodiscard]] QString displayMode() const;
    void setDisplayMode(const QString &mode);

    // Task document
    [[nodiscard]] QJsonObject collectParams() const;
    [[nodiscard]] QJsonObject collectStart() const;
    [[nodiscard]] QJsonArray collectWeekdays() const;
    [[nodiscard]] QJsonObject collectActionBefore() const;
    [[nodiscard]] QJsonObject collectAutoStop() const;
    [[nodiscard]] QJsonObject collectOutput() const;
    void loadStart(const QJsonObject &start);
    void loadWeekly(const QJsonObject &start);
    void loadActionBefore(const QJsonObject &action);
    void loadAutoStop(const QJsonObject &stop);
    void loadOutput(const QJsonObject &output);

    // Validation
    [[nodiscard]] bool validateInput();
    [[nodiscard]] bool validateBasics();
    [[nodiscard]] bool validateStart();
    [[nodiscard]] bool validateStop();
    bool reportFault(const QString &text, QWidget *focus = nullptr);

    // Saving
    [[nodiscard]] bool sendTask(const QJsonObject &document);
    void finishSave(const QJsonObject &document);
    void reportFailedSave();

    // Navigation
    void rebuildNavigation();

    std::unique_ptr<Ui_MCsTaskDialog> m_ui;
    QPointer<MCsSchedulerClient> m_client;
    MCsDynamicFormWidget *m_formWidget = nullptr;
    MCsFileSizeSpinBox *m_fileSizeSpin = nullptr;
    MCsLastTaskDefaults m_lastDefaults;
    QString m_taskId; ///< empty while a new task is made
    QString m_programName;
    QString m_programPath;
    QString m_programParametersJson;
    QString m_groupId;                            ///< the group for a new task
    std::array<QCheckBox *, 7> m_weekdayChecks{}; ///< Monday first
    QList<TaskTypeInfo> m_taskTypes;
    QList<NavSection> m_navSections;
    int m_programParametersNavRow = -1; ///< the form's row in the list of sections, -1 when it has none
    QGraphicsOpacityEffect *m_listOpacity = nullptr;
    QGraphicsOpacityEffect *m_scrollOpacity = nullptr;
    quint64 m_groupListing = 0; ///< number of the newest listing of groups; an older one's answer is stale
    bool m_saving = false;
};

} // namespace Scheduler
