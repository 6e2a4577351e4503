#include "mcstaskdialog.h"

#include "mcsdynamicformwidget.h"
#include "mcsfilesizespinbox.h"
#include "mcsschedulerclient.h"
#include "plaintooltip.h"
#include "stylesheets.h"
#include "taskmodes.h"
#include "ui_mcstaskdialog.h"
#include "widgetstyles.h"

#include <QDateTime>
#include <QGraphicsOpacityEffect>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr qint64 startingFileSize = 1073741824; // bytes
constexpr int startDelayS = 3600;
constexpr int stopDelayS = 7200;
constexpr double dimmedOpacity = 0.4;

QGraphicsOpacityEffect *addOpacityEffect(QWidget *widget)
{
    auto *effect = new QGraphicsOpacityEffect(widget);
    effect->setOpacity(1.0);
    widget->setGraphicsEffect(effect);
    return effect;
}

} // namespace

MCsTaskDialog::MCsTaskDialog(MCsSchedulerClient *client, const QString &taskId, const QString &programName,
                             const QString &programPath, const QString &programParametersJson, const QString &groupId,
                             QWidget *parent)
    : QDialog(parent)
    , m_ui(new Ui_MCsTaskDialog)
    , m_client(client)
    , m_taskId(taskId)
    , m_programName(programName)
    , m_programPath(programPath)
    , m_programParametersJson(programParametersJson)
    , m_groupId(groupId)
{
    if (m_client != nullptr)
        m_taskTypes = m_client->listTaskTypes();
    createWidgets();
    replaceFileSizeSpin();
    applyStyles();
    showProgram();
    createParameterForm();
    setStartingTimes();
    setupOpacityEffects();
    connectSignals();
    showInitialState();
    loadTaskTypes();
    loadGroups();
    if (m_taskId.isEmpty())
        startNewTask();
    else
        loadTask();
    finishSetup();
}

MCsTaskDialog::~MCsTaskDialog() = default;

void MCsTaskDialog::createWidgets()
{
    setStyleSheet(taskDialogStyleSheet()); // before there are children, which would all be styled a second time
    m_ui->setupUi(this);
    setWindowTitle(m_taskId.isEmpty() ? tr("Create Task") : tr("Edit Task"));
    resize(1000, 700);
}

// The form cannot hold this field: its class has no properties that a form could set.
void MCsTaskDialog::replaceFileSizeSpin()
{
    m_fileSizeSpin = new MCsFileSizeSpinBox(m_ui->byFileSizeWidget);
    m_fileSizeSpin->setObjectName(u"fileSizeSpin"_s);
    m_fileSizeSpin->setBytes(startingFileSize);
    m_ui->fileSizeBytesSpin->hide();
    delete m_ui->byFileSizeFormLayout->replaceWidget(m_ui->fileSizeBytesSpin, m_fileSizeSpin);
    m_ui->fileSizeBytesSpin->deleteLater();
    m_ui->labelFileSize->setBuddy(m_fileSizeSpin);
    setTabOrder(m_ui->durationMinutesSpin, m_fileSizeSpin);
}

void MCsTaskDialog::applyStyles()
{
    applySpinBoxStyle(this);
    applyCheckBoxStyle(this);
    applyScrollBarStyle(m_ui->scrollArea);
    m_ui->enabledCheck->setStyleSheet(switchStyleSheet());
    for (const QList<ModeRadio> &group : {startModes(), stopModes(), afterStopActions(), displayModes()}) {
        for (const ModeRadio &mode : group)
            applyModeCardStyle(mode.radio);
    }
    applyModeCardStyle(m_ui->useDefaultOutputRadio);
    applyModeCardStyle(m_ui->useCustomOutputRadio);
    for (QLabel *heading : {m_ui->basicSectionLabel, m_ui->startRecordingSectionLabel, m_ui->actionBeforeSectionLabel,
                            m_ui->autoStopSectionLabel, m_ui->actionAfterSectionLabel, m_ui->outputSectionLabel,
                            m_ui->displaySectionLabel})
        applySectionLabelStyle(heading);
}

void MCsTaskDialog::showProgram()
{
    m_weekdayChecks = {m_ui->weekdayCheckMon, m_ui->weekdayCheckTue, m_ui->weekdayCheckWed, m_ui->weekdayCheckThu,
                       m_ui->weekdayCheckFri, m_ui->weekdayCheckSat, m_ui->weekdayCheckSun};
    m_ui->programNameEdit->setText(m_programName);
    m_ui->programNameEdit->setToolTip(plainToolTip(m_programPath));
    m_ui->targetProgramEdit->setText(m_programPath);
    m_ui->labelTargetProgram->hide();
    m_ui->targetProgramEdit->hide();
    const bool allTypes = m_client != nullptr && m_client->isAllTypesClient();
    m_ui->labelTaskType->setVisible(allTypes);
    m_ui->typeCombo->setVisible(allTypes);
}

void MCsTaskDialog::createParameterForm()
{
    m_formWidget = new MCsDynamicFormWidget(m_ui->scrollWidget);
    m_formWidget->setObjectName(u"parameterForm"_s);
    m_formWidget->hide();
    m_formWidget->setTaskTypes(m_taskTypes);
    m_ui->scrollLayout->insertWidget(m_ui->scrollLayout->indexOf(m_ui->basicGroup) + 1, m_formWidget);
}

