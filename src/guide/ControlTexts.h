#pragma once

// What the player is told about controls: "What's This?" in the windows and, as a chapter of the
// player's guide, all of it in a row. Texts are plain, in one to three sentences.

#include <span>
#include <string>
#include <string_view>

namespace fleetwright {

class Control;

/// What is told about one control, or about some that belong together.
struct ControlText {
    std::string_view
        controls;            ///< their names with blanks between; those of an array without index
    std::string_view title;  ///< what the player reads on them, or would call them
    std::string_view text;
};

/// A part of a window, as a section of the guide.
struct ControlTexts {
    std::string_view form;   ///< the window's name
    std::string_view title;  ///< of the section
    std::span<const ControlText> rows;
};

/// All of them, in the order of the guide.
std::span<const ControlTexts> allControlTexts();

/// What is told about a control of a form; empty if nothing is.
std::string whatsThis(const Control& control);

}  // namespace fleetwright
