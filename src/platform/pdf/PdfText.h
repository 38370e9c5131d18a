#pragma once

#include "FontSubset.h"
#include "PageDocument.h"
#include "pageFonts.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace fleetwright {

class PdfObjects;

/// The texts of a document as a PDF file has them: each character can be read back, be it one that
/// no face has or one that several pictures stand for. The fonts are in the file, with the pictures
/// that it shows.
class PdfText {
public:
    /// The operators that show the texts of a page, with units and axes as those of `PdfShapes`.
    std::string contentOf(const Page& page);
    /// Writes the fonts that all pages so far take; what resources say of them.
    std::string writeFonts(PdfObjects& objects) const;

private:
    /// What of a face has been shown. Signs are numbered as they come, from 1 on.
    struct Shown {
        std::vector<FontSubset::Sign> signs;
        std::map<FontSubset::Sign, std::size_t> numbers;

        std::size_t numberOf(const FontSubset::Sign& sign);
    };

    void addLine(std::string& content, const PageText& text);

    std::array<Shown, std::size(pageFaces)> m_shown;  ///< by the faces
};

}  // namespace fleetwright
