#include "mcsgroupdialog.h"

#include "mcslogger.h"
#include "mcsschedulerclient.h"
#include "messagebox.h"
#include "widgetstyles.h"

#include <QColor>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTextEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

constexpr int maxNameLength = 100;
constexpr int maxDescriptionHeight = 100;
constexpr int maxDisplayOrder = 9999;
/// Keeps a long name in the list of parents from widening the dialog; in characters.
constexpr int parentComboWidth = 20;

/// The colour in the form that a style sheet takes; empty when the text is no valid colour.
///
/// Qt's own check is not enough for a text that comes from outside: it drops blanks, and whatever follows a character
/// beyond Latin-1. What passes here are letters, or a number sign and digits, and so nothing that ends a declaration.
QString styleSheetColor(const QString &text)
{
    static const QRegularExpression shape(u"\\A(?:#[0-9A-Fa-f]+|[A-Za-z]+)\\z"_s);
    QString color = text;
    color.remove(u' ').remove(u'\t');
    return shape.match(color).hasMatch() && QColor::isValidColorName(text) ? color : QString();
}

void showValidationError(QWidget *parent, const QString &text)
{
    showMessage(parent, QMessageBox::Warning, u"Validation Error"_s, text);
}

void showNameError(QWidget *parent, const QString &text, QLineEdit *nameEdit)
{
    const QPointer<QLineEdit> edit = nameEdit;
    showValidationError(parent, text);
    if (edit != nullptr)
        edit->setFocus(Qt::OtherFocusReason);
}

void logFailedSave(const MCsSchedulerClient *client)
{
    const QString error = client == nullptr ? QString() : client->lastError();
    const QString code = client == nullptr ? QString() : client->lastErrorCode();
    MCsLogger::instance().error(u"GroupDialog"_s, u"Failed to save group: %1, %2"_s.arg(error, code));
}

} // namespace

MCsGroupDialog::MCsGroupDialog(MCsSchedulerClient *client, const QString &groupId, const QString &taskType,
                               QWidget *parent)
    : QDialog(parent)
    , m_client(client)
    , m_groupId(groupId)
    , m_taskType(taskType)
    , m_selectedColor(u"#3498db"_s)
{
    setWindowTitle(m_groupId.isEmpty() ? u"Create Group"_s : u"Edit Group"_s);
    resize(500, 400);
    setupForm();

    const QPointer<MCsGroupDialog> self(this);
    // While a group is edited, its task type is not known yet, and the daemon is asked for the groups of an empty one.
    populateParentCombo();
    if (self != nullptr && !m_groupId.isEmpty())
        loadGroup();
}

void MCsGroupDialog::setupForm()
{
    auto *layout = new QVBoxLayout(this);
    setupFields(layout);
    setupNoteAndButtons(layout);
    applySpinBoxStyle(this);
}

void MCsGroupDialog::setupFields(QVBoxLayout *layout)
{
    m_nameEdit = new QLineEdit;
    m_nameEdit->setObjectName(u"nameEdit"_s);
    m_nameEdit->setMaxLength(maxNameLength);
    m_nameEdit->setPlaceholderText(u"Enter group name (max 100 characters)"_s);

    m_descriptionEdit = new QTextEdit;
    m_descriptionEdit->setObjectName(u"descriptionEdit"_s);
    m_descriptionEdit->setMaximumHeight(maxDescriptionHeight);
    m_descriptionEdit->setPlaceholderText(u"Enter group description (optional)"_s);
    // Only plain text is saved, so that only plain text is taken; and the Tab key leads on to the next field.
    m_descriptionEdit->setAcceptRichText(false);
    m_descriptionEdit->setTabChangesFocus(true);

    m_colorButton = new QPushButton(u"Choose Color"_s);
    m_colorButton->setObjectName(u"colorButton"_s);
    applyColor();
    connect(m_colorButton, &QPushButton::clicked, this, &MCsGroupDialog::onColorButtonClicked);
    auto *colorLayout = new QHBoxLayout;
    colorLayout->addWidget(m_colorButton);
    colorLayout->addStretch();
    auto *colorLabel = new QLabel(u"Color:"_s);
    colorLabel->setBuddy(m_colorButton);

    m_parentCombo = new QComboBox;
    m_parentCombo->setObjectName(u"parentCombo"_s);
    m_parentCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_parentCombo->setMinimumContentsLength(parentComboWidth);
    m_parentCombo->addItem(u"(None - Top Level)"_s, QString());

    m_displayOrderSpin = new QSpinBox;
    m_displayOrderSpin->setObjectName(u"displayOrderSpin"_s);
    m_displayOrderSpin->setRange(0, maxDisplayOrder);
    m_displayOrderSpin->setValue(0);
    m_displayOrderSpin->setToolTip(u"Lower numbers appear first"_s);
    // The main window's sheet reaches in here, and with a background colour Qt draws the buttons as bevels.
    m_displayOrderSpin->setStyleSheet(u"QSpinBox { background-color: transparent; }"_s);

    auto *form = new QFormLayout;
    form->addRow(u"Name*:"_s, m_nameEdit);
    form->addRow(u"Description:"_s, m_descriptionEdit);
    form->addRow(colorLabel, colorLayout);
    form->addRow(u"Parent Group:"_s, m_parentCombo);
    form->addRow(u"Display Order:"_s, m_displayOrderSpin);
    layout->addLayout(form);
}

