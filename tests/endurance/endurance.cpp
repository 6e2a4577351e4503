#include "endurance.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace TestSupport {

namespace {

constexpr int warmUpPart = 10;
/// A view has an animation or a timer now and then. What stays behind is one for each of some ten cycles at least.
constexpr int passingObjects = 2;

QtMessageHandler loudHandler = nullptr;

void passAllButDebug(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // The platform without a screen complains of every window.
    const bool ofPlatform = text.startsWith("This plugin does not support"_L1);
    if (type != QtDebugMsg && !ofPlatform && loudHandler != nullptr)
        loudHandler(type, context, text);
}

} // namespace

bool isFullRun()
{
    return qgetenv("ORVEL_ENDURANCE") == "full";
}

Endurance::Endurance(const QString &what, int fullCycles, int shortCycles, const QList<const QObject *> &roots)
    : m_what(what)
    , m_cycles(isFullRun() ? fullCycles : shortCycles)
    , m_roots(roots)
{
}

void Endurance::allow(const Allowance &allowance)
{
    m_allowance = allowance;
}

void Endurance::run(const std::function<void(int cycle)> &step)
{
    const QuietLog quiet;
    m_clock.start();
    const int warmUp = qMax(1, m_cycles / warmUpPart);
    const int half = warmUp + (m_cycles - warmUp) / 2;
    run(0, warmUp, step);
    m_afterWarmUp = footprint(m_roots);
    run(warmUp, half, step);
    m_halfway = footprint(m_roots);
    run(half, m_cycles, step);
    m_atEnd = footprint(m_roots);
    m_elapsedMs = m_clock.elapsed();
}

void Endurance::run(int from, int to, const std::function<void(int cycle)> &step) const
{
    for (int cycle = from; cycle < to && !QTest::currentTestFailed(); ++cycle)
        step(cycle);
}

void Endurance::verify() const
{
    if (QTest::currentTestFailed())
        return;
    // tools/soak collects these lines.
    qInfo().noquote() << u"soak: %1 x %2 in %3 s: from %4 through %5 to %6"_s.arg(
        m_what, QString::number(m_cycles), QString::number(static_cast<double>(m_elapsedMs) / 1000, 'f', 1),
        describe(m_afterWarmUp), describe(m_halfway), describe(m_atEnd));
    verifyCount("descriptors", &Footprint::descriptors);
    verifyCount("threads", &Footprint::threads);
    verifyCount("widgets", &Footprint::widgets);
    verifyCount("objects", &Footprint::objects, passingObjects);
    verifyCount("timers", &Footprint::timers, passingObjects);
    verifyCount("running timers", &Footprint::running, passingObjects);
    verifyHeap();
}

// Qt's idle threads end by themselves, each with a descriptor, so that both earlier moments count.
void Endurance::verifyCount(const char *what, int Footprint::*count, int slack) const
{
    const int before = qMax(m_afterWarmUp.*count, m_halfway.*count);
    const int now = m_atEnd.*count;
    QVERIFY2(now <= before + slack, qPrintable(u"%1: %2, and %3 before"_s.arg(
                                        QString::fromLatin1(what), QString::number(now), QString::number(before))));
}

void Endurance::verifyHeap() const
{
    if (!tellsHeap())
        return;
    const int cycles = m_cycles / 2;
    const qint64 grown = m_atEnd.heapBytes - m_halfway.heapBytes;
    const qint64 allowed = m_allowance.bytes + m_allowance.bytesPerCycle * cycles;
    QVERIFY2(grown <= allowed,
             qPrintable(u"the heap has grown by %1 bytes in %2 cycles, and %3 are allowed"_s.arg(grown).arg(cycles).arg(
                 allowed)));
}

QuietLog::QuietLog()
{
    loudHandler = qInstallMessageHandler(passAllButDebug);
}

QuietLog::~QuietLog()
{
    qInstallMessageHandler(loudHandler);
}

} // namespace TestSupport
