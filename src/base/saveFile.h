#pragma once

// Saving whole files.

#include <filesystem>
#include <string_view>

namespace fleetwright {

/// Writes `contents` to `target`: the one way in which this program saves a file.
///
/// The contents go to a new file beside the target, are flushed to the disk and then take the
/// target's place in one step, so that whatever happens (a full disk, a crash, a kill) the target
/// holds either its old contents or the new ones, whole. A kill can leave the new file behind,
/// under a name that begins with ".fleetwright-"; the next program that saves into that folder
/// takes it away. A symbolic link is followed and stays a link; a
/// hard link parts from its twins. Permissions and, where allowed, the owner of an existing file
/// are kept. A target that is no plain file, such as a folder, a pipe or a device, is refused as
/// `whyNoFile` says.
///
/// Throws FileError, with the target as it was; or with the new contents, if all that failed was to
/// make sure that they outlast a power cut.
void saveFile(const std::filesystem::path& target, std::string_view contents);

/// Makes a write beyond the user's limit on the size of files fail as one on a full disk does. Else
/// it would end the program. For the beginning of `main`.
void letFileSizeLimitFail();

}  // namespace fleetwright
