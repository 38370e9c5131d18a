#include "FileStamp.h"

#include <chrono>

#include <sys/stat.h>

namespace fleetwright {

namespace {

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

std::optional<FileStamp> fileStamp(const std::filesystem::path& file) {
    struct stat status{};
    if (stat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    FileStamp stamp;
    stamp.device = status.st_dev;
    stamp.number = status.st_ino;
    stamp.size = static_cast<std::uint64_t>(status.st_size);
    stamp.modified = nanoseconds(status.st_mtim);
    stamp.changed = nanoseconds(status.st_ctim);
    stamp.isFresh = std::chrono::system_clock::now().time_since_epoch() -
                        std::chrono::nanoseconds(stamp.modified) <
                    FileStamp::coarsest;
    return stamp;
}

}  // namespace fleetwright
