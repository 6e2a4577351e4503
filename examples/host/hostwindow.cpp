#include "hostwindow.h"

#include "managercommand.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

HostWindow::HostWindow(QWidget *parent)
    : QWidget(parent)
    , m_openButton(new QPushButton(tr("Plan recordings..."), this))
    , m_statusLabel(new QLabel(tr("The scheduler has not been opened."), this))
{
    setWindowTitle(tr("Example Recorder"));
    m_openButton->setObjectName("openButton");
    m_statusLabel->setObjectName("statusLabel");
    m_statusLabel->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_openButton);
    layout->addWidget(m_statusLabel);

    connect(m_openButton, &QPushButton::clicked, this, &HostWindow::openManager);
    connect(&m_manager, &QProcess::started, this, &HostWindow::onStarted);
    connect(&m_manager, &QProcess::finished, this, &HostWindow::onFinished);
    connect(&m_manager, &QProcess::errorOccurred, this, &HostWindow::onErrorOccurred);
    // Its log goes to standard error, too. A pipe that nobody reads would fill up and hold the manager.
    m_manager.setStandardOutputFile(QProcess::nullDevice());
    m_manager.setStandardErrorFile(QProcess::nullDevice());
}

HostWindow::~HostWindow()
{
    // A QProcess takes its process with it, which does no harm to tasks. Where the manager is to stay, use
    // QProcess::startDetached(), which tells no status. Nobody is left to be told of the end here.
    m_manager.disconnect(this);
    m_manager.kill();
    m_manager.waitForFinished();
}

void HostWindow::openManager()
{
    // A second manager of the type would only tell its user that there is one.
    if (m_manager.state() != QProcess::NotRunning)
        return;
    m_manager.setProgram(managerPath());
    m_manager.setArguments(managerArguments(managerLanguage(QLocale::system()), writeParameterFile()));
    m_openButton->setEnabled(false);
    // Not waited for: it runs for as long as its user likes.
    m_manager.start();
}

void HostWindow::onStarted()
{
    m_statusLabel->setText(tr("The scheduler is open."));
}

void HostWindow::onFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    if (exitStatus == QProcess::CrashExit)
        reportEnd(tr("The scheduler was ended from outside, or crashed."), -1);
    else
        reportEnd(tr("The scheduler has ended with status %1.").arg(exitCode), exitCode);
}

void HostWindow::onErrorOccurred(QProcess::ProcessError error)
{
    // Every other error is followed by finished().
    if (error == QProcess::FailedToStart)
        reportEnd(tr("The scheduler cannot be started: %1").arg(m_manager.errorString()), -1);
}

void HostWindow::reportEnd(const QString &text, int status)
{
    m_statusLabel->setText(text);
    m_openButton->setEnabled(true);
    emit managerEnded(status);
}
