#include "logcapture.h"
#include "mcslogger.h"
#include "mcssecurityutils.h"
#include "platform.h"
#include "testmain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Scheduler;
using namespace TestSupport;

namespace {

constexpr auto rightsOfEverybody =
    QFile::Permissions(0x7077); // owner, group and others; not the rights of the current user

QFile::Permissions rights(const QString &path)
{
    return QFile::permissions(path) & rightsOfEverybody;
}

void create(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class SecurityUtilsTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void switchIsOff();
    void switchedOffItSucceedsForAnyPath_data();
    void switchedOffItSucceedsForAnyPath();
    void switchedOffItLeavesTheRightsAlone();
    void newLogFileKeepsTheRightsTheSystemGaveIt();
    void fileGetsOwnerAndGroupRightsOnly();
    void missingFileIsLoggedAndRefused();
    void refusalOfTheSystemIsLoggedWithItsCode();
    void everyFailureHasItsText_data();
    void everyFailureHasItsText();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path;
};

void SecurityUtilsTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(m_directory->isValid());
    m_path = m_directory->filePath(u"100% %1.log"_s);
}

void SecurityUtilsTest::switchIsOff()
{
    QVERIFY(!MCsSecurityUtils::hardeningEnabled);
}

void SecurityUtilsTest::switchedOffItSucceedsForAnyPath_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("empty") << QString();
    QTest::newRow("missing") << u"/no/such/directory/file.log"_s;
    QTest::newRow("directory") << QDir::tempPath();
}

void SecurityUtilsTest::switchedOffItSucceedsForAnyPath()
{
    QFETCH(QString, path);
    const LogCapture capture;

    QVERIFY(MCsSecurityUtils::setFilePermissions(path));
    QCOMPARE(capture.rawMessages(), QStringList());
}

void SecurityUtilsTest::switchedOffItLeavesTheRightsAlone()
{
    create(m_path);
    const auto oddRights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(m_path, oddRights));
    const QFile::Permissions before = rights(m_path);

    QVERIFY(MCsSecurityUtils::setFilePermissions(m_path));
    QCOMPARE(rights(m_path), before);
}

void SecurityUtilsTest::newLogFileKeepsTheRightsTheSystemGaveIt()
{
    const LogCapture capture;
    const QString plainPath = m_directory->filePath(u"plain"_s);
    create(plainPath);

    MCsLogger::instance().setLogFilePath(m_path);
    MCsLogger::instance().info(u"Main"_s, u"first entry"_s);
    MCsLogger::instance().setLogFilePath({});

    QVERIFY(QFile::exists(m_path));
    QCOMPARE(rights(m_path), rights(plainPath));
    QVERIFY(capture.rawMessages().filter(u"Failed to set log file permissions"_s).isEmpty());
}

void SecurityUtilsTest::fileGetsOwnerAndGroupRightsOnly()
{
    const LogCapture capture;
    create(m_path);
    QVERIFY(QFile::setPermissions(m_path, rightsOfEverybody));

    QVERIFY(MCsSecurityUtils::restrictFileAccess(m_path));

    if (modesAreRights)
        QCOMPARE(rights(m_path), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    QCOMPARE(capture.lines(u"MCsSecurityUtils"_s),
             QStringList{u"DEBUG Set file permissions to 0640 (owner rw, group r): "_s + m_path});
}

void SecurityUtilsTest::missingFileIsLoggedAndRefused()
{
    const LogCapture capture;

    QVERIFY(!MCsSecurityUtils::restrictFileAccess(m_path));
    QCOMPARE(capture.lines(u"MCsSecurityUtils"_s), QStringList{u"WARN File does not exist: "_s + m_path});
}

void SecurityUtilsTest::refusalOfTheSystemIsLoggedWithItsCode()
{
    if (!hasKernelFiles)
        QSKIP("no file at hand whose rights not even the administrator may change");
    const LogCapture capture;

    // The rights of this file are fixed, whoever asks: EPERM, which is 1.
    QVERIFY(!MCsSecurityUtils::restrictFileAccess(u"/proc/self/status"_s));
    QCOMPARE(capture.lines(u"MCsSecurityUtils"_s), QStringList{u"ERROR Failed to set file security: 1"_s});
}

void SecurityUtilsTest::everyFailureHasItsText_data()
{
    QTest::addColumn<FileAccessFailure>("failure");
    QTest::addColumn<QString>("text");

    QTest::newRow("token") << FileAccessFailure::ProcessToken << u"Failed to open process token: 1307"_s;
    QTest::newRow("user") << FileAccessFailure::TokenInformation << u"Failed to get token information: 1307"_s;
    QTest::newRow("administrators") << FileAccessFailure::AdminSid << u"Failed to create admin SID: 1307"_s;
    QTest::newRow("list") << FileAccessFailure::Acl << u"Failed to create ACL: 1307"_s;
    QTest::newRow("file") << FileAccessFailure::FileSecurity << u"Failed to set file security: 1307"_s;
}

void SecurityUtilsTest::everyFailureHasItsText()
{
    QFETCH(FileAccessFailure, failure);
    QFETCH(QString, text);

    QCOMPARE(MCsSecurityUtils::failureText({failure, 1307}), text);
}

ORVEL_TEST_MAIN(QCoreApplication, SecurityUtilsTest)

#include "tst_securityutils.moc"
