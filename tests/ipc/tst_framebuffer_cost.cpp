#include "mcsframebuffer.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QIODevice>
#include <QTest>

#include <cstring>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// How the bytes come in: handed over, or read from a device.
enum class Feed { Append, Device };

/// Never offers more than a piece at once, as a socket does.
class PieceDevice : public QIODevice {
public:
    PieceDevice(const QByteArray &bytes, qsizetype piece)
        : m_bytes(bytes)
        , m_piece(piece)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override
    {
        return true;
    }
    [[nodiscard]] qint64 bytesAvailable() const override
    {
        return qMin(m_piece, m_bytes.size() - m_position);
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 count = qMin(maxSize, bytesAvailable());
        std::memcpy(data, m_bytes.constData() + m_position, static_cast<size_t>(count));
        m_position += static_cast<qsizetype>(count);
        return count;
    }
    qint64 writeData(const char * /*data*/, qint64 /*maxSize*/) override
    {
        return -1;
    }

private:
    QByteArray m_bytes;
    qsizetype m_piece;
    qsizetype m_position = 0;
};

constexpr qsizetype hugeSize = 64 * 1024 * 1024;

/// A time that only work of another order than the bytes can use up: one pass over 64 MiB, many times over. Searching
/// or moving all of it for each of ten thousand pieces or frames would take thousands of passes.
qint64 generousBudgetMs()
{
    const QByteArray bytes = QByteArray(hugeSize, 'x') + '\n';
    QElapsedTimer clock;
    clock.start();
    MCsFrameBuffer buffer;
    buffer.append(bytes);
    if (!buffer.takeFrame())
        return 0;
    constexpr qint64 ratio = 100;
    return ratio * qMax<qint64>(clock.elapsed(), 5);
}

} // namespace

/// Framing costs time in proportion to the bytes, whatever the sizes of frames and reads.
class TestFrameBufferCost : public QObject {
    Q_OBJECT

private slots:
    void tenThousandFramesInOneReadDoNotEachMoveTheRest();
    void hugeFrameInSmallPiecesIsNotSearchedAnew_data();
    void hugeFrameInSmallPiecesIsNotSearchedAnew();
};

void TestFrameBufferCost::tenThousandFramesInOneReadDoNotEachMoveTheRest()
{
    constexpr int count = 10000;
    const QByteArray frame = QByteArray(hugeSize / count, 'x') + '\n';
    const qint64 budget = generousBudgetMs();
    QVERIFY(budget > 0);
    MCsFrameBuffer buffer;
    buffer.append(frame.repeated(count));
    QElapsedTimer clock;
    clock.start();
    for (int number = 0; number < count; ++number) {
        QVERIFY(buffer.takeFrame());
        QVERIFY2(clock.elapsed() < budget, qPrintable(u"too slow at frame %1"_s.arg(number)));
    }
    QCOMPARE(buffer.size(), 0);
}

void TestFrameBufferCost::hugeFrameInSmallPiecesIsNotSearchedAnew_data()
{
    QTest::addColumn<Feed>("way");
    QTest::newRow("append") << Feed::Append;
    QTest::newRow("device") << Feed::Device;
}

void TestFrameBufferCost::hugeFrameInSmallPiecesIsNotSearchedAnew()
{
    QFETCH(const Feed, way);
    constexpr qsizetype piece = 4096;
    const QByteArray bytes = QByteArray(hugeSize - 1, 'x') + '\n';
    const qint64 budget = generousBudgetMs();
    QVERIFY(budget > 0);

    PieceDevice device(bytes, piece);
    MCsFrameBuffer buffer;
    QElapsedTimer clock;
    clock.start();
    for (qsizetype position = 0; position < bytes.size(); position += piece) {
        QVERIFY(!buffer.takeFrame());
        if (way == Feed::Append)
            buffer.append(QByteArrayView(bytes).sliced(position, piece));
        else
            QCOMPARE(buffer.readFrom(device), piece);
        QVERIFY2(clock.elapsed() < budget, qPrintable(u"too slow at byte %1"_s.arg(position)));
    }
    const std::optional<QByteArray> frame = buffer.takeFrame();
    QVERIFY(frame);
    QCOMPARE(frame->size(), hugeSize - 1);
    QCOMPARE(buffer.size(), 0);
}

ORVEL_TEST_MAIN(QCoreApplication, TestFrameBufferCost)
#include "tst_framebuffer_cost.moc"
