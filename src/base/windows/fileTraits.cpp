#include "fileTraits.h"

#include "OpenFile.h"
#include "fileCalls.h"
#include "systemError.h"

#include <aclapi.h>
#include <windows.h>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Gives a file the access list of another, which it does not have from its folder alone.
std::error_code copyAccessList(const fs::path& from, OpenFile& to) {
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    DWORD failure = GetNamedSecurityInfoW(from.c_str(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                                          nullptr, nullptr, &list, nullptr, &descriptor);
    if (failure == ERROR_SUCCESS) {
        SECURITY_DESCRIPTOR_CONTROL control = 0;
        DWORD revision = 0;
        GetSecurityDescriptorControl(descriptor, &control, &revision);
        // Whether it takes over what its folder's list says.
        const DWORD inheriting = (control & SE_DACL_PROTECTED) != 0
                                     ? PROTECTED_DACL_SECURITY_INFORMATION
                                     : UNPROTECTED_DACL_SECURITY_INFORMATION;
        std::wstring file = to.path().wstring();
        failure = SetNamedSecurityInfoW(file.data(), SE_FILE_OBJECT,
                                        DACL_SECURITY_INFORMATION | inheriting, nullptr, nullptr,
                                        list, nullptr);
        LocalFree(descriptor);
    }
    SetLastError(failure);
    return failure == ERROR_SUCCESS ? std::error_code() : systemError();
}

std::error_code copyAttributes(const fs::path& from, const OpenFile& to) {
    constexpr DWORD ofUser = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                             FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    const DWORD wanted = GetFileAttributesW(from.c_str());
    if (wanted == INVALID_FILE_ATTRIBUTES) {
        return systemError();
    }
    const DWORD given = (wanted & ofUser) == 0 ? FILE_ATTRIBUTE_NORMAL : wanted & ofUser;
    return SetFileAttributesW(to.path().c_str(), given) != 0 ? std::error_code() : systemError();
}

}  // namespace

std::error_code copyTraits(const fs::path& from, OpenFile& to) {
    std::error_code error = objection(FileCall::ReadTraits, from);
    error = error ? error : copyAccessList(from, to);
    return error ? error : copyAttributes(from, to);
}

}  // namespace fleetwright
