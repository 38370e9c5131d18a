#pragma once

// The fonts of pages, which the program brings along, so that a page is the same on every machine.

#include "PageDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// A font file of the program.
enum class PageFace {
    Regular,
    Bold,
    Fallback,  ///< has what the others lack, as Chinese characters, drawn in 16 steps
};
inline constexpr PageFace pageFaces[] = {PageFace::Regular, PageFace::Bold, PageFace::Fallback};

/// The name of the family that a face belongs to.
constexpr std::string_view pageFamily(PageFace face) {
    return face == PageFace::Fallback ? "FleetWright Fallback" : "FleetWright Sans";
}

/// What is drawn of a character.
struct PageSign {
    char32_t character;  ///< what it stands for
    char32_t drawn;      ///< the one whose picture it is: U+FFFD if no face has that of `character`
    PageFace face;       ///< which has the picture
    double width;        ///< in sizes of the font

    bool isMissing() const { return drawn != character; }
};
PageSign pageSign(char32_t character, PageFont font);

/// What is drawn of a text, in the order of its characters: nothing of control and format
/// characters, which have no picture; a tab is a blank.
std::vector<PageSign> pageSigns(std::string_view text, PageFont font);

/// Where a line of text begins, in millimetres.
double startOf(const PageText& text);

/// A part of a text that one face has all pictures of.
struct PageRun {
    PageFace face = PageFace::Regular;
    std::string text;  ///< UTF-8, of what is drawn
    double width = 0;  ///< in sizes of the font
};
/// What is drawn of a text, as parts.
std::vector<PageRun> pageRuns(std::string_view text, PageFont font);

}  // namespace fleetwright
