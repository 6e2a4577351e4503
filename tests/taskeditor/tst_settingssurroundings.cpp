#include "mcslasttaskdefaults.h"
#include "platform.h"
#include "taskdialogfixture.h"
#include "testmain.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

const QString screenType = u"task_type.screen_record"_s;
constexpr QFile::Permissions readable(0x5555);
constexpr QFile::Permissions usual(0x7755);

QString directory()
{
    return qEnvironmentVariable("XDG_CONFIG_HOME") + u"/Tamrix Laboratory"_s;
}

QString settingsPath()
{
    return directory() + u"/Orvel Task Scheduler.conf"_s;
}

bool write(const QByteArray &bytes)
{
    QFile file(settingsPath());
    return QDir().mkpath(directory()) && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

/// Settings that cannot be read or written cost what the next new task would have started with, and nothing else.
class TestSettingsSurroundings : public TaskDialogFixture {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void aTaskIsSavedWithAllThatWasTyped_data();
    void aTaskIsSavedWithAllThatWasTyped();
    void whatIsNoSettingsFileCountsAsNone_data();
    void whatIsNoSettingsFileCountsAsNone();
};

void TestSettingsSurroundings::initTestCase()
{
    if (!settingsAreAFile)
        QSKIP("the settings are no file here");
}

void TestSettingsSurroundings::init()
{
    TaskDialogFixture::init();
    QDir(directory()).removeRecursively();
    // Another user can look at the settings as far as the system lets it into the directory for temporary files.
    for (const QString &path :
         {qEnvironmentVariable("XDG_CONFIG_HOME"), QFileInfo(qEnvironmentVariable("XDG_CONFIG_HOME")).path()})
        QVERIFY(QFile::setPermissions(path, usual));
}

void TestSettingsSurroundings::cleanup()
{
    QFile::setPermissions(directory(), usual);
    QDir(directory()).removeRecursively();
    QFile::remove(directory());
    TaskDialogFixture::cleanup();
}

void TestSettingsSurroundings::aTaskIsSavedWithAllThatWasTyped_data()
{
    using Trouble = std::function<bool()>;
    QTest::addColumn<Trouble>("trouble");
    QTest::addColumn<bool>("refused"); // to others than root
    QTest::addColumn<bool>("remembered");
    QTest::newRow("none") << Trouble([] { return true; }) << false << true;
    QTest::newRow("corrupt") << Trouble([] { return write("[LastTask\n=\n\"\\x\xFF\x00%%%[]]\n"_ba); }) << false
                             << true;
    QTest::newRow("a directory in its place")
        << Trouble([] { return QDir().mkpath(settingsPath()); }) << false << false;
    QTest::newRow("a file in the place of its directory") << Trouble([] {
        QFile file(directory());
        return file.open(QIODevice::WriteOnly);
    }) << false << false;
    QTest::newRow("read-only") << Trouble([] {
        return write("[General]\nforeign=1\n") && QFile::setPermissions(settingsPath(), readable);
    }) << true << false;
    QTest::newRow("in a read-only directory")
        << Trouble([] { return write("[General]\nforeign=1\n") && QFile::setPermissions(directory(), readable); })
        << true << false;
    QTest::newRow("missing, in a read-only directory")
        << Trouble([] { return QDir().mkpath(directory()) && QFile::setPermissions(directory(), readable); }) << true
        << false;
}

void TestSettingsSurroundings::aTaskIsSavedWithAllThatWasTyped()
{
    QFETCH(const std::function<bool()>, trouble);
    QFETCH(const bool, refused);
    QFETCH(const bool, remembered);
    QVERIFY(trouble());
    {
        // Root may write everywhere.
        const std::unique_ptr<OtherUser> other = refused ? std::make_unique<OtherUser>() : nullptr;
        openForCreate();
        enterEverything();
        saveSuccessfully();
    }
    const QJsonObject sent = sentTask(u"task.create"_s);
    QCOMPARE(sent.value("name"_L1).toString(), u"Typed"_s);
    QCOMPARE(sent.value("groupId"_L1).toString(), u"g2"_s);
    const QJsonObject params = sent.value("paramsJson"_L1).toObject();
    QCOMPARE(params["startRecordingOn"_L1]["mode"_L1].toString(), u"EveryWeek"_s);
    QCOMPARE(params["actionBeforeAutoStart"_L1]["runProgram"_L1].toString(), u"/bin/typed"_s);
    QCOMPARE(params["outputSettings"_L1]["customFolder"_L1].toString(), u"/typed"_s);
    QCOMPARE(params["dynamicParams"_L1]["fps"_L1].toInt(), 77);

    // The next task of this session can be made as well.
    openForCreate();
    QVERIFY(fps() != nullptr);
    if (!refused)
        QCOMPARE(fps()->value(), remembered ? 77 : 30);
    QVERIFY(widget<QLineEdit>("nameEdit")->isEnabled());
}

void TestSettingsSurroundings::whatIsNoSettingsFileCountsAsNone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes") << QByteArray(4096, '\0');
    QTest::newRow("noise") << "\x7F"
                              "ELF\x02\x01\xFF\xFE[[]]==\\x\n;"_ba;
    QTest::newRow("cut off") << R"([LastTaskDefaults]
task_type.screen_record\dynamicParams="{\"fps)"_ba;
    QTest::newRow("a list longer than any memory") << R"([LastTaskDefaults]
task_type.screen_record\dynamicParams=@Variant(\0\0\0\t\xff\xff\xff\xf0)
)"_ba;
    QTest::newRow("of another form") << "<settings><fps>5</fps></settings>"_ba;
}

void TestSettingsSurroundings::whatIsNoSettingsFileCountsAsNone()
{
    QFETCH(const QByteArray, content);
    QVERIFY(write(content));
    const MCsLastTaskDefaults defaults;
    QCOMPARE(defaults.loadDefaults(screenType), QJsonObject());

    const QJsonObject last{{u"fps"_s, 60}};
    defaults.saveDefaults(screenType, {{u"paramsJson"_s, QJsonObject{{u"dynamicParams"_s, last}}}});
    QCOMPARE(defaults.loadDefaults(screenType), QJsonObject({{u"dynamicParams"_s, last}}));
}

ORVEL_TEST_MAIN(QApplication, TestSettingsSurroundings)
#include "tst_settingssurroundings.moc"
