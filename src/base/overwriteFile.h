#pragma once

#include <filesystem>
#include <string_view>

namespace fleetwright {

/// Writes other contents into a file, which stays the file it is. For what no new file can replace.
///
/// Its old contents are first put aside, so that they outlast a power cut, as "NAME as it was" in
/// `putAsideFolder`; so at any time one of the two files is whole. That copy goes when the work is
/// done, or the old contents are back in the file. If they cannot be brought back, it stays.
///
/// Throws FileError: about the folder, with the file as it was, if no copy can be put aside; else
/// about the file, which has its old contents, or the text names the copy.
void overwriteFile(const std::filesystem::path& file, std::string_view contents);

/// Whether a file has the name of such a copy.
bool isCopyAsItWas(const std::filesystem::path& file);

}  // namespace fleetwright
