#include "redaction.h"
#include "secretscan.h"
#include "testmain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// With U+FFFD in place of each half of a surrogate pair, in which the expressions find nothing at all.
QString wellFormed(const QString &text)
{
    return QString::fromStdU32String(text.toStdU32String());
}

/// What redactText() amounts to, without its short cut.
QString threeSubstitutions(QString text)
{
    constexpr auto anyCase = QRegularExpression::CaseInsensitiveOption;
    static const QRegularExpression words(u"(password|passwd|pwd|token|secret|key|apikey|api_key)[\\s:=]+[^\\s,;]+"_s,
                                          anyCase);
    static const QRegularExpression authorization(u"(authorization|auth)[\\s:=]+[^\\s,;]+"_s, anyCase);
    static const QRegularExpression bearer(u"bearer\\s+[a-zA-Z0-9\\-._~+/]+=*"_s, anyCase);
    text.replace(words, u"\\1=***REDACTED***"_s);
    text.replace(authorization, u"\\1=***REDACTED***"_s);
    return text.replace(bearer, u"bearer ***REDACTED***"_s);
}

/// Pieces that matter to the expressions or to the scan before them, and some that matter to neither.
const QStringList &fragments()
{
    static const QStringList list{u"password"_s, u"passwd"_s, u"pwd"_s, u"token"_s, u"secret"_s, u"key"_s, u"apikey"_s,
                                  u"api_key"_s, u"authorization"_s, u"auth"_s, u"bearer"_s,
                                  // Kelvin sign and long s, which equal k and s when case does not count
                                  u"to\u212Aen"_s, u"\u212Aey"_s, u"pa\u017Fsword"_s, u"pas\u017Fwd"_s,
                                  u"\u017Fecret"_s, u"\u212A"_s, u"\u017F"_s,
                                  // characters whose low byte looks like a letter or like one of those two
                                  u"\u016B\u0165\u0179"_s, u"\u4E6B\u4E65\u4E79=1"_s, u"\u022A"_s, u"\u027F"_s, u" "_s,
                                  u"\t"_s, u"\n"_s, u"\v"_s, u"\f"_s, u"\r"_s, u"\u0085"_s, u"\u00A0"_s, u"\u2003"_s,
                                  u":"_s, u"="_s, u","_s, u";"_s, u"*"_s, u"\u007F"_s, u"\x01"_s, u"=="_s, u" : "_s,
                                  u": "_s, u"a"_s, u"k"_s, u"s"_s, u"w"_s, u"ken"_s, u"swd"_s, u"uth"_s, u"ecr"_s,
                                  u"rer"_s, u"author"_s, u"monkeys"_s, u"abc123"_s, u"a-b._~+/c"_s, u"\u00E9"_s,
                                  u"\u4EFB\u52A1"_s, u"\U0001F600"_s, QString(QChar(0xD800)), QString(120, u'x'),
                                  QString(125, u' '), QString(127, u'-'), u"the task was refreshed "_s};
    return list;
}

QString randomCase(const QString &text, QRandomGenerator &random)
{
    QString result = text;
    for (QChar &character : result) {
        if (random.bounded(4) == 0)
            character = character.toUpper();
    }
    return result;
}

QString randomText(QRandomGenerator &random)
{
    QString text;
    const int pieces = random.bounded(12);
    for (int i = 0; i < pieces; ++i)
        text += randomCase(fragments().at(random.bounded(int(fragments().size()))), random);
    return text;
}

} // namespace

class RedactionTest : public QObject {
    Q_OBJECT

private slots:
    void secretsInTextAreReplaced_data();
    void secretsInTextAreReplaced();
    void secretBesideHalfASurrogatePairIsReplaced();
    void halfASurrogatePairGivesWay();
    void secretIsFoundAtEveryPlaceOfALongText();
    void everyTextComesOutAsOfTheThreeSubstitutions();
    void plainTextIsSettledByTheScanAlone_data();
    void plainTextIsSettledByTheScanAlone();
    void valuesUnderSensitiveKeysAreReplaced_data();
    void valuesUnderSensitiveKeysAreReplaced();
    void harmlessKeysKeepTheirValues();
    void stringsUnderHarmlessKeysPassTheTextRules();
    void nestedObjectsAreEnteredAtAnyDepth();
    void arraysAreNotEntered();
};

