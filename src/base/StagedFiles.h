#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace fleetwright {

/// Files that come into their places together. They are first written to a folder of their own, so
/// that a disk that is full leaves no part of them, and the system is asked only once, for all of
/// them, to have them outlast a power cut, which is many times quicker than one after the other.
///
/// All functions throw FileError. Where they do, or `place` was never called, what was new is gone
/// with this object; a file that was there before is whole, be it the old one or the new one.
class StagedFiles {
public:
    /// Makes the folder, on the same disk as the places. There must be nothing of that name.
    explicit StagedFiles(std::filesystem::path folder);
    StagedFiles(const StagedFiles&) = delete;
    StagedFiles& operator=(const StagedFiles&) = delete;
    ~StagedFiles();

    /// Writes a file for this place, in a folder that is there.
    void add(const std::filesystem::path& target, std::string_view bytes);
    /// Puts all of them in their places, over what is there, for good.
    void place();

private:
    std::filesystem::path stagedPath(std::size_t index) const;

    std::filesystem::path m_folder;
    std::vector<std::filesystem::path> m_targets;
    std::vector<std::filesystem::path> m_placed;  ///< and was not there before
};

}  // namespace fleetwright
