#pragma once

#include "FontSubset.h"
#include "PageDocument.h"
#include "pageFonts.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace fleetwright {

class PdfObjects;

/// The texts of a document as a PDF file has them: each character can be read back, be it one that
/// no face has or one that several pictures stand for. The fonts are in the file, with the pictures
/// that it shows.
class PdfText {
public:
    explicit PdfText(const PageDocument& document);

    /// Puts the texts above what a file has on its pages so far. It has as many as the document,
    /// and has left the units and the axes as `drawPageShapes` wants them.
    void putInto(PdfObjects& objects) const;

private:
    /// A line of text, from left to right.
    struct Line {
        const PageText* text;
        std::vector<PageSign> signs;
    };

    std::string contentOf(const std::vector<Line>& lines) const;
    std::string fontsIn(PdfObjects& objects) const;

    std::vector<std::vector<Line>> m_pages;
    std::vector<FontSubset> m_fonts;  ///< by their faces
};

}  // namespace fleetwright