void RedactionTest::secretsInTextAreReplaced_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("expected");

    const auto row = [](const QString &message, const QString &expected) {
        QTest::newRow(qUtf8Printable(message)) << message << expected;
    };
    row(u"password: abc, next"_s, u"password=***REDACTED***, next"_s);
    row(u"API_KEY=abc"_s, u"API_KEY=***REDACTED***"_s);
    row(u"Authorization: Bearer abc123"_s, u"Authorization=***REDACTED*** abc123"_s);
    row(u"bearer abc123=="_s, u"bearer ***REDACTED***"_s);
    row(u"monkey=1"_s, u"monkey=***REDACTED***"_s);
    row(u"passwd x; pwd=y"_s, u"passwd=***REDACTED***; pwd=***REDACTED***"_s);
    row(u"ApiKey == z"_s, u"ApiKey=***REDACTED***"_s);
    row(u"secret\n:\tvalue rest"_s, u"secret=***REDACTED*** rest"_s);
    row(u"auth=a;token b"_s, u"auth=***REDACTED***;token=***REDACTED***"_s);
    row(u"BEARER\tA-Z._~+/9= end"_s, u"bearer ***REDACTED*** end"_s);
    row(u"token = key = value"_s, u"token=***REDACTED*** = value"_s);
    row(u"to\u212Aen=1"_s, u"to\u212Aen=***REDACTED***"_s);
    row(u"pa\u017F\u017Fword=1"_s, u"pa\u017F\u017Fword=***REDACTED***"_s);
    row(u"password\u00A0abc"_s, u"password\u00A0abc"_s);
    row(u"the password"_s, u"the password"_s);
    row(u"password: "_s, u"password: "_s);
    row(u"password:,"_s, u"password:,"_s);
    row(u"password::,"_s, u"password=***REDACTED***,"_s);
    row(u"password ,"_s, u"password ,"_s);
    row(u"passwords: abc"_s, u"passwords: abc"_s);
    row(u"{\"token\":\"abc\"}"_s, u"{\"token\":\"abc\"}"_s);
    row(u""_s, u""_s);
}

void RedactionTest::secretsInTextAreReplaced()
{
    QFETCH(QString, message);
    QFETCH(QString, expected);

    QCOMPARE(redactText(message), expected);
}

void RedactionTest::secretBesideHalfASurrogatePairIsReplaced()
{
    const QString name = QJsonDocument::fromJson(R"(["\ud83d password=abc, next"])").array().at(0).toString();
    QVERIFY(!name.isValidUtf16());

    QCOMPARE(redactText(name), u"\uFFFD password=***REDACTED***, next"_s);
}

void RedactionTest::halfASurrogatePairGivesWay()
{
    QCOMPARE(redactText(QString(QChar(0xDE00))), u"\uFFFD"_s);
    QCOMPARE(redactText(u"a"_s + QChar(0xD83D)), u"a\uFFFD"_s);
    QCOMPARE(redactText(QChar(0xD83D) + u"\U0001F600b"_s), u"\uFFFD\U0001F600b"_s);
    // Else the file would have the name of a secret, and its value.
    QCOMPARE(redactText(u"pass"_s + QChar(0xD83D) + u"word=abc"_s).toUtf8(), "pass\xEF\xBF\xBDword=abc");
}

void RedactionTest::secretIsFoundAtEveryPlaceOfALongText()
{
    constexpr int length = 1100;
    for (const QString &secret : {u"key=v"_s, u"AUTHORIZATION:v"_s, u"passwd v"_s, u"Bearer v"_s}) {
        for (int before = 0; before < length; ++before) {
            const QString text = QString(before, u'.') + secret + QString(length - before, u' ');
            QCOMPARE(redactText(text), threeSubstitutions(text));
            QVERIFY(redactText(text) != text);
        }
    }
}

