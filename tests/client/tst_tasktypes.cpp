#include "tasktypes.h"
#include "testmain.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// Translates every text to one that shows its context.
class MarkingTranslator : public QTranslator {
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return u"%1|%2"_s.arg(QLatin1StringView(context), QLatin1StringView(sourceText));
    }

    bool isEmpty() const override
    {
        return false;
    }
};

} // namespace

class TestTaskTypes : public QObject {
    Q_OBJECT

private slots:
    void allowedTypesAreTheSixInOrder();
    void allowedTypesAreComparedWithCase();
    void displayNameOfType_data();
    void displayNameOfType();
    void displayNameFollowsTheTranslationOfTheTaskDialog_data();
    void displayNameFollowsTheTranslationOfTheTaskDialog();
    void allTypesTextStaysEnglishWithATranslatorInstalled();
};

void TestTaskTypes::allowedTypesAreTheSixInOrder()
{
    const QStringList expected{u"task_type.audio_record"_s, u"task_type.screen_record"_s, u"task_type.zentaDesk"_s,
                               u"task_type.pdf_convert"_s,  u"task_type.test"_s,          u"task_type.all"_s};
    QStringList changed = allowedTaskTypes();
    QCOMPARE(changed, expected);
    changed.clear();
    QCOMPARE(allowedTaskTypes(), expected);
    QCOMPARE(allTaskTypesId.toString(), u"task_type.all"_s);
}

void TestTaskTypes::allowedTypesAreComparedWithCase()
{
    QVERIFY(allowedTaskTypes().contains(u"task_type.test"_s));
    QVERIFY(!allowedTaskTypes().contains(u"TASK_TYPE.TEST"_s));
}

void TestTaskTypes::displayNameOfType_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::newRow("test") << u"task_type.test"_s << u"Test Task"_s;
    QTest::newRow("screen") << u"task_type.screen_record"_s << u"Screen Recorder"_s;
    QTest::newRow("audio") << u"task_type.audio_record"_s << u"Audio Recorder"_s;
    QTest::newRow("desk") << u"task_type.zentaDesk"_s << u"Custom"_s;
    QTest::newRow("pdf") << u"task_type.pdf_convert"_s << u"Custom"_s;
    QTest::newRow("all") << u"task_type.all"_s << u"Custom"_s;
    QTest::newRow("known to the daemon only") << u"task_type.backup"_s << u"Custom"_s;
    QTest::newRow("empty") << QString() << u"Custom"_s;
    QTest::newRow("other case") << u"task_type.Test"_s << u"Custom"_s;
    QTest::newRow("with a blank") << u"task_type.test "_s << u"Custom"_s;
    QTest::newRow("beginning only") << u"task_type.tes"_s << u"Custom"_s;
}

void TestTaskTypes::displayNameOfType()
{
    QFETCH(const QString, id);
    QFETCH(const QString, name);
    QCOMPARE(taskTypeDisplayName(id), name);
}

void TestTaskTypes::displayNameFollowsTheTranslationOfTheTaskDialog_data()
{
    displayNameOfType_data();
}

void TestTaskTypes::displayNameFollowsTheTranslationOfTheTaskDialog()
{
    QFETCH(const QString, id);
    QFETCH(const QString, name);
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const auto removal = qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
    QCOMPARE(taskTypeDisplayName(id), u"Scheduler::MCsTaskDialog|"_s + name);
}

void TestTaskTypes::allTypesTextStaysEnglishWithATranslatorInstalled()
{
    QCOMPARE(allTypesText, u"All Types"_s);
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const auto removal = qScopeGuard([&translator] { QCoreApplication::removeTranslator(&translator); });
    QCOMPARE(QObject::tr("All Types"), u"QObject|All Types"_s);
    QCOMPARE(allTypesText, u"All Types"_s);
}

ORVEL_TEST_MAIN(QCoreApplication, TestTaskTypes)
#include "tst_tasktypes.moc"
