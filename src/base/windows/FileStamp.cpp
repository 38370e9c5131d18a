#include "FileStamp.h"

#include <windows.h>

namespace fleetwright {

namespace {

/// A count of 100 nanoseconds, as one of nanoseconds.
std::int64_t nanoseconds(const LARGE_INTEGER& time) {
    return time.QuadPart * 100;
}

std::int64_t now() {
    FILETIME time{};
    GetSystemTimePreciseAsFileTime(&time);
    LARGE_INTEGER count{};
    count.LowPart = time.dwLowDateTime;
    count.HighPart = static_cast<LONG>(time.dwHighDateTime);
    return nanoseconds(count);
}

}  // namespace

std::optional<FileStamp> fileStamp(const std::filesystem::path& file) {
    const HANDLE handle = CreateFileW(file.c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION about{};
    FILE_BASIC_INFO times{};
    const bool isKnown =
        GetFileInformationByHandle(handle, &about) != 0 &&
        GetFileInformationByHandleEx(handle, FileBasicInfo, &times, sizeof times) != 0;
    CloseHandle(handle);
    if (!isKnown || (about.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return std::nullopt;
    }
    FileStamp stamp;
    stamp.device = about.dwVolumeSerialNumber;
    stamp.number = (std::uint64_t{about.nFileIndexHigh} << 32) | about.nFileIndexLow;
    stamp.size = (std::uint64_t{about.nFileSizeHigh} << 32) | about.nFileSizeLow;
    stamp.modified = nanoseconds(times.LastWriteTime);
    stamp.changed = nanoseconds(times.ChangeTime);
    stamp.isFresh = std::chrono::nanoseconds(now() - stamp.modified) < FileStamp::coarsest;
    return stamp;
}

}  // namespace fleetwright
