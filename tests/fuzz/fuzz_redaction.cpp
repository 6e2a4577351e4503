// What the log keeps of messages and contexts that hold secrets.
//
// An input is a text, put into UTF-16 from UTF-8, or byte by byte where its first byte is a zero. Where it is a JSON
// object, it is a context as well.

#include "fuzzing.h"

#include "mcslogger.h"
#include "redaction.h"
#include "secretscan.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using Fuzzing::require;

namespace {

const QString &replacement()
{
    static const QString text = u"***REDACTED***"_s;
    return text;
}

QString textOf(const QByteArray &bytes)
{
    if (!bytes.startsWith('\0'))
        return QString::fromUtf8(bytes);
    // Every two bytes are one unit: surrogates without their other half among them.
    QString text;
    for (qsizetype i = 1; i + 1 < bytes.size(); i += 2)
        text.append(QChar(static_cast<char16_t>((uchar(bytes[i]) << 8U) | uchar(bytes[i + 1]))));
    return text;
}

/// The three expressions, each with what it leaves of a match.
struct Rule {
    QRegularExpression expression;
    QString left;
};

const std::array<Rule, 3> &rules()
{
    const auto rule = [](const QString &pattern, const QString &left) {
        return Rule{QRegularExpression(pattern, QRegularExpression::CaseInsensitiveOption), left};
    };
    static const std::array<Rule, 3> all{
        rule(uR"((password|passwd|pwd|token|secret|key|apikey|api_key)[\s:=]+[^\s,;]+)"_s, u"\\1=***REDACTED***"_s),
        rule(uR"((authorization|auth)[\s:=]+[^\s,;]+)"_s, u"\\1=***REDACTED***"_s),
        rule(uR"(bearer\s+[a-zA-Z0-9\-._~+/]+=*)"_s, u"bearer ***REDACTED***"_s),
    };
    return all;
}

/// An expression matches nowhere in a text with half of a surrogate pair in it.
QString wellFormed(const QString &text)
{
    return QString::fromStdU32String(text.toStdU32String());
}

/// Without the scan that spares most texts the expressions.
QString plainlyRedacted(QString text)
{
    for (const Rule &rule : rules())
        text.replace(rule.expression, rule.left);
    return text;
}

/// Whatever stands around it, a value right behind a word and an equals sign or a colon must go.
void checkPlantedSecret(const QString &text)
{
    static const QString secret = u"\uE000hush\uE000"_s;
    static const QStringList words{u"password="_s, u"PWD:"_s, u"apiKey="_s, u"Token:="_s, u"authorization:"_s};
    QString around = text;
    around.remove(QChar(u'\uE000'));
    const qsizetype middle = around.size() / 2;
    const QString &word = words.at(around.size() % words.size());
    const QString planted = around.first(middle) + word + secret + around.sliced(middle);
    require(!redactText(planted).contains(secret), "a secret behind its word does not survive");
}

void checkText(const QString &text)
{
    const QString redacted = redactText(text);
    const QString plain = plainlyRedacted(wellFormed(text));
    require(wellFormed(redacted) == plain, "the quick scan overlooks nothing");
    require(plain == wellFormed(text) || mayHoldSecret(text), "what is changed was held for suspicious");
    require(redactText(redacted) == redacted, "nothing is left to be redacted");
    checkPlantedSecret(text);
}

bool isSensitive(const QString &key)
{
    static const QStringList parts{
        u"password"_s,   u"passwd"_s,      u"pwd"_s,           u"token"_s, u"secret"_s,
        u"apikey"_s,     u"api_key"_s,     u"privatekey"_s,    u"auth"_s,  u"private_key"_s,
        u"creditcard"_s, u"credit_card"_s, u"authorization"_s, u"ssn"_s,   u"social_security"_s};
    const QString lowered = key.toLower();
    return std::any_of(parts.begin(), parts.end(), [&](const QString &part) { return lowered.contains(part); });
}

void checkObject(const QJsonObject &object, const QJsonObject &redacted)
{
    require(object.keys() == redacted.keys(), "no key is lost");
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonValue kept = redacted.value(member.key());
        if (isSensitive(member.key()))
            require(kept == replacement(), "a value under a sensitive key goes");
        else if (member->isString())
            require(kept == redactText(member->toString()), "a string is redacted");
        else if (member->isObject())
            checkObject(member->toObject(), kept.toObject());
        else
            require(kept == *member, "other values stay");
    }
}

QString &lastEntry()
{
    static QString text;
    return text;
}

/// The value of one of an entry's parts, each of which is an object of its own.
QJsonValue part(const QJsonArray &entry, qsizetype index, QLatin1StringView key)
{
    return entry.at(index).toObject().value(key);
}

/// The JSON form of an entry can be read back.
void checkEntry(const QString &message, const QJsonObject &context)
{
    lastEntry().clear();
    MCsLogger::instance().error(message.left(20), message, context);
    const QJsonArray entry = QJsonDocument::fromJson(lastEntry().toUtf8()).array();
    require(entry.size() == (context.isEmpty() ? 4 : 5), "an entry has all of its parts");
    if (message.isValidUtf16())
        require(part(entry, 3, "message"_L1) == redactText(message), "an entry's message can be read back");
    if (!context.isEmpty())
        checkObject(context, part(entry, 4, "context"_L1).toObject());
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Fuzzing::QuietProcess process;
    [[maybe_unused]] static const auto handler =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) { lastEntry() = text; });
    const QByteArray bytes = Fuzzing::bytesOf(data, size);
    const QString text = textOf(bytes);
    checkText(text);
    const QJsonObject context = Fuzzing::objectFrom(bytes);
    checkObject(context, redactJson(context));
    checkEntry(text, context);
    return 0;
}
