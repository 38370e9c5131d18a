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

/// A part of a text that one face has all characters of.
struct PageRun {
    PageFace face = PageFace::Regular;
    std::string text;  ///< UTF-8
    double width = 0;  ///< in sizes of the font
};

/// What is drawn of a text, from left to right: without control and format characters, which have
/// no picture; a tab is a blank, and U+FFFD stands for characters that no face has.
std::vector<PageRun> pageRuns(std::string_view text, PageFont font);

}  // namespace fleetwright
