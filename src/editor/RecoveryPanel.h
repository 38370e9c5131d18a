#pragma once

#include "Menu.h"
#include "Panel.h"
#include "RecoveryFolder.h"
#include "Timer.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// Puts designs aside, so that a crash costs two seconds of work at the most and no ship goes
/// without trace, and offers them: once after a crash, and whenever the user wants to see them.
class RecoveryPanel : public Panel {
public:
    /// `open` replaces the ship by the one in a file of a design put aside; `steps` hands out what
    /// is put aside with the design at hand, and `areStepsAhead` says whether some of them can be
    /// redone.
    RecoveryPanel(const PanelContext& context, MenuEntry& mnuDesign,
                  std::function<void(const std::filesystem::path&)> open,
                  std::function<std::string()> steps, std::function<bool()> areStepsAhead);

    /// Something may have changed: looks at it in two seconds, if not sooner.
    void noteChange();
    /// From here on nothing of the design can be lost: it is new, or in its file.
    void noteSafe();
    /// Which design that is, as a word; and the same of another design, which takes the place of
    /// the one at hand. An empty word is none.
    const std::string& safe() const { return m_safe; }
    void setSafe(const std::string& safe) { m_safe = safe; }
    /// A ship file, or a sheet, holds this ship's text, as this run has read or written it.
    void noteFile(const std::string& file, std::string_view text);
    /// What somebody else has written into a file since it was noted: nothing, or nothing that has
    /// to stay; what is kept for good now; or what the user does not let go.
    enum class Others { None, Kept, Staying };
    /// The design is about to be saved into a file. What others have written there is kept; if that
    /// is not possible, the user says whether it may go all the same.
    Others keepOthersIn(const std::string& file);
    /// The design at hand is about to go. What has changed since it was safe is kept for good; if
    /// that is not possible, the user says whether it may go all the same. False if it may not.
    bool giveUpDesign();
    /// The same for the one in a file, which does not go for it even if it is a design put aside.
    bool giveUpDesignFor(const std::filesystem::path& file);
    /// Whether the design is in a file as it is; true also if nothing is put aside.
    bool isSafe() const;
    /// That a crash has left others than the one that was opened last; empty if it has not.
    std::string alsoLeft() const;
    /// Asks about the designs that a crash has left behind, as soon as the start is over.
    void askAfterStart() { tmrAsk.restart(); }

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuPutAside{m_design,
                          {.name = "mnuPutAside", .caption = "Designs Put Aside..."},
                          [this] { mnuPutAside_Click(); }};
    MenuEntry mnuSepPutAside{m_design, {.name = "mnuSepPutAside", .caption = "-"}};
    /// Two seconds after a change it puts the design aside.
    Timer tmrRecovery{form(), "tmrRecovery", 2000, false, [this] { tmrRecovery_Timer(); }};

    /// Waits for the end of the start.
    Timer tmrAsk{form(), "tmrAsk", 200, false, [this] { tmrAsk_Timer(); }};

private:
    void tmrRecovery_Timer();
    void tmrAsk_Timer();
    void mnuPutAside_Click();
    bool isLostToSheet() const;
    RecoveryFolder::Aside design() const;
    void show(std::vector<RecoveryFolder::Design> designs);

    std::function<void(const std::filesystem::path&)> m_open;
    std::function<std::string()> m_steps;
    std::function<bool()> m_areStepsAhead;

    std::optional<RecoveryFolder::Aside> m_aside;  ///< the design as it was put aside last
    int m_alsoLeft = 0;  ///< by a crash, besides the design that was opened last
    std::map<std::string, std::string> m_files;  ///< fingerprints of what they were noted to hold
    std::string m_safe;  ///< the fingerprint of the design when nothing of it could be lost
};

}  // namespace fleetwright
