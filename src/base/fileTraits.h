#pragma once

#include <filesystem>
#include <system_error>

namespace fleetwright {

class OpenFile;

/// Gives a new file all that an older one has beside its contents: owner, group, mode and extended
/// attributes, lists of access rights included. It goes by the open files, so that nobody can put
/// another file in between. An error means that something of that cannot be kept, by right or
/// because the file system has no place for it; what the system attaches itself, such as a security
/// label, is kept only where that is allowed. Never throws.
std::error_code copyTraits(const std::filesystem::path& from, OpenFile& to);

}  // namespace fleetwright
