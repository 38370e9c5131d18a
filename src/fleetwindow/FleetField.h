#pragma once

#include "FleetPart.h"
#include "TextBox.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// The whole numbers that can stand somewhere, both ends among them.
struct NumberRange {
    std::int32_t least = 0, most = 0;
};

/// A box in which a part of the fleet is written. What is typed is of the fleet at once; all that
/// is typed without a second's rest is one step.
class FleetField {
public:
    struct Rules {
        std::string name;                                ///< of the step, in words
        std::function<std::string()> read;               ///< what the fleet holds
        std::function<void(Fleet&, std::string)> write;  ///< of a text that is well
        /// A text as the fleet would hold it, which is what `read` would return then; nothing for
        /// one that it cannot hold.
        std::function<std::optional<std::string>(const std::string&)> held;
        std::function<std::string()> about = [] { return std::string(); };  ///< tells kinds apart
        NumberRange range = {};  ///< of a number, to be told of what cannot be held
    };

    FleetField(const FleetContext& window, TextBox& box, Rules rules);

    /// Copies the fleet to the box, unless what was typed there means the same, or nothing yet.
    void show();

private:
    void change();
    void leave();

    const FleetContext& m_window;
    TextBox& m_box;
    Rules m_rules;
    std::string m_shown;       ///< what was copied last, and what it is about
    bool m_isTyped = false;    ///< the box is being typed in
    bool m_isShowing = false;  ///< it is being written
    bool m_isFaulty = false;   ///< what is typed is none that can stand there, and it was said
};

/// The whole number of a range that a text is, without what else stands around it.
std::optional<std::string> numberText(std::string_view text, const NumberRange& range);

/// The lines of a box with "\n" between them, without the empty ones at the end.
std::string linesIn(const std::string& text);
/// The same as a box holds it.
std::string linesForBox(const std::string& text);

}  // namespace fleetwright
