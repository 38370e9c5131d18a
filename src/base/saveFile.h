#pragma once

// Saving whole files.

#include "TemporaryFile.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace fleetwright {

/// Writes `contents` to `target`: the one way in which this program saves a file.
///
/// The contents go to a new file beside the target, are flushed to the disk and then take the
/// target's place in one step, so that whatever happens (a full disk, a crash, a kill, a power cut)
/// the target holds either its old contents or the new ones, whole. Once this has returned, they
/// are there to stay. A kill can leave the new file behind, under a name that begins with
/// ".fleetwright-"; the next start of the program, or the next one that saves into that folder,
/// takes it away (`TemporaryFile::takeLeftOnesAway`).
///
/// Owner, group, mode and extended attributes of an existing file are kept. Where a new file cannot
/// have them, or the folder takes none, the target is overwritten, with a copy put aside meanwhile
/// (`overwriteFile`), unless it has other names. A symbolic link is followed and stays a link; a
/// hard link parts from its twins. A target that is no plain file, such as a folder, a pipe or a
/// device, is refused as `whyNoFile` says.
///
/// Throws FileError, with the target as it was; or with the new contents, if all that failed was to
/// make sure that they outlast a power cut.
void saveFile(const std::filesystem::path& target, std::string_view contents);

/// The same for contents that are too large for the memory: they are made as they are written.
/// Throws what those throw, too, with the target as it was.
void saveFile(const std::filesystem::path& target, const FileContents& contents);

/// What is to be said to the user before a file is saved that has other names, from which it parts.
/// Empty if it has none.
std::string otherNamesNotice(const std::filesystem::path& target);

/// Makes a write beyond the user's limit on the size of files fail as one on a full disk does. Else
/// it would end the program. For the beginning of `main`.
void letFileSizeLimitFail();

}  // namespace fleetwright
