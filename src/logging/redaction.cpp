#include "redaction.h"

#include "secretscan.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace Scheduler {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array sensitiveKeyParts = {
    "password"_L1,      "passwd"_L1, "pwd"_L1,        "token"_L1,       "accesstoken"_L1, "refreshtoken"_L1,
    "bearertoken"_L1,   "secret"_L1, "apikey"_L1,     "api_key"_L1,     "privatekey"_L1,  "private_key"_L1,
    "authorization"_L1, "auth"_L1,   "creditcard"_L1, "credit_card"_L1, "ssn"_L1,         "social_security"_L1,
};

bool isSensitiveKey(const QString &key)
{
    const QString lowered = key.toLower();
    return std::ranges::any_of(sensitiveKeyParts, [&](QLatin1StringView part) { return lowered.contains(part); });
}

QRegularExpression caseInsensitive(const QString &pattern)
{
    return QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption);
}

/// The text with U+FFFD in place of each half of a surrogate pair. An escape in JSON can bring such a half. No
/// expression matches anywhere in a text that has one, and some versions of Qt leave it out when they write the log
/// file: the parts of a secret's name would come together there.
QString wellFormed(const QString &text)
{
    return QString::fromStdU32String(text.toStdU32String());
}

} // namespace

QString redactText(const QString &text)
{
    if (!text.isValidUtf16())
        return redactText(wellFormed(text));
    if (!mayHoldSecret(text))
        return text;

    static const QRegularExpression credential =
        caseInsensitive(uR"((password|passwd|pwd|token|secret|key|apikey|api_key)[\s:=]+[^\s,;]+)"_s);
    static const QRegularExpression authorization = caseInsensitive(uR"((authorization|auth)[\s:=]+[^\s,;]+)"_s);
    static const QRegularExpression bearer = caseInsensitive(uR"(bearer\s+[a-zA-Z0-9\-._~+/]+=*)"_s);

    QString redacted = text;
    redacted.replace(credential, u"\\1=***REDACTED***"_s);
    redacted.replace(authorization, u"\\1=***REDACTED***"_s);
    redacted.replace(bearer, u"bearer ***REDACTED***"_s);
    return redacted;
}

QJsonObject redactJson(const QJsonObject &object)
{
    QJsonObject redacted = object;
    for (auto member = redacted.begin(); member != redacted.end(); ++member) {
        if (isSensitiveKey(member.key()))
            member.value() = u"***REDACTED***"_s;
        else if (member.value().isString())
            member.value() = redactText(member.value().toString());
        else if (member.value().isObject())
            member.value() = redactJson(member.value().toObject());
    }
    return redacted;
}

} // namespace Scheduler
