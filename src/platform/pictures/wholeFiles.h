#pragma once

#include <string_view>

namespace fleetwright {

// Whether all is there that a file of pictures says it has. Decoders take what they get and fill up
// the rest. What else may be wrong with the file is theirs to find.

/// A Windows bitmap.
bool isWholeBmp(std::string_view bytes);
/// A JPEG file, as far as its end marker.
bool isWholeJpeg(std::string_view bytes);

}  // namespace fleetwright
