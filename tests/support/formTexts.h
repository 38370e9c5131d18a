#pragma once

// What a form shows, as texts. Whoever includes this links `platform`.

#include "Control.h"
#include "DragImage.h"
#include "Form.h"
#include "ListView.h"
#include "OptionButton.h"
#include "Shortcut.h"
#include "TextBox.h"
#include "Timer.h"
#include "TreeView.h"

#include <array>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>

namespace fleetwright {

/// Controls by their names.
using Controls = std::map<std::string, Control*>;

/// Adds what is in a container, at any depth, by its names.
inline void collect(const Container& container, Controls& controls) {
    for (Control* const control : container.controls()) {
        controls[control->name()] = control;
        if (const auto* const inside = dynamic_cast<const Container*>(control)) {
            collect(*inside, controls);
        }
    }
}

/// What changes on a control, as a text.
inline std::string stateOf(const Control& control) {
    const ControlDesign& design = control.design();
    std::string text;
    if (const auto* const list = dynamic_cast<const ListView*>(&control)) {
        for (std::size_t row = 0; row < list->rows().size(); ++row) {
            const ListView::Row& shown = list->rows()[row];
            text += (row == 0 ? "" : ", ") + shown.text + ' ' + shown.subItem;
            for (const std::string& item : shown.moreItems) {
                text += item.empty() ? "" : ' ' + item;
            }
            text += std::string(shown.isAlarming ? "!" : "") + (list->selected() == row ? "*" : "");
        }
    } else if (const auto* const tree = dynamic_cast<const TreeView*>(&control)) {
        for (const TreeView::Node& node : tree->nodes()) {
            text += node.isExpanded ? node.key + ' ' : "";
        }
    } else if (dynamic_cast<const DragImage*>(&control) != nullptr) {
        text = std::to_string(control.place().left) + ',' + std::to_string(control.place().top);
    } else if (dynamic_cast<const OptionButton*>(&control) != nullptr) {
        const bool isAsItsGroup = control.isEnabled() == control.container()->isEnabled();
        return std::string(design.isOn ? "on" : "off") + (isAsItsGroup ? "" : " by itself");
    } else if (dynamic_cast<const Timer*>(&control) == nullptr &&
               dynamic_cast<const Shortcut*>(&control) == nullptr) {
        text = design.text + design.caption;
    } else {
        return {};
    }
    const bool isOpen =
        dynamic_cast<const TextBox*>(&control) != nullptr && !design.isFlat && !design.isLocked;
    return text + (design.isOn ? " on" : "") + (design.isAlarming ? " alarming" : "") +
           (isOpen ? " open" : "") + (design.isVisible ? "" : " hidden") +
           (design.isEnabled ? "" : " disabled");
}

/// The controls of a container in their order, with what of their designs stays as it is.
inline std::string layoutOf(const Container& container, const std::string& indent = {}) {
    std::string text;
    for (const Control* const control : container.controls()) {
        const ControlDesign& design = control->design();
        const Place& place = design.place;
        text += indent + design.name;
        for (const int measure : {place.left, place.top, place.width, place.height}) {
            text += ' ' + std::to_string(measure);
        }
        for (const std::string& words :
             {design.caption, design.text, design.picture, design.toolTip, design.shortcut,
              design.accessibleName, design.accessibleDescription}) {
            text += words.empty() ? "" : " \"" + words + '"';
        }
        for (const auto& [is, word] : std::initializer_list<std::pair<bool, const char*>>{
                 {design.isFlat, " flat"},
                 {design.isFramed, " framed"},
                 {design.isHeading, " heading"},
                 {design.isAlarming, " alarming"},
                 {design.isLocked, " locked"},
                 {design.isMultiline, " multiline"},
                 {design.isUndoneByForm, " undone by form"},
                 {design.isGraphical, " graphical"},
                 {design.isVerbatim, " verbatim"},
                 {design.isDefault, " default"},
                 {design.isCancel, " cancel"},
                 {design.isOn, " on"},
                 {!design.isVisible, " hidden"},
                 {!design.isEnabled, " disabled"}}) {
            text += is ? word : "";
        }
        if (const auto* const timer = dynamic_cast<const Timer*>(control)) {
            text += ' ' + std::to_string(timer->interval());
        }
        if (const auto* const list = dynamic_cast<const ListView*>(control)) {
            for (const ListView::Column& column : list->columns()) {
                text += ' ' + column.title + ' ' + std::to_string(column.width);
            }
        }
        text += '\n';
        if (const auto* const inside = dynamic_cast<const Container*>(control)) {
            text += layoutOf(*inside, indent + "  ");
        }
    }
    return text;
}

/// The same of a window, below its own line.
inline std::string layoutOf(const Form& form) {
    const ControlDesign& design = form.design();
    return form.name() + ' ' + std::to_string(design.place.width) + ' ' +
           std::to_string(design.place.height) + " \"" + form.caption() + '"' +
           std::array{"", " with minimize", " sizable", " bare"}.at(
               static_cast<std::size_t>(form.border())) +
           '\n' + layoutOf(static_cast<const Container&>(form));
}

}  // namespace fleetwright
