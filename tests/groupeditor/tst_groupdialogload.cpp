#include "groupdialogfixture.h"
#include "testmain.h"

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

QStringList itemTexts(const QComboBox *combo)
{
    QStringList texts;
    for (int index = 0; index < combo->count(); ++index)
        texts.append(combo->itemText(index));
    return texts;
}

QStringList itemIds(const QComboBox *combo)
{
    QStringList ids;
    for (int index = 0; index < combo->count(); ++index)
        ids.append(combo->itemData(index).toString());
    return ids;
}

} // namespace

class TestGroupDialogLoad : public GroupDialogFixture {
    Q_OBJECT

private slots:
    void creatingAsksForTheGroupsOfItsTaskTypeOnly();
    void editingAsksForTheGroupsOfNoTypeAndThenForTheGroup();
    void parentsKeepTheOrderOfTheDaemonAndMarkThoseWithAParent();
    void groupItselfAndUngroupedAreNoParents();
    void groupIsLoadedIntoTheForm();
    void parentIsFoundByItsExactId_data();
    void parentIsFoundByItsExactId();
    void loadedValuesStayWithinTheLimitsOfTheFields();
    void failedLoadGivesAnEmptyForm();
    void withoutAConnectionNothingIsAsked_data();
    void withoutAConnectionNothingIsAsked();
    void namesAreShownAsTheyAre();
    void longNamesDoNotWidenTheDialog();
};

void TestGroupDialogLoad::creatingAsksForTheGroupsOfItsTaskTypeOnly()
{
    openForCreate();
    QCOMPARE(m_daemon->commands(), QStringList{u"group.listByTaskType"_s});
    QCOMPARE(m_daemon->requests().first().value("payload"_L1).toObject(),
             (QJsonObject{{u"taskType"_s, u"task_type.record"_s}}));
}

void TestGroupDialogLoad::editingAsksForTheGroupsOfNoTypeAndThenForTheGroup()
{
    openForEdit();
    QCOMPARE(m_daemon->commands(), (QStringList{u"group.listByTaskType"_s, u"group.get"_s}));
    QCOMPARE(m_daemon->requests().at(0).value("payload"_L1).toObject(), (QJsonObject{{u"taskType"_s, QString()}}));
    QCOMPARE(m_daemon->requests().at(1).value("payload"_L1).toObject(), (QJsonObject{{u"groupId"_s, u"g1"_s}}));
}

void TestGroupDialogLoad::parentsKeepTheOrderOfTheDaemonAndMarkThoseWithAParent()
{
    answerGroupList({groupRecord(u"c"_s, u"Child"_s, u"p"_s), groupRecord(u"z"_s, u"Zeta"_s),
                     groupRecord(u"p"_s, u"Parent"_s), groupRecord(u"d"_s, u"Grandchild"_s, u"c"_s)});
    openForCreate();
    QCOMPARE(itemTexts(parentGroup()),
             (QStringList{u"(None - Top Level)"_s, u"  → Child"_s, u"Zeta"_s, u"Parent"_s, u"  → Grandchild"_s}));
    QCOMPARE(itemIds(parentGroup()), (QStringList{QString(), u"c"_s, u"z"_s, u"p"_s, u"d"_s}));
    QCOMPARE(parentGroup()->currentIndex(), 0);
}

void TestGroupDialogLoad::groupItselfAndUngroupedAreNoParents()
{
    answerGroupList({groupRecord(u"ungrouped"_s, u"Ungrouped"_s), groupRecord(u"g1"_s, u"Nightly"_s),
                     groupRecord(u"G1"_s, u"Other"_s), groupRecord(u"Ungrouped"_s, u"Named so"_s),
                     groupRecord(u"c"_s, u"Own child"_s, u"g1"_s)});
    openForEdit();
    QCOMPARE(itemIds(parentGroup()), (QStringList{QString(), u"G1"_s, u"Ungrouped"_s, u"c"_s}));
}