void MCsGroupDialog::setupNoteAndButtons(QVBoxLayout *layout)
{
    auto *noteLabel =
        new QLabel(u"<i>Note: Groups can be nested up to 2 levels deep. Circular references are not allowed.</i>"_s);
    noteLabel->setObjectName(u"noteLabel"_s);
    noteLabel->setTextFormat(Qt::RichText);
    noteLabel->setWordWrap(true);
    noteLabel->setStyleSheet(u"color: gray; font-size: 10pt;"_s);

    auto *buttonBox = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    buttonBox->setObjectName(u"buttonBox"_s);
    // Qt would show its own texts for the two, which may be translated.
    buttonBox->button(QDialogButtonBox::Save)->setText(u"Save"_s);
    buttonBox->button(QDialogButtonBox::Cancel)->setText(u"Cancel"_s);
    connect(buttonBox, &QDialogButtonBox::accepted, this, &MCsGroupDialog::onSave);
    connect(buttonBox, &QDialogButtonBox::rejected, this, &MCsGroupDialog::onCancel);

    layout->addWidget(noteLabel);
    layout->addStretch();
    layout->addWidget(buttonBox);
}

bool MCsGroupDialog::canAskDaemon() const
{
    return m_client != nullptr && m_client->isConnected();
}

void MCsGroupDialog::populateParentCombo()
{
    if (!canAskDaemon())
        return;
    const QPointer<MCsGroupDialog> self(this);
    const QList<GroupInfo> groups = m_client->listGroupsByTaskType(m_taskType);
    if (self == nullptr)
        return;
    for (const GroupInfo &group : groups) {
        if (group.id == m_groupId || group.id == ungroupedGroupId)
            continue;
        m_parentCombo->addItem(group.parentId.isEmpty() ? group.name : u"  → "_s + group.name, group.id);
    }
}

void MCsGroupDialog::loadGroup()
{
    if (!canAskDaemon() || m_groupId.isEmpty())
        return;
    const QPointer<MCsGroupDialog> self(this);
    const GroupInfo group = m_client->getGroup(m_groupId);
    if (self == nullptr)
        return;
    m_nameEdit->setText(group.name);
    m_descriptionEdit->setPlainText(group.description);
    m_displayOrderSpin->setValue(group.displayOrder);
    m_taskType = group.taskType;
    if (!group.color.isEmpty()) {
        m_selectedColor = group.color;
        applyColor();
    }
    const int index = m_parentCombo->findData(group.parentId, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        m_parentCombo->setCurrentIndex(index);
}

// A text that is no colour leaves the button as the style draws it, and never reaches the sheet.
void MCsGroupDialog::applyColor()
{
    const QString color = styleSheetColor(m_selectedColor);
    m_colorButton->setStyleSheet(color.isEmpty() ? QString() : u"background-color: %1; color: white;"_s.arg(color));
}

// Not QColorDialog::getColor, which could not stand it that this dialog is destroyed while the picker is up.
void MCsGroupDialog::onColorButtonClicked()
{
    const QPointer<QColorDialog> picker = new QColorDialog(QColor(m_selectedColor), this);
    picker->setWindowTitle(u"Select Group Color"_s);
    picker->exec();
    if (picker == nullptr)
        return;
    const QColor color = picker->selectedColor();
    delete picker;
    if (!color.isValid())
        return;
    m_selectedColor = color.name();
    applyColor();
}

bool MCsGroupDialog::validateInput()
{
    const QString name = m_nameEdit->text().trimmed();
    if (name.isEmpty()) {
        showNameError(this, u"Group name cannot be empty."_s, m_nameEdit);
        return false;
    }
    if (name.size() > maxNameLength) {
        showNameError(this, u"Group name cannot exceed 100 characters."_s, m_nameEdit);
        return false;
    }
    if (styleSheetColor(m_selectedColor).isEmpty()) {
        showValidationError(this, u"Invalid color format."_s);
        return false;
    }
    if (m_taskType.isEmpty()) {
        showValidationError(this, u"Task type must be specified for the group."_s);
        return false;
    }
    return true;
}

QJsonObject MCsGroupDialog::collectGroup() const
{
    return {{u"name"_s, m_nameEdit->text().trimmed()},
            {u"description"_s, m_descriptionEdit->toPlainText().trimmed()},
            {u"color"_s, m_selectedColor},
            {u"parentId"_s, m_parentCombo->currentData().toString()},
            {u"taskType"_s, m_taskType},
            {u"displayOrder"_s, m_displayOrderSpin->value()}};
}

bool MCsGroupDialog::sendGroup(const QJsonObject &group)
{
    if (m_client == nullptr)
        return false;
    if (m_groupId.isEmpty())
        return !m_client->createGroup(group).isEmpty();
    return m_client->updateGroup(m_groupId, group);
}

void MCsGroupDialog::onSave()
{
    // A second press while the daemon is asked would make a second group.
    if (m_saving || !validateInput())
        return;
    const QPointer<MCsGroupDialog> self(this);
    const QPointer<MCsSchedulerClient> client = m_client;
    const bool wasVisible = isVisible();
    m_saving = true;
    const bool saved = sendGroup(collectGroup());
    if (!saved)
        logFailedSave(client);
    if (self == nullptr)
        return;
    m_saving = false;
    if (saved)
        accept(); // even if it was cancelled meanwhile: the group is there, and the caller is to show it
    else if (isVisible() || !wasVisible) // nobody waits for the outcome in a dialog that was closed meanwhile
        showMessage(this, QMessageBox::Critical, u"Error"_s,
                    u"Failed to save group. Please check the error log for details."_s);
}

void MCsGroupDialog::onCancel()
{
    reject();
}

} // namespace Scheduler