void MCsTaskDialog::setStartingTimes()
{
    const QDateTime now = QDateTime::currentDateTime();
    m_ui->specifiedDateTimeEdit->setDateTime(now.addSecs(startDelayS));
    m_ui->stopAtTimeEdit->setDateTime(now.addSecs(stopDelayS));
}

void MCsTaskDialog::setupOpacityEffects()
{
    m_listOpacity = addOpacityEffect(m_ui->navList);
    m_scrollOpacity = addOpacityEffect(m_ui->scrollArea);
}

void MCsTaskDialog::connectSignals()
{
    connect(m_ui->enabledCheck, &QCheckBox::toggled, this, &MCsTaskDialog::onTaskEnabledChanged);
    // Only a user's choice counts, not a change from code.
    connect(m_ui->typeCombo, &QComboBox::activated, this, &MCsTaskDialog::onTaskTypeChanged);
    for (const ModeRadio &mode : startModes())
        connect(mode.radio, &QRadioButton::toggled, this, &MCsTaskDialog::onStartRecordingModeChanged);
    for (const ModeRadio &mode : stopModes())
        connect(mode.radio, &QRadioButton::toggled, this, &MCsTaskDialog::onAutoStopModeChanged);
    connect(m_ui->useDefaultOutputRadio, &QRadioButton::toggled, this, &MCsTaskDialog::onOutputModeChanged);
    connect(m_ui->useCustomOutputRadio, &QRadioButton::toggled, m_ui->customOutputWidget, &QWidget::setEnabled);
    connectBrowseButtons();
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &MCsTaskDialog::onSave);
    connect(m_ui->buttonBox, &QDialogButtonBox::rejected, this, &MCsTaskDialog::onCancel);
    connect(m_ui->navList, &QListWidget::itemClicked, this, &MCsTaskDialog::onNavItemClicked);
}

void MCsTaskDialog::connectBrowseButtons()
{
    connect(m_ui->browseRunProgramBtn, &QPushButton::clicked, this, &MCsTaskDialog::onBrowseRunProgram);
    connect(m_ui->browseMonitorProgramBtn, &QPushButton::clicked, this, &MCsTaskDialog::onBrowseMonitorProgram);
    connect(m_ui->browseMonitorFolderBtn, &QPushButton::clicked, this, &MCsTaskDialog::onBrowseMonitorFolder);
    connect(m_ui->browseOutputBtn, &QPushButton::clicked, this, &MCsTaskDialog::onBrowseOutputFolder);
    connect(m_ui->fileNameHelpBtn, &QPushButton::clicked, this, &MCsTaskDialog::onShowFileNameHelp);
}

void MCsTaskDialog::showInitialState()
{
    onStartRecordingModeChanged();
    onAutoStopModeChanged();
    onTaskEnabledChanged(m_ui->enabledCheck->isChecked());
}

void MCsTaskDialog::finishSetup()
{
    rebuildNavigation();
    if (!m_programName.isEmpty())
        m_ui->m_startProgramName->setText(u" [ "_s + m_programName + u" ] "_s);
    // Not offered, but a stored task may be in one of these modes, and keeps it.
    for (QRadioButton *radio : {m_ui->stopModeAtTime, m_ui->startModeMonitorApp, m_ui->startModeMonitorFolder})
        radio->hide();
    m_ui->nameEdit->setFocus();
}

void MCsTaskDialog::onStartRecordingModeChanged()
{
    const QString mode = startRecordingMode();
    m_ui->specifiedTimeWidget->setVisible(mode == TaskModes::specifiedTime);
    m_ui->everyDayWidget->setVisible(mode == TaskModes::everyDay);
    m_ui->everyWeekWidget->setVisible(mode == TaskModes::everyWeek);
    m_ui->monitorAppWidget->setVisible(mode == TaskModes::monitorApp);
    m_ui->monitorFolderWidget->setVisible(mode == TaskModes::monitorFolder);
}

void MCsTaskDialog::onAutoStopModeChanged()
{
    const QString mode = autoStopMode();
    m_ui->byDurationWidget->setVisible(mode == TaskModes::byDuration);
    m_ui->byFileSizeWidget->setVisible(mode == TaskModes::byFileSize);
    m_ui->atTimeWidget->setVisible(mode == TaskModes::atTime);
}

// The other radio enables the panel by itself.
void MCsTaskDialog::onOutputModeChanged() {}

// A task that is switched off can still be saved, so the buttons stay as they are.
void MCsTaskDialog::onTaskEnabledChanged(bool checked)
{
    m_ui->scrollArea->setEnabled(checked);
    m_ui->navList->setEnabled(checked);
    m_listOpacity->setOpacity(checked ? 1.0 : dimmedOpacity);
    m_scrollOpacity->setOpacity(checked ? 1.0 : dimmedOpacity);
    m_ui->enabledStatusLabel->setText(checked ? tr("ON") : tr("OFF"));
    m_ui->enabledStatusLabel->setStyleSheet(checked ? u"font-size: 12px; font-weight: bold; color: #4cd964;"_s
                                                    : u"font-size: 12px; font-weight: bold; color: #999999;"_s);
}

void MCsTaskDialog::onCancel()
{
    reject();
}

} // namespace Scheduler
