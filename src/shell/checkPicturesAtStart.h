#pragma once

#include "Fault.h"

#include <filesystem>
#include <vector>

namespace fleetwright {

class CatalogueText;
class PictureFiles;

/// The faults that `PictureCheck` finds in the pictures of a catalogue at the start. The file
/// `memory` holds in which state they last were all well: while that is theirs, none is decoded. It
/// is only a help: where it cannot be read or written, all pictures are looked at each time.
std::vector<Fault> checkPicturesAtStart(const CatalogueText& catalogue,
                                        const std::filesystem::path& folder, PictureFiles& pictures,
                                        const std::filesystem::path& memory);

}  // namespace fleetwright
