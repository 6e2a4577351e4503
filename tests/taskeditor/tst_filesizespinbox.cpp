#include "mcsfilesizespinbox.h"
#include "testmain.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <limits>

using namespace Qt::StringLiterals;
using namespace Scheduler;

class TestFileSizeSpinBox : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void startsAtTheLowerLimit();
    void showsBytesInTheUnitThatSuitsThem_data();
    void showsBytesInTheUnitThatSuitsThem();
    void sameBytesFromEveryUnitShowTheSame_data();
    void sameBytesFromEveryUnitShowTheSame();
    void unitDecidesHowAValueIsShown_data();
    void unitDecidesHowAValueIsShown();
    void steppingChangesTheUnit_data();
    void steppingChangesTheUnit();
    void steppingDownEndsAtTheLowerLimit();
    void steppingUpEndsAtTheUpperLimit();
    void typingChangesTheUnit_data();
    void typingChangesTheUnit();
    void typingWithinAUnitLeavesTheTextAlone();
    void valueAboveTheRangeCannotBeTyped();
    void changeOfUnitIsReportedBeforeTheStepThatLedToIt();
    void everySizeIsShownWithinHalfALastDigit();
};

void TestFileSizeSpinBox::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestFileSizeSpinBox::startsAtTheLowerLimit()
{
    const MCsFileSizeSpinBox box;
    QCOMPARE(box.text(), u"200 KB"_s);
    QCOMPARE(box.bytes(), 204800);
    QVERIFY(box.keyboardTracking());
}

void TestFileSizeSpinBox::showsBytesInTheUnitThatSuitsThem_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("shownBytes");
    const auto row = [](const char *name, qint64 bytes, const QString &text, qint64 shownBytes) {
        QTest::newRow(name) << bytes << text << shownBytes;
    };
    row("zero", 0, u"200 KB"_s, 204800);
    row("negative", -1, u"200 KB"_s, 204800);
    row("smallest number", std::numeric_limits<qint64>::min(), u"200 KB"_s, 204800);
    row("below the lower limit", 204799, u"200 KB"_s, 204800);
    row("lower limit", 204800, u"200 KB"_s, 204800);
    row("above the lower limit", 204801, u"200 KB"_s, 204800);
    row("rounded to KB", 205312, u"201 KB"_s, 205824);
    row("one MB", 1048576, u"1024 KB"_s, 1048576);
    row("MB threshold", 2097152, u"2048 KB"_s, 2097152);
    row("above the MB threshold", 2097153, u"2.0 MB"_s, 2097152);
    row("start of a new task", 1073741824, u"1024.0 MB"_s, 1073741824);
    row("no multiple of a tenth", 1000000000, u"953.7 MB"_s, 1000026931);
    row("GB threshold", 2147483648, u"2048.0 MB"_s, 2147483648);
    row("above the GB threshold", 2147483649, u"2.0 GB"_s, 2147483648);
    row("five and a half GB", 5905580032, u"5.5 GB"_s, 5905580032);
    row("upper limit", 10995116277760, u"10240.0 GB"_s, 10995116277760);
    row("above the upper limit", 10995116277761, u"10240.0 GB"_s, 10995116277760);
    row("largest number", std::numeric_limits<qint64>::max(), u"10240.0 GB"_s, 10995116277760);
}

void TestFileSizeSpinBox::showsBytesInTheUnitThatSuitsThem()
{
    QFETCH(const qint64, bytes);
    QFETCH(const QString, text);
    QFETCH(const qint64, shownBytes);
    MCsFileSizeSpinBox box;
    box.setBytes(bytes);
    QCOMPARE(box.text(), text);
    QCOMPARE(box.bytes(), shownBytes);
}

void TestFileSizeSpinBox::sameBytesFromEveryUnitShowTheSame_data()
{
    showsBytesInTheUnitThatSuitsThem_data();
}

