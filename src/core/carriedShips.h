#pragma once

// Ship files inside sheets: an SVG or PDF sheet carries them in its metadata, a PNG sheet in chunks
// of text.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// Ship files that an SVG or PDF file is to carry.
class CarriedShips {
public:
    /// For so many of them, of so many bytes together.
    CarriedShips(std::size_t count, std::size_t bytes);

    void add(std::string_view shipFile);
    /// The XML element, with its namespaces declared, in which an SVG file (in <metadata>) or the
    /// XMP packet of a PDF file (in rdf:Description) carries them. It is ASCII, and what XML tools
    /// do with white space and prefixes does it no harm.
    std::string element() &&;

private:
    std::string m_element;
};

/// The PNG file with a ship file in it, and else as it was. Throws Error if it is none.
std::string withShip(std::string_view png, std::string_view shipFile);

/// Whether these are the contents of a picture or document, and so of no ship file.
bool isSheet(std::string_view bytes);

/// The ship files that such a one carries, if any, in the order in which it got them. Of a PDF file
/// that was changed, those of the last change that has some. Throws Error if one is damaged, or if
/// there is none and the file is cut short.
std::vector<std::string> shipsIn(std::string_view sheet);

}  // namespace fleetwright
