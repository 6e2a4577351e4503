#include "mcslasttaskdefaults.h"

#include <QJsonDocument>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace Scheduler {

namespace {

QString compactText(const QJsonObject &object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void writeObject(QSettings &settings, const QJsonObject &source, const QString &key)
{
    if (source.contains(key))
        settings.setValue(key, compactText(source.value(key).toObject()));
}

void writeText(QSettings &settings, const QJsonObject &source, const QString &key)
{
    if (source.contains(key))
        settings.setValue(key, source.value(key).toString());
}

} // namespace

MCsLastTaskDefaults::MCsLastTaskDefaults()
    : m_organization(u"Tamrix Laboratory"_s)
    , m_application(u"Orvel Task Scheduler"_s)
{
}

QString MCsLastTaskDefaults::lastTaskDefaultsGroup(const QString &taskType) const
{
    return u"LastTaskDefaults/%1"_s.arg(taskType);
}

void MCsLastTaskDefaults::saveDefaults(const QString &taskType, const QJsonObject &document) const
{
    if (taskType.isEmpty())
        return;
    const QJsonObject params = document.value("paramsJson"_L1).toObject();
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, m_organization, m_application);
    settings.beginGroup(lastTaskDefaultsGroup(taskType));
    writeObject(settings, params, u"dynamicParams"_s);
    settings.beginGroup(u"taskFields"_s);
    for (const QString &key : {u"startRecordingOn"_s, u"actionBeforeAutoStart"_s, u"autoStopCondition"_s,
                               u"actionAfterAutoStop"_s, u"outputSettings"_s})
        writeObject(settings, params, key);
    writeText(settings, params, u"displayMode"_s);
    writeText(settings, document, u"groupId"_s);
    settings.endGroup();
    settings.endGroup();
    settings.sync();
}

QJsonObject MCsLastTaskDefaults::loadDefaults(const QString &taskType) const
{
    if (taskType.isEmpty())
        return {};
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, m_organization, m_application);
    settings.beginGroup(lastTaskDefaultsGroup(taskType));
    const QByteArray stored = settings.value(u"dynamicParams"_s).toString().toUtf8();
    const QJsonDocument parsed = QJsonDocument::fromJson(stored);
    if (!parsed.isObject())
        return {};
    return {{u"dynamicParams"_s, parsed.object()}};
}

} // namespace Scheduler
