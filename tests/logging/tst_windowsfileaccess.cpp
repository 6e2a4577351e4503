#include "fileaccess.h"
#include "testmain.h"

#include <QStringList>
#include <QTest>

#include <windows.h>

#include <aclapi.h>

#include <new>
#include <string>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// A platform that notes what it is asked, and refuses at one step.
struct Platform {
    FileAccessFailure refusal = FileAccessFailure::None;
    DWORD code = 0;
    DWORD lastError = 0;
    QStringList calls;
    std::wstring path;
};

Platform platform;
int process;
int token;
int user;
int administrators;
ACL list{};

/// Notes the call; whether this is the step that is refused.
bool refused(FileAccessFailure step, const QString &call)
{
    platform.calls.append(call);
    if (platform.refusal != step)
        return false;
    platform.lastError = platform.code;
    return true;
}

/// Releases succeed and change the error code, as they may.
void released(const QString &call)
{
    platform.calls.append(call);
    platform.lastError = 0;
}

QString entryText(const EXPLICIT_ACCESSW &entry)
{
    const void *trustee = entry.Trustee.ptstrName;
    const QString who = trustee == &user ? u"user"_s : trustee == &administrators ? u"administrators"_s : u"nobody"_s;
    const bool plain = entry.grfAccessMode == SET_ACCESS && entry.grfInheritance == NO_INHERITANCE &&
                       entry.Trustee.TrusteeForm == TRUSTEE_IS_SID;
    return u"%1 %2%3"_s.arg(who, QString::number(entry.grfAccessPermissions, 16), plain ? u""_s : u" odd"_s);
}

} // namespace

HANDLE GetCurrentProcess()
{
    return &process;
}

DWORD GetLastError()
{
    return platform.lastError;
}

BOOL CloseHandle(HANDLE handle)
{
    released(handle == &token ? u"close token"_s : u"close something else"_s);
    return 1;
}

void *LocalFree(void *memory)
{
    released(memory == &list ? u"free list"_s : u"free something else"_s);
    return nullptr;
}

BOOL OpenProcessToken(HANDLE ofProcess, DWORD access, HANDLE *result)
{
    if (ofProcess != &process || access != TOKEN_QUERY || refused(FileAccessFailure::ProcessToken, u"open token"_s))
        return 0;
    *result = &token;
    return 1;
}

BOOL GetTokenInformation(HANDLE ofToken, TOKEN_INFORMATION_CLASS kind, void *buffer, DWORD size, DWORD *needed)
{
    *needed = sizeof(TOKEN_USER);
    if (ofToken != &token || kind != TokenUser || buffer == nullptr || size < sizeof(TOKEN_USER)) {
        platform.calls.append(buffer == nullptr ? u"ask size"_s : u"odd question"_s);
        platform.lastError = 122;
        return 0;
    }
    if (refused(FileAccessFailure::TokenInformation, u"ask user"_s))
        return 0;
    new (buffer) TOKEN_USER{{&user, 0}};
    return 1;
}

BOOL AllocateAndInitializeSid(SID_IDENTIFIER_AUTHORITY *authority, BYTE count, DWORD first, DWORD second, DWORD, DWORD,
                              DWORD, DWORD, DWORD, DWORD, PSID *result)
{
    const QString call = u"make identifier %1-%2-%3-%4"_s.arg(authority->Value[5]).arg(count).arg(first).arg(second);
    if (refused(FileAccessFailure::AdminSid, call))
        return 0;
    *result = &administrators;
    return 1;
}

void *FreeSid(PSID identifier)
{
    released(identifier == &administrators ? u"free identifier"_s : u"free something else"_s);
    return nullptr;
}

DWORD SetEntriesInAclW(ULONG count, EXPLICIT_ACCESSW *entries, PACL oldList, PACL *newList)
{
    QStringList texts;
    for (ULONG i = 0; i < count; ++i)
        texts.append(entryText(entries[i]));
    const QString call = u"make list ("_s + texts.join(u", "_s) + (oldList == nullptr ? u")"_s : u") on another"_s);
    if (refused(FileAccessFailure::Acl, call))
        return platform.code;
    *newList = &list;
    return ERROR_SUCCESS;
}

DWORD SetNamedSecurityInfoW(LPWSTR path, SE_OBJECT_TYPE type, DWORD parts, PSID owner, PSID group, PACL newList,
                            PACL systemList)
{
    platform.path = path;
    const bool onlyList = owner == nullptr && group == nullptr && newList == &list && systemList == nullptr;
    const QString call =
        u"set %1 %2%3"_s.arg(QString::number(type), QString::number(parts, 16), onlyList ? u""_s : u" and more"_s);
    return refused(FileAccessFailure::FileSecurity, call) ? platform.code : ERROR_SUCCESS;
}

class WindowsFileAccessTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void userAndAdministratorsAreAllThatApplies();
    void refusalEndsItAndEverythingIsReleased_data();
    void refusalEndsItAndEverythingIsReleased();
};

void WindowsFileAccessTest::init()
{
    platform = {};
}

void WindowsFileAccessTest::userAndAdministratorsAreAllThatApplies()
{
    const FileAccessResult result = restrictFileAccessOnWindows(L"C:\\logs\\\u00E4.log");

    QCOMPARE(result.failure, FileAccessFailure::None);
    QCOMPARE(result.code, 0UL);
    const QStringList expected{
        u"open token"_s,
        u"ask size"_s,
        u"ask user"_s,
        u"make identifier 5-2-32-544"_s,
        u"make list (user c0000000, administrators 80000000)"_s,
        u"set 1 80000004"_s,
        u"free list"_s,
        u"free identifier"_s,
        u"close token"_s,
    };
    QCOMPARE(platform.calls, expected);
    QVERIFY(platform.path == L"C:\\logs\\\u00E4.log");
}

void WindowsFileAccessTest::refusalEndsItAndEverythingIsReleased_data()
{
    QTest::addColumn<FileAccessFailure>("step");
    QTest::addColumn<QStringList>("releases");

    QTest::newRow("token") << FileAccessFailure::ProcessToken << QStringList();
    QTest::newRow("user") << FileAccessFailure::TokenInformation << QStringList{u"close token"_s};
    QTest::newRow("identifier") << FileAccessFailure::AdminSid << QStringList{u"close token"_s};
    QTest::newRow("list") << FileAccessFailure::Acl << QStringList{u"free identifier"_s, u"close token"_s};
    QTest::newRow("file") << FileAccessFailure::FileSecurity
                          << QStringList{u"free list"_s, u"free identifier"_s, u"close token"_s};
}

void WindowsFileAccessTest::refusalEndsItAndEverythingIsReleased()
{
    QFETCH(FileAccessFailure, step);
    QFETCH(QStringList, releases);
    platform.refusal = step;
    platform.code = 1307;

    const FileAccessResult result = restrictFileAccessOnWindows(L"x.log");

    QCOMPARE(result.failure, step);
    QCOMPARE(result.code, 1307UL);
    QCOMPARE(platform.calls.filter(u"free "_s) + platform.calls.filter(u"close "_s), releases);
}

ORVEL_TEST_MAIN(QCoreApplication, WindowsFileAccessTest)

#include "tst_windowsfileaccess.moc"
