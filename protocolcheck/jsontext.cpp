#include "jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Scheduler::ProtocolCheck {

using namespace Qt::StringLiterals;

QString shortened(const QString &text)
{
    constexpr qsizetype reportedLength = 200;
    const QString line = text.simplified();
    return line.size() <= reportedLength ? line : line.first(reportedLength) + u'…';
}

QString textOf(const QJsonValue &value)
{
    if (value.isUndefined())
        return u"nothing"_s;
    // There are documents of arrays and objects only.
    const QByteArray inBrackets = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return shortened(QString::fromUtf8(inBrackets.sliced(1, inBrackets.size() - 2)));
}

} // namespace Scheduler::ProtocolCheck
