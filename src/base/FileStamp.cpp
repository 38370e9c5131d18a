#include "FileStamp.h"

#include <chrono>

#if __has_include(<unistd.h>)
#include <sys/stat.h>
#endif

namespace fleetwright {

namespace {

template <typename Duration>
bool isFresh(const Duration& age) {
    constexpr std::chrono::seconds coarsest(2);
    return age < coarsest;
}

}  // namespace

#if __has_include(<unistd.h>)

std::optional<FileStamp> fileStamp(const std::filesystem::path& file) {
    struct stat status {};
    if (stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    const auto nanoseconds = [](const timespec& time) {
        return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
    };
    FileStamp stamp;
    stamp.device = status.st_dev;
    stamp.number = status.st_ino;
    stamp.size = static_cast<std::uint64_t>(status.st_size);
    stamp.modified = nanoseconds(status.st_mtim);
    stamp.changed = nanoseconds(status.st_ctim);
    stamp.isFresh = isFresh(std::chrono::system_clock::now().time_since_epoch() -
                            std::chrono::nanoseconds(stamp.modified));
    return stamp;
}

#else

std::optional<FileStamp> fileStamp(const std::filesystem::path& file) {
    std::error_code noFile, noTime;
    FileStamp stamp;
    stamp.size = std::filesystem::file_size(file, noFile);
    const auto modified = std::filesystem::last_write_time(file, noTime);
    if (noFile || noTime) {
        return std::nullopt;
    }
    stamp.modified =
        std::chrono::duration_cast<std::chrono::nanoseconds>(modified.time_since_epoch()).count();
    stamp.isFresh = isFresh(std::filesystem::file_time_type::clock::now() - modified);
    return stamp;
}

#endif

}  // namespace fleetwright
