#include "benchtable.h"
#include "canneddaemon.h"
#include "mcsschedulerclient.h"
#include "mcstaskdialog.h"
#include "ui_mcstaskdialog.h"

#include <QApplication>

#include <memory>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

void showAndPaint(QDialog &dialog)
{
    dialog.show();
    QApplication::processEvents();
}

Measured taskDialog()
{
    const DaemonProcess daemon({.groups = 200, .fields = 12});
    Scheduler::MCsSchedulerClient client;
    client.setClientType(benchTaskType);
    if (!client.connectToDaemon())
        return {};
    return timePair(
        [] {
            QDialog dialog;
            Ui_MCsTaskDialog form;
            form.setupUi(&dialog);
            showAndPaint(dialog);
        },
        [&] {
            Scheduler::MCsTaskDialog dialog(&client, {}, u"Bench"_s, u"/usr/bin/true"_s, {}, u"group-7"_s, nullptr);
            showAndPaint(dialog);
        });
}

} // namespace

QList<Row> dialogRows()
{
    return {{u"Task dialog, constructor to first paint, 12 fields, 200 groups"_s,
             u"a dialog with the bare widget tree of the form"_s, 1.6, taskDialog}};
}

} // namespace Bench
