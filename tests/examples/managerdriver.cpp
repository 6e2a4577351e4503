#include "managerdriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLineEdit>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

QWidget *windowOf(const char *className)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->inherits(className))
            return window;
    }
    return nullptr;
}

QJsonArray textsOf(const QWidget *form)
{
    QJsonArray texts;
    const QList<QSpinBox *> numbers = form->findChildren<QSpinBox *>();
    for (const QSpinBox *number : numbers)
        texts.append(number->value());
    const QList<QLineEdit *> lines = form->findChildren<QLineEdit *>();
    for (const QLineEdit *line : lines)
        texts.append(line->text());
    const QList<QComboBox *> choices = form->findChildren<QComboBox *>();
    for (const QComboBox *choice : choices)
        texts.append(choice->currentText());
    return texts;
}

} // namespace

ManagerDriver::ManagerDriver(const QString &recordPath)
    : m_recordPath(recordPath)
{
    connect(&m_timer, &QTimer::timeout, this, &ManagerDriver::onTimeout);
    m_timer.start(20);
}

void ManagerDriver::onTimeout()
{
    QWidget *dialog = windowOf("Scheduler::MCsTaskDialog");
    QWidget *window = windowOf("Scheduler::MCsMainWindow");
    if (dialog != nullptr) {
        readDialog(dialog);
    } else if (window != nullptr && !m_windowRead) {
        readWindow(window);
    } else if (window != nullptr && m_dialogRead) {
        writeRecord();
        window->close();
    }
}

void ManagerDriver::readWindow(QWidget *window)
{
    auto *createButton = window->findChild<QAbstractButton *>(u"createButton"_s);
    const bool usable =
        createButton != nullptr && createButton->isEnabled() && QApplication::activeModalWidget() == nullptr;
    if (!usable)
        return;
    m_record.insert(u"title"_s, window->windowTitle());
    m_windowRead = true;
    // The click runs the dialog. From here it would keep the timer from running on inside.
    QMetaObject::invokeMethod(createButton, &QAbstractButton::click, Qt::QueuedConnection);
}

void ManagerDriver::readDialog(QWidget *dialog)
{
    m_record.insert(u"dialogTitle"_s, dialog->windowTitle());
    const auto *form = dialog->findChild<QWidget *>(u"parameterForm"_s);
    if (form != nullptr)
        m_record.insert(u"form"_s, textsOf(form));
    m_dialogRead = true;
    static_cast<QDialog *>(dialog)->reject();
}

void ManagerDriver::writeRecord()
{
    QFile file(m_recordPath);
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(m_record).toJson());
}

QObject *ManagerDriverPlugin::create(const QString &, const QString &recordPath)
{
    return new ManagerDriver(recordPath);
}

} // namespace TestSupport
