#pragma once

// Paths, and the folders that the program knows. File names count without regard to case, also
// where the file system tells cases apart.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A path as the program keeps paths in texts: in UTF-8.
std::string pathText(const std::filesystem::path& path);

/// The path that such a text means, its folders parted as the system does.
std::filesystem::path nativePath(std::string_view utf8);

/// A name that a user has given, as a part of a file's name: without what some file system does not
/// take, and short. "Unnamed" if nothing is left of it.
std::string fileNameOf(const std::string& name);

/// The files of a folder, but no folders, whose names end in `ending` without regard to case; by
/// name without regard to case. A folder that is not there has none. Throws FileError if it cannot
/// be read.
std::vector<std::filesystem::path> listFolder(const std::filesystem::path& folder,
                                              std::string_view ending);

/// The files below a folder, also those in its folders, in no order; links to folders are not
/// followed. What cannot be looked into has none.
std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& folder);

/// Makes a folder and those that it stands in, unless they are there. Throws FileError.
void makeFolder(const std::filesystem::path& folder);

/// Makes a folder of the user's, and those that it stands in: nobody else may look into any that is
/// made. If it is there, rights that others have in it are taken from them, unless it is a link or
/// somebody else's. Throws FileError.
void makeUserFolder(const std::filesystem::path& folder);

/// What stands under this path: the path itself if there is such an entry, else the first one by
/// name whose path differs from it only in case. The path itself if there is none at all.
std::filesystem::path findFile(const std::filesystem::path& file);

/// The file that a name means below a folder, whatever its case; "/" and "\\" part the names of
/// folders alike. Where there is none, the path that it would have. Such names stand in files of
/// strangers: throws FileError for one that leads out of the folder, be it with "..", from the root
/// or a drive on, or by way of a link. The folder itself may be a link to anywhere.
std::filesystem::path fileBelow(const std::filesystem::path& folder, std::string_view name);

/// Where the program keeps what belongs to the user: the folder "FleetWright" in the desktop's
/// folder for such data, which `userPlaces.h` finds. It need not exist yet. Throws FileError if the
/// user has no home.
std::filesystem::path userDataFolder();

/// The same for what the program can work out again: in the desktop's folder for that.
std::filesystem::path userCacheFolder();

/// The folder in the user's data for what is put aside, so that it is not lost. Throws as above.
std::filesystem::path putAsideFolder();

/// The folder of the running program. `word`, the name that it was called by, serves where the
/// system does not tell; throws FileError if it has no folder, since what lies in the current one
/// is not the program's.
std::filesystem::path executableFolder(const std::string& word);

}  // namespace fleetwright
