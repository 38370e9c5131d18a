#pragma once

#include "Form.h"

#include <string>

namespace fleetwright {

/// A control and those in it, a line each: name, place, and what of its design is not as usual.
/// Whoever includes this links `platform`.
inline std::string formText(const Control& control, const std::string& indent = {}) {
    const ControlDesign& design = control.design();
    const Place& place = design.place;
    std::string text = indent + design.name + ' ' + std::to_string(place.left) + ',' +
                       std::to_string(place.top) + ' ' + std::to_string(place.width) + 'x' +
                       std::to_string(place.height);
    for (const std::string* const words :
         {&design.caption, &design.text, &design.picture, &design.toolTip, &design.accessibleName,
          &design.accessibleDescription}) {
        text += words->empty() ? "" : " \"" + *words + '"';
    }
    for (const auto& [is, word] : {std::pair(design.isOn, " on"),
                                   {design.isGraphical, " graphical"},
                                   {design.isFramed, " framed"},
                                   {design.isHeading, " heading"},
                                   {design.isFlat, " flat"},
                                   {design.isLocked, " locked"},
                                   {design.isMultiline, " multiline"},
                                   {design.isDefault, " default"},
                                   {design.isCancel, " cancel"},
                                   {!design.isVisible, " hidden"},
                                   {!design.isEnabled, " disabled"}}) {
        text += is ? word : "";
    }
    if (const auto* const form = dynamic_cast<const Form*>(&control)) {
        constexpr const char* borders[] = {"fixed", "fixed, minimizes", "sizable", "none"};
        text += std::string(", border ") + borders[static_cast<int>(form->border())];
    }
    text += '\n';
    if (const auto* const container = dynamic_cast<const Container*>(&control)) {
        for (const Control* const inside : container->controls()) {
            text += formText(*inside, indent + "  ");
        }
    }
    return text;
}

}  // namespace fleetwright
