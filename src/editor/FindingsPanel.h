#pragma once

#include "Menu.h"
#include "Panel.h"
#include "Remark.h"
#include "ShipFileCheck.h"
#include "Timer.h"
#include "frmFindings.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class Frame;
class HullPanel;
class MassPanel;
class NamesPanel;
class SystemsPanel;
class TreePanel;

/// What is wrong with the design at hand: on the status line when it comes about, and as a list
/// that leads to the controls at fault. What the load of its file has found stays in the list until
/// the design is saved.
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

    FindingsPanel(const PanelContext& context, MenuEntry& mnuDesign, StatusBar& sbStatus,
                  Places places);

    void show();
    /// The ship at hand was loaded from a file at this path, with this text. Says what of it the
    /// ship did not take, all unknown systems by name, or what else is wrong with it.
    void noteLoad(const std::string& path, std::string_view shipFile);
    /// The ship at hand was saved, so that its file says no more than it does.
    void noteSaved();
    /// Another ship takes the place of the one at hand.
    void noteReplaced();
    /// The window has come to rest behind this step of the history. In front of those of a design
    /// without a file there is another design.
    void rest(std::size_t step);

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
    Places m_places;
    Remark m_base;
    Remark m_overload;
    /// What was wrong with files, by the path that a ship knows; nothing for one without.
    std::map<std::string, std::vector<ShipFinding>> m_ofFiles;
    std::vector<ShipFinding> m_listed;
    std::size_t m_step = 0;       ///< of the last rest
    std::size_t m_firstStep = 0;  ///< of the design that was loaded last with findings
    bool m_isLoaded = false;      ///< that was since the last rest
};

}  // namespace fleetwright
