#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace fleetwright {

/// Which file stands at a path, and in which state: whoever writes to it, or puts another one in
/// its place, changes its stamp.
struct FileStamp {
    std::uint64_t device = 0, number = 0;  ///< which file; both 0 where the system does not say
    std::uint64_t size = 0;                ///< bytes
    std::int64_t modified = 0;             ///< when its contents were changed, in nanoseconds
    std::int64_t changed = 0;              ///< when anything about it was; 0 as above
    /// Clocks of file systems are coarse: a file that was written just now can be written once more
    /// without a change of its stamp.
    bool isFresh = false;
    /// How old a file is at least whose next change shows.
    static constexpr std::chrono::seconds coarsest{2};

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// The stamp of a file, or nothing if there is none.
std::optional<FileStamp> fileStamp(const std::filesystem::path& file);

}  // namespace fleetwright
