#include "FileStamp.h"

#include <chrono>

#if __has_include(<unistd.h>)
#include <sys/stat.h>
#endif

namespace fleetwright {

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
    constexpr std::chrono::seconds coarsest(2);
    stamp.isFresh = std::filesystem::file_time_type::clock::now() - modified < coarsest;
#if __has_include(<unistd.h>)
    struct stat status {};
    if (stat(file.c_str(), &status) == 0) {
        constexpr std::int64_t nanoseconds = 1'000'000'000;
        stamp.device = status.st_dev;
        stamp.number = status.st_ino;
        stamp.changed = status.st_ctim.tv_sec * nanoseconds + status.st_ctim.tv_nsec;
    }
#endif
    return stamp;
}

}  // namespace fleetwright
