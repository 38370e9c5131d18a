#pragma once

#include "PictureSet.h"

#include <functional>
#include <vector>

namespace fleetwright {

/// The file of the drawings of all these pictures, by what is seen of the pictures; see
/// docs/file-formats.md. Equal pictures have one drawing, that of the first of them.
std::string drawingPack(const std::vector<std::reference_wrapper<const PictureSet>>& sets);

}  // namespace fleetwright
