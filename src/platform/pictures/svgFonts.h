#pragma once

#include "FontSubset.h"
#include "PageDocument.h"

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// The families of the fonts of text, the program's own first.
inline constexpr const char* svgFontFamily =
    "FleetWright Sans, FleetWright Fallback, DejaVu Sans, sans-serif";

/// Fonts as they stand in files, for the next files that show the same characters: as many as the
/// sheets of some hundred ships take. Any number of threads may use it.
class KeptSvgFonts {
public:
    /// What `made` makes of these signs of a face.
    std::string of(PageFace face, const std::vector<FontSubset::Sign>& signs,
                   const std::function<std::string()>& made);

private:
    using Key = std::pair<PageFace, std::vector<FontSubset::Sign>>;

    std::mutex m_mutex;
    std::map<Key, std::string> m_fonts;
};

/// The element "style" that holds, of the program's fonts, the characters that a document shows, so
/// that it looks the same where no font is installed; nothing if it shows none. One that no face
/// has is shown as its replacement there. Arabic letters are there in all forms in which they join.
/// `kept` may be null.
std::string svgFonts(const PageDocument& document, KeptSvgFonts* kept);

}  // namespace fleetwright
