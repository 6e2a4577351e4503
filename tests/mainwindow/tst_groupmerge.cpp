#include "groupmerge.h"
#include "testmain.h"

#include <QCoreApplication>

#include <limits>

using namespace Scheduler;
using namespace Qt::StringLiterals;

namespace {

GroupInfo group(const QString &id, const QString &name, int tasks, int enabled)
{
    GroupInfo info;
    info.id = id;
    info.name = name;
    info.color = u"#0000%1"_s.arg(id);
    info.parentId = u"parent of "_s + id;
    info.taskCount = tasks;
    info.enabledTaskCount = enabled;
    return info;
}

} // namespace

class TestGroupMerge : public QObject {
    Q_OBJECT

private slots:
    void theFirstGroupOfANameStandsForAll();
    void countsBeyondAnIntegerEndAtItsLimits();
    void theResultIsInOrderOfNames();
    void namesThatDifferInCaseAreDifferent();
    void nothingGivesNothing();
};

void TestGroupMerge::theFirstGroupOfANameStandsForAll()
{
    const QList<GroupInfo> merged = mergedByName(
        {group(u"11"_s, u"Work"_s, 3, 1), group(u"22"_s, u"Work"_s, 4, 2), group(u"33"_s, u"Work"_s, 0, 0)});
    QCOMPARE(merged.size(), 1);
    QCOMPARE(merged.first().id, u"11"_s);
    QCOMPARE(merged.first().color, u"#000011"_s);
    QCOMPARE(merged.first().parentId, u"parent of 11"_s);
    QCOMPARE(merged.first().taskCount, 7);
    QCOMPARE(merged.first().enabledTaskCount, 3);
}

void TestGroupMerge::countsBeyondAnIntegerEndAtItsLimits()
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    const QList<GroupInfo> merged =
        mergedByName({group(u"11"_s, u"Work"_s, most, least), group(u"22"_s, u"Work"_s, 1, -1)});
    QCOMPARE(merged.first().taskCount, most);
    QCOMPARE(merged.first().enabledTaskCount, least);
}

void TestGroupMerge::theResultIsInOrderOfNames()
{
    const QList<GroupInfo> merged =
        mergedByName({group(u"11"_s, u"b"_s, 1, 1), group(u"22"_s, u"a"_s, 1, 1), group(u"33"_s, u"C"_s, 1, 1)});
    QStringList names;
    for (const GroupInfo &info : merged)
        names.append(info.name);
    QCOMPARE(names, QStringList({u"C"_s, u"a"_s, u"b"_s}));
}

void TestGroupMerge::namesThatDifferInCaseAreDifferent()
{
    QCOMPARE(mergedByName({group(u"11"_s, u"Work"_s, 1, 1), group(u"22"_s, u"work"_s, 1, 1)}).size(), 2);
}

void TestGroupMerge::nothingGivesNothing()
{
    QVERIFY(mergedByName({}).isEmpty());
}

ORVEL_TEST_MAIN(QCoreApplication, TestGroupMerge)
#include "tst_groupmerge.moc"
