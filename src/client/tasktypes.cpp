#include "tasktypes.h"

#include <QCoreApplication>
#include <QObject>

using namespace Qt::StringLiterals;

namespace Scheduler {

// NOLINTNEXTLINE(cert-err58-cpp): built while the program loads on purpose, see the declaration.
const QString allTypesText = QObject::tr("All Types");

QStringList allowedTaskTypes()
{
    return {u"task_type.audio_record"_s, u"task_type.screen_record"_s, u"task_type.zentaDesk"_s,
            u"task_type.pdf_convert"_s,  u"task_type.test"_s,          allTaskTypesId.toString()};
}

QString taskTypeDisplayName(const QString &id)
{
    if (id == "task_type.test"_L1)
        return QCoreApplication::translate("Scheduler::MCsTaskDialog", "Test Task");
    if (id == "task_type.screen_record"_L1)
        return QCoreApplication::translate("Scheduler::MCsTaskDialog", "Screen Recorder");
    if (id == "task_type.audio_record"_L1)
        return QCoreApplication::translate("Scheduler::MCsTaskDialog", "Audio Recorder");
    return QCoreApplication::translate("Scheduler::MCsTaskDialog", "Custom");
}

} // namespace Scheduler
