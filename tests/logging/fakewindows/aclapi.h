#pragma once

#include <windows.h>

enum ACCESS_MODE { NOT_USED_ACCESS, GRANT_ACCESS, SET_ACCESS };
enum TRUSTEE_FORM { TRUSTEE_IS_SID, TRUSTEE_IS_NAME };
enum SE_OBJECT_TYPE { SE_UNKNOWN_OBJECT_TYPE, SE_FILE_OBJECT };

constexpr DWORD NO_INHERITANCE = 0;

struct TRUSTEE_W {
    TRUSTEE_FORM TrusteeForm;
    LPWSTR ptstrName;
};

struct EXPLICIT_ACCESSW {
    DWORD grfAccessPermissions;
    ACCESS_MODE grfAccessMode;
    DWORD grfInheritance;
    TRUSTEE_W Trustee;
};

DWORD SetEntriesInAclW(ULONG count, EXPLICIT_ACCESSW *entries, PACL oldList, PACL *newList);
DWORD SetNamedSecurityInfoW(LPWSTR path, SE_OBJECT_TYPE type, DWORD parts, PSID owner, PSID group, PACL list,
                            PACL systemList);
