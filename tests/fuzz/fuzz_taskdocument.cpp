// A stored task document in the task dialog, and back.
//
// An input is the "paramsJson" of a task. What the dialog makes of it, it must show again unchanged: a task that is
// opened and saved twice is the same the second time.

#include "forms.h"

#include "mcstaskdialog.h"

#include <QJsonArray>

#include <array>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using Fuzzing::require;

namespace {

/// One dialog for all inputs, as making one takes a hundred times as long as filling it.
class Dialog {
public:
    Dialog()
    {
        auto *form = m_dialog.findChild<MCsDynamicFormWidget *>();
        form->setTaskTypes({Fuzzing::typeOfEveryKind()});
        require(form->buildForTaskType(u"task_type.test"_s, {}), "the form is built");
    }

    /// What one input leaves must not decide about the next. Each document fills the fields of other modes.
    void reset()
    {
        static const std::array documents{
            Fuzzing::objectFrom(R"({"startRecordingOn": {"mode": "EveryDay", "dailyTime": "09:00:00"},
                "autoStopCondition": {"mode": "ByDuration", "durationSeconds": 300}})"),
            Fuzzing::objectFrom(R"({"startRecordingOn": {"mode": "EveryWeek", "weeklyDays": [],
                "weeklyTime": "09:00:00"}, "autoStopCondition": {"mode": "ByFileSize", "fileSizeBytes": 1073741824}})"),
            Fuzzing::objectFrom(R"({"startRecordingOn": {"mode": "monitorApp", "monitorProgram": ""},
                "autoStopCondition": {"mode": "AtTime", "stopAtTime": "2026-03-01T16:00:00"}})"),
            Fuzzing::objectFrom(R"({"startRecordingOn": {"mode": "monitorFolder", "monitorFolderPath": "",
                "monitorFileExtensions": ""}, "autoStopCondition": {"mode": "None"}, "displayMode": "Show",
                "outputSettings": {"mode": "Custom", "customFolder": "", "customFileNamePattern": "[TaskName]"}})"),
            Fuzzing::objectFrom(R"({"startRecordingOn": {"mode": "SpecifiedTime",
                "specifiedDateTime": "2026-03-01T15:00:00"}, "actionAfterAutoStop": {"action": "None"},
                "actionBeforeAutoStart": {"runProgram": "", "openUrl": "", "sleepAfterSeconds": 0},
                "outputSettings": {"mode": "UseDefault"},
                "dynamicParams": {"i": 30, "d": 1.5, "b": true, "s": "y", "t": "some text"}})"),
        };
        for (const QJsonObject &document : documents)
            m_dialog.loadTaskParams(document);
    }

    /// The document after a load, as the daemon would store it.
    QJsonObject reloaded(const QJsonObject &params)
    {
        m_dialog.loadTaskParams(params);
        const QJsonObject document = m_dialog.collectTaskDocument();
        require(Fuzzing::objectFrom(QJsonDocument(document).toJson()) == document, "a document survives the wire");
        return document.value("paramsJson"_L1).toObject();
    }

private:
    MCsTaskDialog m_dialog{nullptr, {}, u"Tester"_s, u"/usr/bin/true"_s, {}, {}, nullptr};
};

QString mode(const QJsonObject &params, const QString &block)
{
    return params.value(block).toObject().value("mode"_L1).toString();
}

void checkDocument(const QJsonObject &params)
{
    static const QStringList starts{u"SpecifiedTime"_s, u"EveryDay"_s, u"EveryWeek"_s, u"monitorApp"_s,
                                    u"monitorFolder"_s};
    static const QStringList stops{u"None"_s, u"ByDuration"_s, u"ByFileSize"_s, u"AtTime"_s};
    require(starts.contains(mode(params, u"startRecordingOn"_s)), "a task starts in a known way");
    require(stops.contains(mode(params, u"autoStopCondition"_s)), "a task stops in a known way");
    const QJsonObject stop = params.value("autoStopCondition"_L1).toObject();
    require(!stop.contains("durationSeconds"_L1) || stop.value("durationSeconds"_L1).toInt() >= 60,
            "a duration is a minute or more");
    require(!stop.contains("fileSizeBytes"_L1) || stop.value("fileSizeBytes"_L1).toDouble() >= 204800,
            "a size is within its limits");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    // A zone whose clocks change: some local times do not exist, others come twice.
    [[maybe_unused]] static const bool zoneIsSet = qputenv("TZ", "Europe/Berlin");
    Fuzzing::startApplication();
    static Dialog &dialog = *new Dialog;

    dialog.reset();
    const QJsonObject once = dialog.reloaded(Fuzzing::objectFrom(Fuzzing::bytesOf(data, size)));
    checkDocument(once);
    require(dialog.reloaded(once) == once, "a document that was shown is shown again as it is");
    Fuzzing::deleteLeftOvers();
    return 0;
}
