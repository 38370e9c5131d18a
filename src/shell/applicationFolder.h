#pragma once

#include <filesystem>

namespace fleetwright {

/// The application folder of a program whose executable is in `executableFolder`. That is this
/// folder itself, unless a package has installed the program: then there is an entry "delivered"
/// beside the executable, a link to the folder of all files that the package delivers, nobody but
/// the package may write there, and the application folder is the user's own
/// (`userDataFolder`), brought up to date by `refreshUserFolder`. Throws FileError.
std::filesystem::path applicationFolder(const std::filesystem::path& executableFolder);

}  // namespace fleetwright
