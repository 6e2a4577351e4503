// The settings that remember the last task of a type, and the form that starts from them.
//
// An input that begins with a brace is a task document, which is saved and read back. Any other is the settings file
// itself, as a user or a crash may have left it.

#include "forms.h"

#include "mcslasttaskdefaults.h"
#include "platform.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using Fuzzing::require;

namespace {

const QString &taskType()
{
    static const QString type = u"task_type.test"_s;
    return type;
}

/// Replaces the settings file. QSettings reads a file again when its time has changed, so each has a time of its own.
void writeSettings(const QByteArray &content)
{
    static const QString directory = qEnvironmentVariable("XDG_CONFIG_HOME") + u"/Tamrix Laboratory"_s;
    static QDateTime time = QDateTime::fromString(u"2026-03-01T14:07:55Z"_s, Qt::ISODate);
    QDir().mkpath(directory);
    QFile file(directory + u"/Orvel Task Scheduler.conf"_s);
    require(file.open(QIODevice::WriteOnly), "the settings can be written");
    file.write(content);
    file.flush();
    time = time.addSecs(1);
    require(file.setFileTime(time, QFileDevice::FileModificationTime), "the settings have a time of their own");
}

void forgetSettings()
{
    if (TestSupport::settingsAreAFile)
        writeSettings({});
    else
        QSettings(QSettings::NativeFormat, QSettings::UserScope, u"Tamrix Laboratory"_s, u"Orvel Task Scheduler"_s)
            .clear();
}

/// A form of the type, built once, since that is most of the work.
MCsDynamicFormWidget &builtForm()
{
    static MCsDynamicFormWidget &form = Fuzzing::hiddenForm();
    if (!form.hasFields()) {
        form.setTaskTypes({Fuzzing::typeOfEveryKind()});
        form.buildForTaskType(taskType(), {});
    }
    return form;
}

/// A new task of the type, which takes up what was remembered.
void checkForm(const QJsonObject &defaults)
{
    MCsDynamicFormWidget &form = builtForm();
    static const QJsonObject before = form.collectValues();
    form.applyValues(before, {});
    form.applyValues(defaults.value("dynamicParams"_L1).toObject(), {u"i"_s});
    require(form.collectValues().value("i"_L1) == before.value("i"_L1), "what the host names is left alone");
    require(form.collectValues().keys() == before.keys(), "what is remembered adds no field");
    Fuzzing::checkFixpoint(form);
    Fuzzing::deleteLeftOvers();
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    Fuzzing::startApplication();

    const QByteArray input = Fuzzing::bytesOf(data, size);
    const MCsLastTaskDefaults store;
    if (input.startsWith('{')) {
        forgetSettings();
        const QJsonObject document = Fuzzing::objectFrom(input);
        store.saveDefaults(taskType(), document);
        const QJsonObject params = document.value("paramsJson"_L1).toObject();
        const QJsonObject expected =
            params.contains("dynamicParams"_L1)
                ? QJsonObject{{u"dynamicParams"_s, params.value("dynamicParams"_L1).toObject()}}
                : QJsonObject();
        require(store.loadDefaults(taskType()) == expected, "what was saved is remembered");
    } else if (TestSupport::settingsAreAFile) {
        writeSettings(input);
    } else {
        return 0;
    }
    const QJsonObject defaults = store.loadDefaults(taskType());
    require(defaults.isEmpty() || (defaults.size() == 1 && defaults.value("dynamicParams"_L1).isObject()),
            "only parameters are remembered");
    require(store.loadDefaults(u"task_type.other"_s).isEmpty() || !input.startsWith('{'), "types share nothing");
    checkForm(defaults);
    return 0;
}
