#pragma once

#include "PageDocument.h"

#include <string>

namespace fleetwright {

class KeptSvgParts;
class PictureEncoder;

/// Pages as an SVG file, one below the other: the same bytes for the same document, wherever it is
/// made. Each drawing is in it once. Texts are text, in the program's font, which it holds, and as
/// wide as they are in it if whoever shows the file takes another one. Pictures without a drawing
/// are in it as PNG files, which `encoder` makes. Whoever makes many files keeps parts of them.
/// Throws Error.
std::string svgFile(const PageDocument& document, PictureEncoder& encoder,
                    KeptSvgParts* kept = nullptr);

}  // namespace fleetwright
