#include "mcslasttaskdefaults.h"

#include <QFile>
#include <QJsonDocument>
#include <QSettings>

#include <new>

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

// Settings that nobody here has written may hold a value that names a length that no memory has room for. Older
// versions of Qt take it for empty; newer ones throw, and do not bear that while they write.

QByteArray readText(const QSettings &settings, const QString &key)
{
    try {
        return settings.value(key).toString().toUtf8();
    } catch (const std::bad_alloc &) {
        return {};
    }
}

/// Settings that cannot be decoded count as none, so they give way to what is about to be written.
void discardUndecodable(const QSettings &settings)
{
    try {
        static_cast<void>(settings.allKeys()); // decodes everything
    } catch (const std::bad_alloc &) {
        QFile::remove(settings.fileName());
    }
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
    discardUndecodable(QSettings(QSettings::NativeFormat, QSettings::UserScope, m_organization, m_application));
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
    const QJsonDocument parsed = QJsonDocument::fromJson(readText(settings, u"dynamicParams"_s));
    if (!parsed.isObject())
        return {};
    return {{u"dynamicParams"_s, parsed.object()}};
}

} // namespace Scheduler
