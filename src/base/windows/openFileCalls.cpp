#include "openFileCalls.h"

#include "fileCalls.h"
#include "systemError.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>

namespace fleetwright::openFileCalls {

namespace {

/// The system counts in 32 bits.
constexpr std::size_t mostAtOnce = 1 << 30;

HANDLE handleOf(int descriptor) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

}  // namespace

int open(const std::filesystem::path& file, OpenFile::Use use, std::error_code& error) {
    const bool reads = use == OpenFile::Use::Read;
    // As on other systems, a file that is open can be renamed, replaced and taken away.
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // A link that is to be written to would be opened itself, which `isPlain` refuses.
    const DWORD links = use == OpenFile::Use::Write ? FILE_FLAG_OPEN_REPARSE_POINT : 0;
    const HANDLE handle =
        CreateFileW(file.c_str(), reads ? GENERIC_READ : GENERIC_WRITE | FILE_READ_ATTRIBUTES,
                    sharing, nullptr, use == OpenFile::Use::Create ? CREATE_NEW : OPEN_EXISTING,
                    FILE_ATTRIBUTE_NORMAL | links, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        error = systemError();
        return -1;
    }
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle),
                                           _O_BINARY | _O_NOINHERIT | (reads ? _O_RDONLY : 0));
    error = errorUnless(descriptor >= 0);
    if (descriptor < 0) {
        CloseHandle(handle);
    }
    return descriptor;
}

bool isPlain(int descriptor, std::uintmax_t& size) {
    size = 0;
    BY_HANDLE_FILE_INFORMATION about{};
    if (GetFileType(handleOf(descriptor)) != FILE_TYPE_DISK ||
        GetFileInformationByHandle(handleOf(descriptor), &about) == 0) {
        return false;
    }
    size = (std::uintmax_t{about.nFileSizeHigh} << 32) | about.nFileSizeLow;
    return (about.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) ==
           0;
}

std::ptrdiff_t read(int descriptor, char* bytes, std::size_t most) {
    return _read(descriptor, bytes, static_cast<unsigned>(std::min(most, mostAtOnce)));
}

std::ptrdiff_t write(int descriptor, std::string_view bytes) {
    return _write(descriptor, bytes.data(),
                  static_cast<unsigned>(std::min(bytes.size(), mostAtOnce)));
}

bool seek(int descriptor, std::uintmax_t place) {
    return _lseeki64(descriptor, static_cast<long long>(place), SEEK_SET) >= 0;
}

bool resize(int descriptor, std::uintmax_t size) {
    return _chsize_s(descriptor, static_cast<long long>(size)) == 0;
}

void startSync(int) {}

bool sync(int descriptor) {
    return _commit(descriptor) == 0;
}

bool setMode(int, std::filesystem::perms) {
    return true;  // what users may do with a file is in its access list, which it has from its
                  // folder
}

bool close(int descriptor) {
    return _close(descriptor) == 0;
}

}  // namespace fleetwright::openFileCalls
