#include "fileaccess.h"

// windows.h comes before the headers that need its types.
#include <windows.h>

#include <aclapi.h>

#include <array>
#include <cstddef>
#include <memory>
#include <type_traits>

namespace Scheduler {

namespace {

struct CloseToken {
    void operator()(HANDLE token) const
    {
        CloseHandle(token);
    }
};

struct FreeIdentifier {
    void operator()(PSID identifier) const
    {
        FreeSid(identifier);
    }
};

struct FreeList {
    void operator()(PACL list) const
    {
        LocalFree(list);
    }
};

using Token = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseToken>;
using Identifier = std::unique_ptr<std::remove_pointer_t<PSID>, FreeIdentifier>;
using AccessList = std::unique_ptr<ACL, FreeList>;

FileAccessResult lastError(FileAccessFailure failure)
{
    return {failure, GetLastError()};
}

EXPLICIT_ACCESSW accessEntry(PSID identifier, DWORD rights)
{
    EXPLICIT_ACCESSW entry{};
    entry.grfAccessPermissions = rights;
    entry.grfAccessMode = SET_ACCESS;
    entry.grfInheritance = NO_INHERITANCE;
    entry.Trustee.TrusteeForm = TRUSTEE_IS_SID;
    entry.Trustee.ptstrName = static_cast<LPWSTR>(identifier);
    return entry;
}

/// Replaces the file's list of rights with these two entries.
FileAccessResult setAccess(const wchar_t *path, PSID user, PSID administrators)
{
    std::array entries{accessEntry(user, GENERIC_READ | GENERIC_WRITE), accessEntry(administrators, GENERIC_READ)};
    PACL rawList = nullptr;
    DWORD code = SetEntriesInAclW(static_cast<ULONG>(entries.size()), entries.data(), nullptr, &rawList);
    if (code != ERROR_SUCCESS)
        return {FileAccessFailure::Acl, code};
    const AccessList list(rawList);

    code = SetNamedSecurityInfoW(const_cast<LPWSTR>(path), SE_FILE_OBJECT,
                                 DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                 list.get(), nullptr);
    if (code != ERROR_SUCCESS)
        return {FileAccessFailure::FileSecurity, code};
    return {};
}

} // namespace

FileAccessResult restrictFileAccessOnWindows(const wchar_t *path)
{
    HANDLE rawToken = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &rawToken))
        return lastError(FileAccessFailure::ProcessToken);
    const Token token(rawToken);

    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size); // fails, and tells the size
    const auto user = std::make_unique<std::byte[]>(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.get(), size, &size))
        return lastError(FileAccessFailure::TokenInformation);

    SID_IDENTIFIER_AUTHORITY authority = SECURITY_NT_AUTHORITY;
    PSID rawAdministrators = nullptr;
    if (!AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0,
                                  &rawAdministrators))
        return lastError(FileAccessFailure::AdminSid);
    const Identifier administrators(rawAdministrators);

    return setAccess(path, reinterpret_cast<TOKEN_USER *>(user.get())->User.Sid, administrators.get());
}

} // namespace Scheduler