void TestFileSizeSpinBox::sameBytesFromEveryUnitShowTheSame()
{
    QFETCH(const qint64, bytes);
    QFETCH(const QString, text);
    QFETCH(const qint64, shownBytes);
    for (const qint64 before : {qint64(500000), qint64(500000000), qint64(500000000000)}) {
        MCsFileSizeSpinBox box;
        box.setBytes(before);
        box.setBytes(bytes);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.bytes(), shownBytes);
        box.setBytes(bytes);
        QCOMPARE(box.text(), text);
    }
}

void TestFileSizeSpinBox::unitDecidesHowAValueIsShown_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("singleStep");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    // The box rounds its limits to the digits that it shows.
    QTest::newRow("KB") << qint64(500000) << u" KB"_s << 0 << 10.0 << 200.0 << 10737418240.0;
    QTest::newRow("MB") << qint64(500000000) << u" MB"_s << 1 << 0.1 << 0.2 << 10485760.0;
    QTest::newRow("GB") << qint64(500000000000) << u" GB"_s << 1 << 0.1 << 0.0 << 10240.0;
}

void TestFileSizeSpinBox::unitDecidesHowAValueIsShown()
{
    QFETCH(const qint64, bytes);
    MCsFileSizeSpinBox box;
    box.setBytes(bytes);
    QTEST(box.suffix(), "suffix");
    QTEST(box.decimals(), "decimals");
    QTEST(box.singleStep(), "singleStep");
    QTEST(box.minimum(), "minimum");
    QTEST(box.maximum(), "maximum");
}

void TestFileSizeSpinBox::steppingChangesTheUnit_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QStringList>("texts");
    constexpr qint64 megabyte = 1048576;
    constexpr qint64 gigabyte = 1073741824;
    QTest::newRow("down from GB to MB") << 21 * gigabyte / 10 + 1 << Qt::Key_Down
                                        << QStringList{u"2048.0 MB"_s, u"2047.9 MB"_s};
    QTest::newRow("down from MB to KB") << 21 * megabyte / 10 + 1 << Qt::Key_Down
                                        << QStringList{u"2048 KB"_s, u"2038 KB"_s};
    QTest::newRow("up from KB to MB") << 2040 * qint64(1024) << Qt::Key_Up << QStringList{u"2.0 MB"_s, u"2.1 MB"_s};
    QTest::newRow("up from the KB threshold")
        << 2048 * qint64(1024) << Qt::Key_Up << QStringList{u"2.0 MB"_s, u"2.1 MB"_s};
    QTest::newRow("up to the KB threshold")
        << 2038 * qint64(1024) << Qt::Key_Up << QStringList{u"2048 KB"_s, u"2.0 MB"_s};
    QTest::newRow("up from MB to GB") << 2048 * megabyte << Qt::Key_Up << QStringList{u"2.0 GB"_s, u"2.1 GB"_s};
    QTest::newRow("within MB") << 100 * megabyte << Qt::Key_Up << QStringList{u"100.1 MB"_s, u"100.2 MB"_s};
}

void TestFileSizeSpinBox::steppingChangesTheUnit()
{
    QFETCH(const qint64, start);
    QFETCH(const Qt::Key, key);
    QFETCH(const QStringList, texts);
    MCsFileSizeSpinBox box;
    box.setBytes(start);
    for (const QString &text : texts) {
        QTest::keyClick(&box, key);
        QCOMPARE(box.text(), text);
    }
}

void TestFileSizeSpinBox::steppingDownEndsAtTheLowerLimit()
{
    MCsFileSizeSpinBox box;
    box.setBytes(qint64(2.1 * 1048576) + 1);
    QCOMPARE(box.text(), u"2.1 MB"_s);
    for (int step = 0; step < 300; ++step)
        box.stepDown();
    QCOMPARE(box.text(), u"200 KB"_s);
    QCOMPARE(box.bytes(), 204800);
}

