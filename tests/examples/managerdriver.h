#pragma once

#include <QGenericPlugin>
#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace TestSupport {

/// Uses the manager's windows from inside its process: opens the dialog for a new task, records what a user sees in
/// both windows, and closes them. In a program without these windows it does nothing.
class ManagerDriver : public QObject {
    Q_OBJECT

public:
    explicit ManagerDriver(const QString &recordPath);

private slots:
    void onTimeout();

private:
    void readWindow(QWidget *window);
    void readDialog(QWidget *dialog);
    void writeRecord();

    QString m_recordPath;
    QTimer m_timer;
    QJsonObject m_record;
    bool m_windowRead = false;
    bool m_dialogRead = false;
};

/// Brings the driver into any Qt program that is started with QT_QPA_GENERIC_PLUGINS=managerdriver:RECORD, and with the
/// folder of the folder "generic" among QT_PLUGIN_PATH.
class ManagerDriverPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "managerdriver.json")

public:
    QObject *create(const QString &key, const QString &recordPath) override;
};

} // namespace TestSupport
