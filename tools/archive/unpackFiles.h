#pragma once

#include <filesystem>
#include <span>
#include <string_view>

namespace fleetwright {

/// One file of an archive.
struct ArchivedFile {
    std::string_view name;
    std::string_view bytes;
};

/// The pictures that are built into this program, by name.
std::span<const ArchivedFile> archivedPictures();

/// Writes the files into a folder, over those of the same name.
///
/// All of them are first written to a folder of their own within it and put in place only when
/// every one is complete. So a disk that is full, or a folder that cannot be written to, leaves no
/// half picture and no part of the set, and what a run that was killed has left goes with the next.
/// What is there at the end outlasts a power cut. Throws FileError.
void unpackFiles(std::span<const ArchivedFile> files, const std::filesystem::path& folder);

}  // namespace fleetwright
