#include "fileaccess.h"
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <windows.h>

#include <aclapi.h>

#include <cstddef>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Scheduler;

namespace {

/// An entry of a list of rights.
struct Entry {
    int type = -1;
    int flags = -1;
    DWORD rights = 0;
    QByteArray identifier;
};

QByteArray bytesOf(PSID identifier)
{
    return {static_cast<const char *>(identifier), static_cast<qsizetype>(GetLengthSid(identifier))};
}

std::vector<Entry> entriesOf(PACL list)
{
    std::vector<Entry> entries;
    for (DWORD index = 0; list != nullptr && index < list->AceCount; ++index) {
        void *place = nullptr;
        if (!GetAce(list, index, &place))
            return {};
        auto *entry = static_cast<ACCESS_ALLOWED_ACE *>(place); // a denial has the same form
        entries.push_back({entry->Header.AceType, entry->Header.AceFlags, entry->Mask, bytesOf(&entry->SidStart)});
    }
    return entries;
}

/// What the last list was that the system was asked to set. Some systems store less than that.
struct Asked {
    SECURITY_INFORMATION parts = 0;
    std::vector<Entry> entries;
} asked;

DWORD WINAPI noteAndSet(LPWSTR path, SE_OBJECT_TYPE type, SECURITY_INFORMATION parts, PSID owner, PSID group, PACL list,
                        PACL systemList)
{
    asked = {parts, entriesOf(list)};
    static const auto set = reinterpret_cast<decltype(&SetNamedSecurityInfoW)>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"advapi32.dll"), "SetNamedSecurityInfoW")));
    return set(path, type, parts, owner, group, list, systemList);
}

QByteArray wellKnown(WELL_KNOWN_SID_TYPE type)
{
    QByteArray identifier(SECURITY_MAX_SID_SIZE, '\0');
    auto size = static_cast<DWORD>(identifier.size());
    if (!CreateWellKnownSid(type, nullptr, identifier.data(), &size))
        return {};
    identifier.truncate(static_cast<qsizetype>(size));
    return identifier;
}

QByteArray ownUser()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size); // fails, and tells the size
    const auto user = std::make_unique<std::byte[]>(size);
    const bool told = GetTokenInformation(token, TokenUser, user.get(), size, &size);
    CloseHandle(token);
    return told ? bytesOf(reinterpret_cast<TOKEN_USER *>(user.get())->User.Sid) : QByteArray();
}

/// The list that the system has for the file.
std::vector<Entry> storedFor(const QString &path)
{
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    std::wstring name = path.toStdWString();
    if (GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list, nullptr,
                              &descriptor) != ERROR_SUCCESS)
        return {};
    std::vector<Entry> entries = entriesOf(list);
    LocalFree(descriptor);
    return entries;
}

} // namespace

// The compiler calls a function of a DLL through a pointer of this name, and takes ours before that of the library.
extern "C" {
decltype(&SetNamedSecurityInfoW) __imp_SetNamedSecurityInfoW = &noteAndSet;
}

/// The rights of a log file, with the system's own functions.
class TestWindowsFileRights : public QObject {
    Q_OBJECT

private slots:
    void init();
    void theListNamesTheUserAndTheAdministratorsAlone();
    void everybodyElseIsShutOut();
    void aFileThatIsMissingIsRefusedWithTheSystemsCode();

private:
    [[nodiscard]] FileAccessResult restrict() const
    {
        return restrictFileAccessOnWindows(m_path.toStdWString().c_str());
    }

    QTemporaryDir m_directory;
    QString m_path;
};

void TestWindowsFileRights::init()
{
    asked = {};
    m_path = QDir::toNativeSeparators(m_directory.filePath(u"gui_logs.log"_s));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void TestWindowsFileRights::theListNamesTheUserAndTheAdministratorsAlone()
{
    QCOMPARE(restrict().failure, FileAccessFailure::None);

    QCOMPARE(asked.parts, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION);
    QCOMPARE(asked.entries.size(), size_t(2));
    for (const Entry &entry : asked.entries) {
        QCOMPARE(entry.type, ACCESS_ALLOWED_ACE_TYPE);
        QCOMPARE(entry.flags, NO_INHERITANCE);
        const bool user = entry.identifier == ownUser();
        QVERIFY(user || entry.identifier == wellKnown(WinBuiltinAdministratorsSid));
        QCOMPARE(entry.rights, user ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ);
    }
    QVERIFY(asked.entries[0].identifier != asked.entries[1].identifier);
}

void TestWindowsFileRights::everybodyElseIsShutOut()
{
    QCOMPARE(restrict().failure, FileAccessFailure::None);

    const std::vector<Entry> stored = storedFor(m_path);
    QVERIFY(!stored.empty());
    for (const Entry &entry : stored)
        QVERIFY(entry.identifier != wellKnown(WinWorldSid) || entry.type != ACCESS_ALLOWED_ACE_TYPE);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
}

void TestWindowsFileRights::aFileThatIsMissingIsRefusedWithTheSystemsCode()
{
    QVERIFY(QFile::remove(m_path));
    const FileAccessResult result = restrict();
    QCOMPARE(result.failure, FileAccessFailure::FileSecurity);
    QCOMPARE(result.code, ulong(ERROR_FILE_NOT_FOUND));
}

ORVEL_TEST_MAIN(QCoreApplication, TestWindowsFileRights)
#include "tst_windowsfilerights.moc"
