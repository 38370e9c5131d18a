#include "FileStamp.h"

#include <windows.h>

#include <algorithm>
#include <ratio>

namespace fleetwright {

namespace {

/// What times of files count in.
using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

/// A time that has been counted since 1601, since 1970: else nanoseconds would not fit.
std::int64_t nanoseconds(const LARGE_INTEGER& time) {
    constexpr Ticks between = std::chrono::hours(24) * 134'774;
    constexpr Ticks most = std::chrono::duration_cast<Ticks>(std::chrono::nanoseconds::max());
    const Ticks since = std::clamp(Ticks(time.QuadPart) - between, -most, most);
    return std::chrono::nanoseconds(since).count();
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
    stamp.isFresh = std::chrono::system_clock::now().time_since_epoch() -
                        std::chrono::nanoseconds(stamp.modified) <
                    FileStamp::coarsest;
    return stamp;
}

}  // namespace fleetwright
