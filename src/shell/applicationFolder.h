#pragma once

#include <filesystem>

namespace fleetwright {

/// The application folder of a program whose executable is in `executableFolder`. That is this
/// folder itself, unless a package has installed the program: then there is an entry "delivered"
/// beside the executable, a link to the folder of all files that the package delivers, nobody but
/// the package may write there, and the application folder is the user's own
/// (`userDataFolder`), brought up to date by `refreshUserFolder`. Throws FileError.
std::filesystem::path applicationFolder(const std::filesystem::path& executableFolder);

/// Brings the user's application folder up to date with what an installation delivers, and makes
/// it if it is not there (`makeUserFolder`). File by file, at any depth:
///
/// - What the user's folder has not been given yet is copied into it, unless the user has a file of
///   that name.
/// - What is still as it was given to the user is replaced when another is delivered.
/// - What the user has changed, deleted or write-protected stays as it is, and so does what is no
///   longer delivered.
///
/// No part of the program itself is ever run or loaded from there, so links are not delivered, and
/// those to such parts, which earlier versions have made, are taken away.
///
/// What the user was given is kept as fingerprints in the file ".delivered" of the user's folder.
/// As long as the delivered files have the names, sizes and times noted there, no file is opened
/// but that one. What is about to be given stands in ".delivering" until it is, so that a run that
/// is cut short is made good by the next, whatever is delivered then. Throws FileError.
void refreshUserFolder(const std::filesystem::path& delivered,
                       const std::filesystem::path& userFolder);

}  // namespace fleetwright
