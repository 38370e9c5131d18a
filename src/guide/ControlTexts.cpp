#include "ControlTexts.h"

#include "Form.h"
#include "sections.h"

#include <algorithm>
#include <array>

namespace fleetwright {

namespace {

/// Whether a name stands in a list of names with blanks between them.
bool isNamed(std::string_view names, std::string_view name) {
    const std::size_t start = names.find(name);
    if (start == std::string_view::npos) {
        return false;
    }
    const std::size_t end = start + name.size();
    const bool isWhole =
        (start == 0 || names[start - 1] == ' ') && (end == names.size() || names[end] == ' ');
    return isWhole || isNamed(names.substr(end), name);
}

std::string_view textOf(std::string_view form, std::string_view name) {
    for (const ControlTexts& section : allControlTexts()) {
        if (section.form != form) {
            continue;
        }
        const auto found =
            std::find_if(section.rows.begin(), section.rows.end(),
                         [name](const ControlText& row) { return isNamed(row.controls, name); });
        if (found != section.rows.end()) {
            return found->text;
        }
    }
    return {};
}

std::string_view formOf(const Control& control) {
    const Control* outermost = &control;
    while (outermost->container() != nullptr) {
        outermost = outermost->container();
    }
    return outermost->name();
}

}  // namespace

std::span<const ControlTexts> allControlTexts() {
    static const std::array sections = {
        ControlTexts{"frmMain", "Mass", massTexts()},
        ControlTexts{"frmMain", "Hull", hullTexts()},
        ControlTexts{"frmMain", "Drives", driveTexts()},
        ControlTexts{"frmMain", "Figures and names", figureTexts()},
        ControlTexts{"frmMain", "Systems", systemTexts()},
        ControlTexts{"frmAmountSlider", "How many are to remain", amountTexts()},
        ControlTexts{"frmMain", "Menu File", fileMenuTexts()},
        ControlTexts{"frmMain", "Menu Standard Hulls", standardHullTexts()},
        ControlTexts{"frmMain", "Menu Extras", extrasMenuTexts()},
        ControlTexts{"frmMain", "Menu Design", designMenuTexts()},
        ControlTexts{"frmMain", "Menu Help", helpMenuTexts()},
        ControlTexts{"frmMain", "Menus that pop up", popUpTexts()},
        ControlTexts{"frmExtras", "Extras Page", extrasPageTexts()},
        ControlTexts{"frmFindings", "Findings", findingsTexts()},
        ControlTexts{"frmCompare", "Compare", compareTexts()},
        ControlTexts{"frmFleet", "Fleet", fleetTexts()},
        ControlTexts{"frmFleet", "Menus of the fleet", fleetMenuTexts()},
        ControlTexts{"frmPutAside", "Designs Put Aside", putAsideTexts()},
        ControlTexts{"frmMapper", "Create SSD", mapperTexts()},
        ControlTexts{"frmSSDView", "View SSD", viewerTexts()},
        ControlTexts{"frmSSDMapCreator", "Create SSD Map", mapCreatorTexts()},
        ControlTexts{"frmAbout", "About", aboutTexts()}};
    return sections;
}

std::string whatsThis(const Control& control) {
    const std::string_view form = formOf(control), name = control.name();
    const std::string_view own = textOf(form, name);
    if (!own.empty()) {
        return std::string(own);
    }
    const std::string_view array = name.substr(0, name.find_last_not_of("0123456789") + 1);
    return array.empty() ? std::string() : std::string(textOf(form, array));
}

}  // namespace fleetwright
