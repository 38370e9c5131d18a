#pragma once

#include "History.h"
#include "Menu.h"
#include "Panel.h"
#include "Shortcut.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fleetwright {

/// Takes back what the user has done, step by step, and does it again. Nobody has to tell it of a
/// step: whenever the window comes to rest, it looks at what has become of the design.
class HistoryPanel : public Panel {
public:
    struct Others {
        std::function<DesignMoment()> moment;  ///< the design as it is now
        std::function<void(const DesignMoment&)> goBackTo;
        std::function<std::string()> safe;               ///< what is known to be safe, to recovery
        std::function<void(const std::string&)> isSafe;  ///< puts that back
        std::function<bool()> giveUp;  ///< keeps the design, which is about to go; see recovery
    };

    HistoryPanel(const PanelContext& context, MenuEntry& mnuDesign, Others others);

    /// From here on there are steps: the load of the window is over.
    void begin();
    /// The window has come to rest; `kind` as in `Acts`.
    void rest(std::string_view kind);
    /// What that was in words, if the last rest has found a further step.
    const std::string& newStep() const { return m_newStep; }
    /// The ship is about to be another one, or is as its file is.
    void noteReplaced() { m_isReplaced = true; }
    void noteSaved() { m_isSaved = true; }
    /// This is wrong with the file that the ship at hand was loaded from.
    void noteFound(std::vector<ShipFinding> found) { m_found = std::move(found); }
    /// The same of the design at hand; nothing once its file was written.
    std::vector<ShipFinding> found() const {
        return m_history ? m_history->found() : std::vector<ShipFinding>();
    }

    /// The steps of the design at hand, as a text to be put aside with it.
    std::string steps() const;
    /// Whether steps of the design at hand can be redone.
    bool isAhead() const { return m_history && m_history->isAhead(); }
    /// The design at hand was put aside as this ship file with these steps: has them back. False if
    /// they are damaged, or are not those of this design. Only in the work that has opened it.
    bool adopt(const std::string& steps, const std::string& shipFile);

    const std::optional<History>& history() const { return m_history; }

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuUndo{m_design,
                      {.name = "mnuUndo",
                       .caption = "Undo",
                       .toolTip = "Takes the last step back",
                       .shortcut = "Ctrl+Z",
                       .isVerbatim = true,
                       .isEnabled = false},
                      [this] { mnuUndo_Click(); }};
    MenuEntry mnuRedo{m_design,
                      {.name = "mnuRedo",
                       .caption = "Redo",
                       .toolTip = "Does again what was taken back",
                       .shortcut = "Ctrl+Y",
                       .isVerbatim = true,
                       .isEnabled = false},
                      [this] { mnuRedo_Click(); }};
    MenuEntry mnuSepHistory{m_design, {.name = "mnuSepHistory", .caption = "-"}};
    Shortcut scRedo{
        form(), {.name = "scRedo", .shortcut = "Ctrl+Shift+Z"}, [this] { mnuRedo_Click(); }};

private:
    void mnuUndo_Click();
    void mnuRedo_Click();
    void go(const char* what, Way way);
    void show();
    std::string whatCame(const DesignMoment& moment) const;

    Others m_others;
    std::optional<History> m_history;
    std::optional<StoredSteps> m_adopted;
    bool m_isReplaced = false, m_isSaved = false;  ///< since the last rest
    std::vector<ShipFinding> m_found;              ///< likewise
    std::string m_newStep;
};

}  // namespace fleetwright
