#pragma once

#include "Menu.h"
#include "Panel.h"
#include "Remark.h"
#include "ShipFileCheck.h"
#include "Timer.h"
#include "frmFindings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class Frame;
class HistoryPanel;
class HullPanel;
class MassPanel;
class NamesPanel;
class SystemsPanel;
class TreePanel;

/// What is wrong with the design at hand: on the status line when it comes about, and as a list
/// that leads to the controls at fault. What the load of its file has found stays in the list until
/// the design is saved, and is there again when that is undone or redone.
class FindingsPanel : public Panel {
public:
    /// The panels to whose controls findings lead.
    struct Places {
        HullPanel& hull;
        MassPanel& mass;
        NamesPanel& names;
        SystemsPanel& aboard;
        TreePanel& tree;
    };

    /// `history` knows what was found in the file of which design.
    FindingsPanel(const PanelContext& context, MenuEntry& mnuDesign, StatusBar& sbStatus,
                  HistoryPanel& history, Places places);

    void show();
    /// The ship at hand was loaded from a file at this path, with this text. Says what of it the
    /// ship did not take, all unknown systems by name, or what else is wrong with it.
    void noteLoad(const std::string& path, std::string_view shipFile);

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuFindings{m_design,
                          {.name = "mnuFindings",
                           .caption = "Findings...",
                           .toolTip = "Lists what is wrong with this design"},
                          [this] { mnuFindings_Click(); }};
    MenuEntry mnuSepFindings{m_design, {.name = "mnuSepFindings", .caption = "-"}};
    /// Brings the list up to date when the design has come to rest.
    Timer tmrFindings{form(), "tmrFindings", 100, false, [this] { tmrFindings_Timer(); }};
    frmFindings list{[this](std::size_t row) { goTo(row); }};

private:
    void mnuFindings_Click();
    void tmrFindings_Timer();

    void look();
    void goTo(std::size_t row);
    Control* controlOf(const ShipFinding& finding);
    Control* chosenIn(const Frame& group);

    StatusBar& m_status;
    HistoryPanel& m_history;
    Places m_places;
    Remark m_base;
    Remark m_overload;
    std::vector<ShipFinding> m_listed;
};

}  // namespace fleetwright
