#pragma once

// Just enough of the platform's types and declarations to compile the Windows part of the log file rights on any
// system. The test that includes it defines the functions and scripts what they answer.

using BOOL = int;
using BYTE = unsigned char;
using DWORD = unsigned long;
using ULONG = unsigned long;
using HANDLE = void *;
using PSID = void *;
using LPWSTR = wchar_t *;

struct ACL {
    int marker;
};
using PACL = ACL *;

struct SID_IDENTIFIER_AUTHORITY {
    BYTE Value[6];
};

struct SID_AND_ATTRIBUTES {
    PSID Sid;
    DWORD Attributes;
};

struct TOKEN_USER {
    SID_AND_ATTRIBUTES User;
};

enum TOKEN_INFORMATION_CLASS { TokenUser = 1 };

constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD TOKEN_QUERY = 0x0008;
constexpr DWORD GENERIC_READ = 0x80000000UL;
constexpr DWORD GENERIC_WRITE = 0x40000000UL;
constexpr DWORD SECURITY_BUILTIN_DOMAIN_RID = 0x20;
constexpr DWORD DOMAIN_ALIAS_RID_ADMINS = 0x220;
constexpr DWORD DACL_SECURITY_INFORMATION = 0x00000004;
constexpr DWORD PROTECTED_DACL_SECURITY_INFORMATION = 0x80000000UL;
#define SECURITY_NT_AUTHORITY                                                                                          \
    {                                                                                                                  \
        {                                                                                                              \
            0, 0, 0, 0, 0, 5                                                                                           \
        }                                                                                                              \
    }

HANDLE GetCurrentProcess();
DWORD GetLastError();
BOOL CloseHandle(HANDLE handle);
void *LocalFree(void *memory);
BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE *token);
BOOL GetTokenInformation(HANDLE token, TOKEN_INFORMATION_CLASS kind, void *buffer, DWORD size, DWORD *needed);
BOOL AllocateAndInitializeSid(SID_IDENTIFIER_AUTHORITY *authority, BYTE count, DWORD first, DWORD second, DWORD, DWORD,
                              DWORD, DWORD, DWORD, DWORD, PSID *identifier);
void *FreeSid(PSID identifier);