void TestGroupDialogLoad::groupIsLoadedIntoTheForm()
{
    answerGroupList({groupRecord(u"a"_s, u"A"_s), groupRecord(u"b"_s, u"B"_s)});
    answerGroup({{u"parentId"_s, u"b"_s}, {u"description"_s, u"<b>two</b>\nlines"_s}});
    openForEdit();
    QCOMPARE(name()->text(), u"Nightly"_s);
    QCOMPARE(description()->toPlainText(), u"<b>two</b>\nlines"_s);
    QCOMPARE(displayOrder()->value(), 5);
    QCOMPARE(color()->styleSheet(), u"background-color: #e74c3c; color: white;"_s);
    QCOMPARE(parentGroup()->currentText(), u"B"_s);
}

void TestGroupDialogLoad::parentIsFoundByItsExactId_data()
{
    QTest::addColumn<QString>("parentId");
    QTest::addColumn<QString>("selected");
    QTest::newRow("exact") << u"gB"_s << u"gB"_s;
    QTest::newRow("other case") << u"gb"_s << QString();
    QTest::newRow("part of an id") << u"g"_s << QString();
    QTest::newRow("not in the list") << u"gC"_s << QString();
    QTest::newRow("none") << QString() << QString();
}

void TestGroupDialogLoad::parentIsFoundByItsExactId()
{
    QFETCH(const QString, parentId);
    QFETCH(const QString, selected);
    answerGroupList({groupRecord(u"gA"_s, u"A"_s), groupRecord(u"gB"_s, u"B"_s)});
    answerGroup({{u"parentId"_s, parentId}});
    openForEdit();
    QCOMPARE(parentGroup()->currentData().toString(), selected);
}

void TestGroupDialogLoad::loadedValuesStayWithinTheLimitsOfTheFields()
{
    answerGroup({{u"name"_s, QString(150, u'n')}, {u"displayOrder"_s, 20000}});
    openForEdit();
    QCOMPARE(name()->text(), QString(100, u'n'));
    QCOMPARE(displayOrder()->value(), 9999);
}

void TestGroupDialogLoad::failedLoadGivesAnEmptyForm()
{
    m_daemon->refuse(u"group.get"_s, u"NOT_FOUND"_s, u"gone"_s);
    openForEdit();
    QCOMPARE(name()->text(), QString());
    QCOMPARE(description()->toPlainText(), QString());
    QCOMPARE(displayOrder()->value(), 0);
    QCOMPARE(parentGroup()->currentIndex(), 0);
    QCOMPARE(color()->styleSheet(), u"background-color: #3498db; color: white;"_s);
}

void TestGroupDialogLoad::withoutAConnectionNothingIsAsked_data()
{
    QTest::addColumn<bool>("hasClient");
    QTest::newRow("client without a connection") << true;
    QTest::newRow("no client") << false;
}

void TestGroupDialogLoad::withoutAConnectionNothingIsAsked()
{
    QFETCH(const bool, hasClient);
    answerGroupList({groupRecord(u"a"_s, u"A"_s)});
    if (hasClient)
        m_client->disconnectFromDaemon();
    else
        m_client.reset();
    openForEdit();
    QCOMPARE(itemTexts(parentGroup()), QStringList{u"(None - Top Level)"_s});
    QCOMPARE(name()->text(), QString());
    openForCreate();
    QCOMPARE(itemTexts(parentGroup()), QStringList{u"(None - Top Level)"_s});
    if (hasClient)
        QCOMPARE(m_client->lastErrorCode(), QString());
    QCOMPARE(m_daemon->commands(), QStringList());
}

void TestGroupDialogLoad::namesAreShownAsTheyAre()
{
    const QString markup = u"<b>x</b> & 50% %1"_s;
    answerGroupList({groupRecord(u"a"_s, markup), groupRecord(u"b"_s, markup, u"a"_s)});
    answerGroup({{u"name"_s, markup}});
    openForEdit();
    QCOMPARE(name()->text(), markup);
    QCOMPARE(itemTexts(parentGroup()).mid(1), (QStringList{markup, u"  → "_s + markup}));
}

void TestGroupDialogLoad::longNamesDoNotWidenTheDialog()
{
    answerGroupList({groupRecord(u"a"_s, QString(5000, u'W'))});
    answerGroup({{u"parentId"_s, u"a"_s}});
    openForEdit();
    QCOMPARE(parentGroup()->currentIndex(), 1);
    QCOMPARE(m_dialog->width(), 500);
}

ORVEL_TEST_MAIN(QApplication, TestGroupDialogLoad)
#include "tst_groupdialogload.moc"
