#include "mcsframebuffer.h"
#include "testmain.h"

#include <QBuffer>
#include <QByteArrayList>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// How the bytes come in: handed over, or read from a device.
enum class Feed { Append, Device };

void feed(MCsFrameBuffer &buffer, const QByteArray &bytes, Feed way)
{
    if (way == Feed::Append) {
        buffer.append(bytes);
        return;
    }
    QBuffer device;
    device.setData(bytes);
    QVERIFY(device.open(QIODevice::ReadOnly));
    QCOMPARE(buffer.readFrom(device), bytes.size());
}

QByteArrayList takeAll(MCsFrameBuffer &buffer)
{
    QByteArrayList frames;
    while (const std::optional<QByteArray> frame = buffer.takeFrame())
        frames.append(*frame);
    return frames;
}

} // namespace

class TestFrameBuffer : public QObject {
    Q_OBJECT

private slots:
    void framesAreTheSameWhereverTheBytesAreSplit_data();
    void framesAreTheSameWhereverTheBytesAreSplit();
    void frameByteByByteComesWithItsLastByte();
    void emptyBufferHasNoFrame();
    void sizeCountsWhatIsNotTaken();
    void clearForgetsTheUnfinishedFrame();
    void clearForgetsWhereTheSearchWas();
    void failingDeviceAddsNothing();
    void tenThousandFramesInOneReadComeInOrder();
    void framesAcrossReadsDoNotPileUp();
};

void TestFrameBuffer::framesAreTheSameWhereverTheBytesAreSplit_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArrayList>("frames");
    QTest::addColumn<qsizetype>("rest");

    QTest::newRow("one frame") << "{\"a\":1}\n"_ba << QByteArrayList{"{\"a\":1}"} << qsizetype(0);
    QTest::newRow("two glued frames") << "{}\n[1]\n"_ba << QByteArrayList{"{}", "[1]"} << qsizetype(0);
    QTest::newRow("empty line between") << "{}\n\n[1]\n"_ba << QByteArrayList{"{}", "[1]"} << qsizetype(0);
    QTest::newRow("empty lines around") << "\n\n{}\n\n\n"_ba << QByteArrayList{"{}"} << qsizetype(0);
    QTest::newRow("nothing but empty lines") << "\n\n\n"_ba << QByteArrayList{} << qsizetype(0);
    QTest::newRow("carriage return stays") << "{}\r\n"_ba << QByteArrayList{"{}\r"} << qsizetype(0);
    QTest::newRow("lone carriage return") << "\r\n\n\r\n"_ba << QByteArrayList{"\r", "\r"} << qsizetype(0);
    QTest::newRow("unfinished frame") << "{}\n{\"a\""_ba << QByteArrayList{"{}"} << qsizetype(4);
    QTest::newRow("unfinished from the start") << "{\"a\":"_ba << QByteArrayList{} << qsizetype(5);
    QTest::newRow("UTF-8 of four bytes") << "\"\xF0\x9F\x93\x85\"\n{}\n"_ba
                                         << QByteArrayList{"\"\xF0\x9F\x93\x85\"", "{}"} << qsizetype(0);
    QTest::newRow("not UTF-8") << "\xFF\xFE\xC3\n\x80\n"_ba << QByteArrayList{"\xFF\xFE\xC3", "\x80"} << qsizetype(0);
    QTest::newRow("zero bytes") << QByteArray("a\0b\n\0\n", 6)
                                << QByteArrayList{QByteArray("a\0b", 3), QByteArray("\0", 1)} << qsizetype(0);
}

void TestFrameBuffer::framesAreTheSameWhereverTheBytesAreSplit()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QByteArrayList, frames);
    QFETCH(const qsizetype, rest);

    for (const Feed way : {Feed::Append, Feed::Device}) {
        for (qsizetype first = 0; first <= bytes.size(); ++first) {
            for (qsizetype second = first; second <= bytes.size(); ++second) {
                MCsFrameBuffer buffer;
                QByteArrayList taken;
                for (const QByteArray &piece :
                     {bytes.first(first), bytes.sliced(first, second - first), bytes.sliced(second)}) {
                    feed(buffer, piece, way);
                    taken += takeAll(buffer);
                }
                QCOMPARE(taken, frames);
                QCOMPARE(buffer.size(), rest);
            }
        }
    }
}

