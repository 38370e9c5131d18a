#include "FindingsPanel.h"

#include "HistoryPanel.h"
#include "HullPanel.h"
#include "MassPanel.h"
#include "NamesPanel.h"
#include "SystemsPanel.h"
#include "TreePanel.h"
#include "readShip.h"

#include <algorithm>
#include <utility>

namespace fleetwright {

namespace {

constexpr const char* restInList = "see Findings... in the menu Design";

/// Where a finding is: a line of a file, or a part of the design.
std::string whereIs(const ShipFinding& finding, const std::string& path) {
    if (finding.line != 0) {
        const std::string line = "line " + std::to_string(finding.line);
        return path.empty() ? line : shownText(shipSourceName(path)) + ", " + line;
    }
    switch (finding.about) {
    case ShipKey::ShipName:
        return "Ship name";
    case ShipKey::DesignerName:
        return "Designer";
    case ShipKey::Mass:
        return "Mass";
    case ShipKey::Thrust:
        return "Thrust";
    case ShipKey::Type:
        return "Hull type";
    case ShipKey::Streamlining:
        return "Streamlining";
    case ShipKey::Armor:
        return "Armor";
    case ShipKey::Ftl:
        return "FTL";
    case ShipKey::System:
        return shownText(finding.system);
    case ShipKey::Unknown:
        break;
    }
    return "Ship file";
}

/// The names in quotation marks, each once; of many the first ones.
std::string listOf(std::vector<std::string> names) {
    constexpr std::size_t most = 5;
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), most); ++i) {
        text += (i == 0 ? "" : ", ") + quote(names[i]);
    }
    return names.size() <= most
               ? text
               : text + " and " + std::to_string(names.size() - most) + " more, " + restInList;
}

}  // namespace

FindingsPanel::FindingsPanel(const PanelContext& context, MenuEntry& mnuDesign, StatusBar& sbStatus,
                             HistoryPanel& history, Places places)
    : Panel(context), m_design(mnuDesign), m_status(sbStatus), m_history(history),
      m_places(places) {}

void FindingsPanel::show() {
    m_base.follow(m_status, isBase(ship().Hull())
                                ? "A base has no thrust, no FTL drive and no streamlining"
                                : "");
    m_overload.follow(m_status, asSentence(overloadText(ship())));
    if (list.isLoaded()) {
        tmrFindings.restart();
    }
}

void FindingsPanel::noteLoad(const std::string& path, std::string_view shipFile) {
    std::vector<ShipFinding> findings = findInShipFile(shipFile, ship(), {});
    // What is wrong with the ship as a whole is looked for in the design.
    std::erase_if(findings, [](const ShipFinding& finding) { return finding.line == 0; });
    if (findings.empty()) {
        return;
    }
    std::vector<std::string> unknown;
    for (const ShipFinding& finding : findings) {
        if (finding.about == ShipKey::System && ship().weapNameToIndex(finding.system) == -1 &&
            std::ranges::find(unknown, finding.system) == unknown.end()) {
            unknown.push_back(finding.system);
        }
    }
    const std::string file = shipSourceName(path);
    if (unknown.size() > 1) {
        window().say(complaint(
            file, {0, std::to_string(unknown.size()) + " unknown systems: " + listOf(unknown)}));
    } else if (!unknown.empty() || ship().refusedLines().empty()) {  // the rest says itself
        const auto first = std::ranges::find_if(findings, [&](const ShipFinding& finding) {
            return unknown.empty() || finding.system == unknown.front();
        });
        window().say(complaint(file, *first) +
                     (findings.size() == 1 ? "" : std::string("; for more, ") + restInList));
    }
    m_history.noteFound(std::move(findings));
}

void FindingsPanel::mnuFindings_Click() {
    window().acts.whenIdle([this] {
        look();
        list.show();
    });
}

void FindingsPanel::tmrFindings_Timer() {
    if (window().acts.isIdle()) {
        tmrFindings.setEnabled(false);
        look();
    }
}

/// Only with the design at rest: a load reads its lines with what the check of lines uses, too.
void FindingsPanel::look() {
    if (!window().g_Ship) {
        return;
    }
    const std::vector<ShipFinding> ofDesign = findInDesign(ship());
    m_listed = ofDesign;
    for (ShipFinding& ofFile : m_history.found()) {
        if (std::ranges::find(ofDesign, ofFile.text, &ShipFinding::text) == ofDesign.end()) {
            m_listed.push_back(std::move(ofFile));
        }
    }
    std::vector<ListView::Row> rows;
    for (const ShipFinding& finding : m_listed) {
        const std::string text = asSentence(finding.text), where = whereIs(finding, ship().origin);
        rows.push_back(
            {.key = std::string(where).append(": ").append(text), .text = text, .subItem = where});
    }
    list.setFindings(std::move(rows));
}

void FindingsPanel::goTo(std::size_t row) {
    if (!window().g_Ship || row >= m_listed.size()) {
        return;
    }
    // Copies: the list may be brought up to date.
    const ShipFinding finding = m_listed[row];
    const ListView::Row shown = list.lvFindings.rows()[row];
    if (form().state() == WindowState::Minimized) {
        form().setState(WindowState::Normal);
    }
    form().show();
    if (Control* const control = controlOf(finding)) {
        control->setFocus();
    }
    window().say(shown.subItem + ": " + shown.text);
}

/// What a finding is about; null if it is only about its file.
Control* FindingsPanel::controlOf(const ShipFinding& finding) {
    switch (finding.about) {
    case ShipKey::ShipName:
        return &m_places.names.txtShipName;
    case ShipKey::DesignerName:
        return &m_places.names.txtDesigner;
    case ShipKey::Mass:
        return &m_places.mass.txtMass;
    case ShipKey::Thrust:
        return chosenIn(m_places.hull.fraThrust);
    case ShipKey::Type:
        return chosenIn(m_places.hull.fraHull);
    case ShipKey::Streamlining:
        return chosenIn(m_places.hull.fraStreamling);
    case ShipKey::Armor:
        return chosenIn(m_places.hull.fraArmor);
    case ShipKey::Ftl:
        return chosenIn(m_places.hull.fraFTL);
    case ShipKey::System: {
        ListView& aboard = m_places.aboard.lvCurrentWeapons;
        if (const auto row = aboard.find(finding.system)) {
            aboard.select(*row);
            aboard.click();  // which shows what it weighs and costs
            return &aboard;
        }
        return &m_places.tree.tvWeapons;
    }
    case ShipKey::Unknown:
        break;
    }
    return nullptr;
}

/// The button of a group that is on. A group that a base does not have is closed by the hull.
Control* FindingsPanel::chosenIn(const Frame& group) {
    if (!group.isEnabled()) {
        return chosenIn(m_places.hull.fraHull);
    }
    const auto chosen = std::ranges::find_if(
        group.controls(), [](const Control* control) { return control->design().isOn; });
    return chosen == group.controls().end() ? group.controls().front() : *chosen;
}

}  // namespace fleetwright
