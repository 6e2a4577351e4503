#include "records.h"
#include "testmain.h"

#include <QScopeGuard>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

QDateTime readDate(const QString &text)
{
    return TaskInfo::fromJson({{u"nextRunAt"_s, text}}).nextRunAt;
}

/// Everything that tells one date from another, which is more than operator== looks at.
QString traits(const QDateTime &date)
{
    return u"valid %1, null %2, spec %3, offset %4, zone %5, day %6, msec of day %7, msec since epoch %8"_s
        .arg(date.isValid())
        .arg(date.isNull())
        .arg(int(date.timeSpec()))
        .arg(date.offsetFromUtc())
        .arg(date.timeZoneAbbreviation())
        .arg(date.date().toJulianDay())
        .arg(date.time().msecsSinceStartOfDay())
        .arg(date.isValid() ? date.toMSecsSinceEpoch() : 0);
}

/// Empty when the record reads the text exactly as Qt does.
QString difference(const QString &text)
{
    const QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
    const QDateTime actual = readDate(text);
    if (actual == expected && traits(actual) == traits(expected))
        return {};
    return u"'%1': %2 instead of %3"_s.arg(text, traits(actual), traits(expected));
}

QStringList wellFormedAndNearlySo()
{
    QStringList texts;
    const QStringList days{u"2026-11-13"_s, u"2024-02-29"_s, u"2026-02-29"_s,  u"2000-02-29"_s, u"1900-02-29"_s,
                           u"2026-02-30"_s, u"2026-04-31"_s, u"2026-13-01"_s,  u"2026-00-10"_s, u"2026-10-00"_s,
                           u"1970-01-01"_s, u"1969-12-31"_s, u"0000-01-01"_s,  u"0001-01-01"_s, u"0099-12-31"_s,
                           u"1582-10-10"_s, u"9999-12-31"_s, u"-001-01-01"_s,  u"+001-01-01"_s, u"2026/11/13"_s,
                           u"2026.11.13"_s, u"20261113"_s,   u"12026-01-01"_s, u"2026-1-1"_s};
    const QStringList times{u"10:00:00"_s, u"00:00:00"_s, u"23:59:59"_s, u"24:00:00"_s,   u"24:00"_s, u"24:00:01"_s,
                            u"25:00:00"_s, u"10:60:00"_s, u"10:00:60"_s, u"10:00"_s,      u"10"_s,    u"1:00:00"_s,
                            u"10-00-00"_s, u"100000"_s,   u"-1:00:00"_s, u"10:00:00 PM"_s};
    const QStringList fractions{
        QString(),       u"."_s,          u","_s,       u".1"_s,    u".12"_s,      u".123"_s,     u".999"_s,
        u".1234"_s,      u".12345"_s,     u".123456"_s, u".9995"_s, u".1234567"_s, u".9999999"_s, u".12345678"_s,
        u".123456789"_s, u".999999999"_s, u",123"_s,    u",5"_s,    u".-12"_s,     u". 12"_s,     u".1a3"_s};
    const QStringList zones{QString(),   u"Z"_s,     u"z"_s,   u"+01:00"_s, u"-01:00"_s, u"+00:00"_s,
                            u"-00:00"_s, u"+0530"_s, u"+05"_s, u"+14:00"_s, u"+25:00"_s, u"+1"_s,
                            u" Z"_s,     u"ZZ"_s,    u"UTC"_s, u" +01:00"_s};
    for (const QString &day : days) {
        texts.append(day);
        for (const QString &time : times) {
            for (const QString &separator : {u"T"_s, u"t"_s, u" "_s, u"  "_s, u"_"_s, QString()}) {
                for (const QString &zone : {QString(), u"Z"_s, u".500Z"_s, u"+01:00"_s})
                    texts.append(day + separator + time + zone);
            }
        }
    }
    for (const QString &time : times) {
        for (const QString &fraction : fractions) {
            for (const QString &zone : zones)
                texts.append(u"2026-11-13T"_s + time + fraction + zone);
        }
    }
    return texts;
}