void TestFrameBuffer::frameByteByByteComesWithItsLastByte()
{
    const QByteArray body = R"({"id":"a","ok":true})";
    MCsFrameBuffer buffer;
    for (const char byte : body) {
        buffer.append(QByteArray(1, byte));
        QVERIFY(!buffer.takeFrame());
    }
    buffer.append("\n");
    QCOMPARE(buffer.takeFrame().value_or(QByteArray()), body);
    QVERIFY(!buffer.takeFrame());
}

void TestFrameBuffer::emptyBufferHasNoFrame()
{
    MCsFrameBuffer buffer;
    QVERIFY(!buffer.takeFrame());
    buffer.append("");
    QVERIFY(!buffer.takeFrame());
    QCOMPARE(buffer.size(), 0);
}

void TestFrameBuffer::sizeCountsWhatIsNotTaken()
{
    MCsFrameBuffer buffer;
    buffer.append("one\ntwo\nthr");
    QCOMPARE(buffer.size(), 11);
    QCOMPARE(buffer.takeFrame().value_or(QByteArray()), "one");
    QCOMPARE(buffer.size(), 7);
    buffer.append("ee\n");
    QCOMPARE(buffer.size(), 10);
    QCOMPARE(takeAll(buffer), (QByteArrayList{"two", "three"}));
    QCOMPARE(buffer.size(), 0);
}

void TestFrameBuffer::clearForgetsTheUnfinishedFrame()
{
    MCsFrameBuffer buffer;
    buffer.append("old half");
    QVERIFY(!buffer.takeFrame());
    buffer.clear();
    QCOMPARE(buffer.size(), 0);
    buffer.append("new\n");
    QCOMPARE(takeAll(buffer), QByteArrayList{"new"});
}

void TestFrameBuffer::clearForgetsWhereTheSearchWas()
{
    MCsFrameBuffer buffer;
    buffer.append("a long first frame\nsecond\nhalf");
    QVERIFY(buffer.takeFrame());
    buffer.clear();
    buffer.append("a\nb\n");
    QCOMPARE(takeAll(buffer), (QByteArrayList{"a", "b"}));
}

void TestFrameBuffer::failingDeviceAddsNothing()
{
    MCsFrameBuffer buffer;
    buffer.append("ha");
    QBuffer closed;
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::read (QBuffer): device not open");
    QCOMPARE(buffer.readFrom(closed), 0);
    buffer.append("lf\n");
    QCOMPARE(takeAll(buffer), QByteArrayList{"half"});
}

void TestFrameBuffer::tenThousandFramesInOneReadComeInOrder()
{
    constexpr int count = 10000;
    QByteArray bytes;
    for (int number = 0; number < count; ++number)
        bytes += "{\"n\":" + QByteArray::number(number) + "}\n";
    MCsFrameBuffer buffer;
    buffer.append(bytes);
    for (int number = 0; number < count; ++number)
        QCOMPARE(buffer.takeFrame().value_or(QByteArray()), "{\"n\":" + QByteArray::number(number) + '}');
    QVERIFY(!buffer.takeFrame());
}

void TestFrameBuffer::framesAcrossReadsDoNotPileUp()
{
    // Every read holds the end of one frame and the start of the next, so the buffer is never empty.
    MCsFrameBuffer buffer;
    buffer.append("start");
    constexpr int count = 10000;
    for (int number = 0; number < count; ++number) {
        buffer.append("end\nstart");
        QCOMPARE(takeAll(buffer), QByteArrayList{"startend"});
        QCOMPARE(buffer.size(), 5);
    }
}

ORVEL_TEST_MAIN(QCoreApplication, TestFrameBuffer)
#include "tst_framebuffer.moc"