void RedactionTest::everyTextComesOutAsOfTheThreeSubstitutions()
{
    QRandomGenerator random(20260301);
    int changed = 0;
    for (int i = 0; i < 40000; ++i) {
        const QString text = randomText(random);
        const QString expected = threeSubstitutions(wellFormed(text));
        QCOMPARE(redactText(text), expected);
        changed += expected != wellFormed(text) ? 1 : 0;
    }
    QVERIFY2(changed > 4000, "too few of the texts held a secret for the comparison to mean much");
}

void RedactionTest::plainTextIsSettledByTheScanAlone_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("short") << u"ab"_s;
    QTest::newRow("words that only begin alike")
        << u"The author has taken the monkeys' passwords, keyboard and tokens"_s;
    QTest::newRow("JSON") << u"{\"token\":\"abc\",\"key\":1}"_s;
    QTest::newRow("long") << u"Task list refreshed, 14 rows, group created because of the south tower. "_s.repeated(
        150);
    QTest::newRow("other scripts") << u"任务已刷新 – задача обновлена – größer "_s.repeated(150);
}

void RedactionTest::plainTextIsSettledByTheScanAlone()
{
    QFETCH(QString, text);

    QVERIFY(!mayHoldSecret(text));
}

void RedactionTest::valuesUnderSensitiveKeysAreReplaced_data()
{
    QTest::addColumn<QString>("key");

    for (const char *key : {"password",      "passwd",
                            "pwd",           "token",
                            "accessToken",   "refreshToken",
                            "bearerToken",   "secret",
                            "apiKey",        "api_key",
                            "privateKey",    "private_key",
                            "authorization", "auth",
                            "creditCard",    "credit_card",
                            "ssn",           "social_security",
                            "Author",        "tokens",
                            "MY_PASSWORD_2", "CREDITCARDNUMBER",
                            "sessnumber"})
        QTest::newRow(key) << QString::fromLatin1(key);
}

void RedactionTest::valuesUnderSensitiveKeysAreReplaced()
{
    QFETCH(QString, key);

    const QList<QJsonValue> values{u"abc"_s, 17, true, QJsonValue::Null, QJsonArray{1}, QJsonObject{{u"a"_s, 1}}};
    for (const QJsonValue &value : values) {
        const QJsonObject expected{{key, u"***REDACTED***"_s}};
        QCOMPARE(redactJson({{key, value}}), expected);
    }
}

void RedactionTest::harmlessKeysKeepTheirValues()
{
    const QJsonObject object{{u"key"_s, u"abc"_s},       {u"pass"_s, 1},         {u"card"_s, true},
                             {u"null"_s, QJsonValue()},  {u"credit card"_s, 17}, {u"object"_s, QJsonObject()},
                             {u"social security"_s, 1.5}};
    QCOMPARE(redactJson(object), object);
    QCOMPARE(redactJson({}), QJsonObject());
}

void RedactionTest::stringsUnderHarmlessKeysPassTheTextRules()
{
    const QJsonObject expected{{u"note"_s, u"pwd=***REDACTED***"_s}, {u"other"_s, u"plain"_s}};
    QCOMPARE(redactJson({{u"note"_s, u"pwd: abc"_s}, {u"other"_s, u"plain"_s}}), expected);
}

void RedactionTest::nestedObjectsAreEnteredAtAnyDepth()
{
    QJsonObject object{{u"Author"_s, u"me"_s}, {u"note"_s, u"key=1"_s}, {u"count"_s, 3}};
    QJsonObject expected{{u"Author"_s, u"***REDACTED***"_s}, {u"note"_s, u"key=***REDACTED***"_s}, {u"count"_s, 3}};
    for (int depth = 0; depth < 20; ++depth) {
        QCOMPARE(redactJson(object), expected);
        object = {{u"inner"_s, object}};
        expected = {{u"inner"_s, expected}};
    }
}

void RedactionTest::arraysAreNotEntered()
{
    const QJsonObject object{{u"list"_s, QJsonArray{u"password=abc"_s, QJsonObject{{u"token"_s, u"abc"_s}}}}};
    QCOMPARE(redactJson(object), object);
}

ORVEL_TEST_MAIN(QCoreApplication, RedactionTest)

#include "tst_redaction.moc"