/// The text with each character in turn left out, replaced, or preceded by another.
QStringList mutations(const QString &text)
{
    QStringList texts;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size())
            texts.append(text.first(i) + text.sliced(i + 1));
        for (const QChar character : u"0129-+:.,/TtZz aé٣３\0"_s) {
            texts.append(text.first(i) + character + text.sliced(i));
            if (i < text.size())
                texts.append(text.first(i) + character + text.sliced(i + 1));
        }
    }
    return texts;
}

} // namespace

class TestRecordDates : public QObject {
    Q_OBJECT

private slots:
    void commonFormsAreUtc();
    void datesAreReadAsQtReadsThem_data();
    void datesAreReadAsQtReadsThem();
    void everyMillisecondIsReadAsQtReadsIt();
    void daysOfAllYearsAreReadAsQtReadsThem();
    void damagedDatesAreReadAsQtReadsThem_data();
    void damagedDatesAreReadAsQtReadsThem();
};

void TestRecordDates::commonFormsAreUtc()
{
    const QDateTime whole = readDate(u"2026-11-13T10:00:07Z"_s);
    QCOMPARE(whole.timeSpec(), Qt::UTC);
    QCOMPARE(whole.date(), QDate(2026, 11, 13));
    QCOMPARE(whole.time(), QTime(10, 0, 7));
    QCOMPARE(whole.toSecsSinceEpoch(), 1794564007);
    QCOMPARE(readDate(u"1969-12-31T23:59:59.250Z"_s).toMSecsSinceEpoch(), -750);
}

void TestRecordDates::datesAreReadAsQtReadsThem_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("UTC") << QByteArray("UTC");
    QTest::newRow("ahead of UTC, with summer time") << QByteArray("Europe/Berlin");
    QTest::newRow("behind UTC") << QByteArray("America/Sao_Paulo");
}

void TestRecordDates::datesAreReadAsQtReadsThem()
{
    QFETCH(const QByteArray, zone);
    const QByteArray before = qgetenv("TZ");
    const auto restore = qScopeGuard([&before] { before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before); });
    qputenv("TZ", zone);

    QVERIFY2(difference(QString()).isEmpty(), "empty text");
    const QStringList texts = wellFormedAndNearlySo();
    for (const QString &text : texts) {
        const QString found = difference(text);
        QVERIFY2(found.isEmpty(), qUtf8Printable(found));
    }
}

void TestRecordDates::everyMillisecondIsReadAsQtReadsIt()
{
    for (int msec = 0; msec < 1000; ++msec) {
        const QString found = difference(u"2026-11-13T10:00:59.%1Z"_s.arg(msec, 3, 10, QChar(u'0')));
        QVERIFY2(found.isEmpty(), qUtf8Printable(found));
    }
}

void TestRecordDates::daysOfAllYearsAreReadAsQtReadsThem()
{
    const QDate last(9999, 12, 31);
    // Each day of some years, and of all others one or two, which is any day of the year in the end.
    for (QDate day(1, 1, 1); day <= last; day = day.addDays(day.year() >= 1999 && day.year() <= 2032 ? 1 : 199)) {
        const QString found = difference(day.toString(Qt::ISODate) + u"T23:05:00Z"_s);
        QVERIFY2(found.isEmpty(), qUtf8Printable(found));
    }
}

void TestRecordDates::damagedDatesAreReadAsQtReadsThem_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &text : {u"2026-11-13T10:00:00Z"_s, u"2024-02-29T23:59:59.999Z"_s, u"0001-01-01T00:00:00Z"_s,
                                u"9999-12-31T23:59:59.123Z"_s, u"2026-11-13T10:00:00"_s,
                                u"2026-11-13T10:00:00.500+01:00"_s, u"2026-11-13T24:00:00Z"_s, u"2026-11-13"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void TestRecordDates::damagedDatesAreReadAsQtReadsThem()
{
    QFETCH(const QString, text);
    const QStringList texts = mutations(text);
    for (const QString &damaged : texts) {
        const QString found = difference(damaged);
        QVERIFY2(found.isEmpty(), qUtf8Printable(found));
    }
}

ORVEL_TEST_MAIN(QCoreApplication, TestRecordDates)
#include "tst_recorddates.moc"
