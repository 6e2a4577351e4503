#pragma once

#include <QProcess>
#include <QWidget>

class QLabel;
class QPushButton;

/// The window of a program whose users plan their tasks in the manager. It opens one manager at a time, and tells how
/// it ended.
class HostWindow : public QWidget {
    Q_OBJECT

public:
    explicit HostWindow(QWidget *parent = nullptr);
    ~HostWindow() override;

    void openManager();

signals:
    /// The status with which the manager has ended; -1 when it could not be started, or did not end by itself.
    void managerEnded(int status);

private slots:
    void onStarted();
    void onFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void onErrorOccurred(QProcess::ProcessError error);

private:
    void reportEnd(const QString &text, int status);

    QPushButton *m_openButton;
    QLabel *m_statusLabel;
    QProcess m_manager;
};