void TestFileSizeSpinBox::steppingUpEndsAtTheUpperLimit()
{
    MCsFileSizeSpinBox box;
    box.setBytes(10995116277760 - 300000000);
    QCOMPARE(box.text(), u"10239.7 GB"_s);
    for (int step = 0; step < 10; ++step)
        box.stepUp();
    QCOMPARE(box.text(), u"10240.0 GB"_s);
    QCOMPARE(box.bytes(), 10995116277760);
}

void TestFileSizeSpinBox::typingChangesTheUnit_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::newRow("KB to MB") << qint64(204800) << u"4096"_s << u"4.0 MB"_s;
    QTest::newRow("MB to KB, at the first digit") << qint64(1073741824) << u"2"_s << u"2048 KB"_s;
    QTest::newRow("MB to GB") << qint64(1073741824) << u"3072"_s << u"3.0 GB"_s;
    QTest::newRow("GB to MB") << qint64(5368709120) << u"1"_s << u"1024.0 MB"_s;
    QTest::newRow("GB to KB") << qint64(5368709120) << u"0"_s << u"200 KB"_s;
}

void TestFileSizeSpinBox::typingChangesTheUnit()
{
    QFETCH(const qint64, start);
    QFETCH(const QString, typed);
    QFETCH(const QString, text);
    MCsFileSizeSpinBox box;
    box.setBytes(start);
    box.selectAll();
    QTest::keyClicks(&box, typed);
    QCOMPARE(box.text(), text);
}

void TestFileSizeSpinBox::typingWithinAUnitLeavesTheTextAlone()
{
    MCsFileSizeSpinBox box;
    box.setBytes(1073741824);
    box.selectAll();
    QTest::keyClicks(&box, u"5"_s);
    QCOMPARE(box.text(), u"5 MB"_s);
    QCOMPARE(box.bytes(), 5242880);
    QTest::keyClicks(&box, u"7."_s);
    QCOMPARE(box.text(), u"57. MB"_s);
    QCOMPARE(box.bytes(), 59768832);
    QTest::keyClicks(&box, u"25"_s);
    QCOMPARE(box.text(), u"57.2 MB"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.text(), u"57.2 MB"_s);
    QCOMPARE(box.bytes(), qint64(57.2 * 1048576));
}

void TestFileSizeSpinBox::valueAboveTheRangeCannotBeTyped()
{
    MCsFileSizeSpinBox box;
    box.setBytes(10995116277760);
    box.selectAll();
    QTest::keyClicks(&box, u"99999"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.text(), u"9999.0 GB"_s);
    QVERIFY(box.bytes() <= 10995116277760);
}

void TestFileSizeSpinBox::changeOfUnitIsReportedBeforeTheStepThatLedToIt()
{
    MCsFileSizeSpinBox box;
    box.setBytes(2097152);
    QSignalSpy changes(&box, &QDoubleSpinBox::valueChanged);
    box.stepUp();
    QCOMPARE(box.text(), u"2.0 MB"_s);
    // The box answers its own report before anybody else hears of it: the size in the new unit comes first, and the
    // report that led to it, in the old unit, last.
    QCOMPARE(changes, (QList<QVariantList>{{2.0}, {2058.0}}));
    QCOMPARE(box.value(), 2.0);
}

void TestFileSizeSpinBox::everySizeIsShownWithinHalfALastDigit()
{
    MCsFileSizeSpinBox box;
    for (double size = 204800; size < 10995116277760.0; size *= 1.37) {
        const auto bytes = qint64(size);
        box.setBytes(bytes);
        const double unit = bytes > 2147483648 ? 1073741824.0 : bytes > 2097152 ? 1048576.0 : 1024.0;
        const double tolerance = unit / (unit > 1024 ? 20 : 2) + 1;
        QVERIFY2(qAbs(double(box.bytes() - bytes)) <= tolerance, qPrintable(QString::number(bytes)));
    }
}

ORVEL_TEST_MAIN(QApplication, TestFileSizeSpinBox)
#include "tst_filesizespinbox.moc"
