// The host's parameter file and the daemon's definition of a task type, which together make the parameter form.
//
// An input is the parameter file, read as the start-up reads it. What stands behind a line of "---" is the definition;
// without that line the type is one with a field of every kind.

#include "forms.h"

#include "programparameters.h"
#include "startup.h"

#include <QComboBox>
#include <QFile>
#include <QSpinBox>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using Fuzzing::require;

namespace {

/// The text that the window gets. An empty file is not tried: it is refused with a box, and a box waits for somebody.
QString readAtStart(QByteArray file)
{
    static const QString path = qEnvironmentVariable("HOME") + u"/parameters.json"_s;
    file.replace('\r', QByteArray());
    if (QString::fromUtf8(file).trimmed().isEmpty())
        return {};
    QFile parameters(path);
    require(parameters.open(QIODevice::WriteOnly), "the file can be written");
    parameters.write(file);
    parameters.close();
    const std::optional<StartValues> values = readCommandLine(
        {u"manager"_s, u"--task-type"_s, u"task_type.test"_s, u"--language"_s, u"en"_s, u"--program-name"_s, u"x"_s,
         u"--program-path"_s, u"x"_s, u"--program-parameters-file"_s, path});
    require(values.has_value(), "a file with content is read");
    return values->programParametersJson;
}

void checkForm(MCsDynamicFormWidget &form, const TaskTypeInfo &type)
{
    const QJsonObject values = form.collectValues();
    for (const TaskFieldInfo &field : type.fields)
        require(values.contains(field.key), "every field has a value");
    require(form.hasFields() != type.fields.isEmpty(), "the form has the fields of its type");
    for (const QSpinBox *box : form.findChildren<QSpinBox *>())
        require(box->minimum() <= box->value() && box->value() <= box->maximum(), "a number is within its limits");
    for (const QComboBox *combo : form.findChildren<QComboBox *>())
        require(combo->findText(combo->currentText()) >= 0 || combo->count() == 0, "a choice is one of its options");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    Fuzzing::startApplication();
    static MCsDynamicFormWidget &form = Fuzzing::hiddenForm();

    const QByteArray input = Fuzzing::bytesOf(data, size);
    const qsizetype line = input.indexOf("\n---\n");
    TaskTypeInfo type =
        line < 0 ? Fuzzing::typeOfEveryKind() : TaskTypeInfo::fromJson(Fuzzing::objectFrom(input.sliced(line + 5)));
    type.type = u"task_type.test"_s;
    constexpr qsizetype enoughFields = 12; // many widgets take time and show nothing new
    type.fields.resize(qMin(type.fields.size(), enoughFields));

    const QString parameters = readAtStart(line < 0 ? input : input.first(line));
    form.setTaskTypes({type});
    require(form.buildForTaskType(type.type, parameters), "the form of a known type is built");
    checkForm(form, type);
    const QJsonObject values = form.collectValues();
    Fuzzing::checkFixpoint(form);
    form.applyValues(parseProgramParameters(parameters), {});
    Fuzzing::checkFixpoint(form);
    checkForm(form, type);
    form.buildForTaskType(type.type, parameters);
    require(form.collectValues() == values, "a form that is built anew starts as before");
    form.buildForTaskType({}, {});
    Fuzzing::deleteLeftOvers();
    return 0;
}
