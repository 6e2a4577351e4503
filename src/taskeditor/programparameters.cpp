#include "programparameters.h"

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

/// A value as the text that a field's default is. Numbers have six significant digits.
QString defaultText(const QJsonValue &value)
{
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 6);
    if (value.isBool())
        return value.toBool() ? u"true"_s : u"false"_s;
    return value.toString();
}

QStringList optionTexts(const QJsonArray &array)
{
    QStringList texts;
    texts.reserve(array.size());
    for (const QJsonValue element : array)
        texts.append(element.toString());
    return texts;
}

void overrideWith(FieldDefaults &defaults, const QJsonObject &member)
{
    const QJsonValue defaultValue = member.value("defaultValue"_L1);
    if (!defaultValue.isUndefined())
        defaults.defaultValue = defaultText(defaultValue);
    const QJsonArray options = member.value("options"_L1).toArray();
    if (!options.isEmpty())
        defaults.options = optionTexts(options);
}

} // namespace

QJsonObject parseProgramParameters(const QString &json)
{
    return QJsonDocument::fromJson(json.toUtf8()).object();
}

FieldDefaults effectiveDefaults(const TaskFieldInfo &field, const QJsonObject &parameters)
{
    FieldDefaults defaults{field.defaultValue, field.options};
    const QJsonValue member = parameters.value(field.key);
    if (member.isObject())
        overrideWith(defaults, member.toObject());
    else if (!member.isUndefined())
        defaults.defaultValue = defaultText(member);
    return defaults;
}

} // namespace Scheduler
