#pragma once

#include "FileStamp.h"
#include "Menu.h"
#include "Panel.h"
#include "Timer.h"
#include "frmCompare.h"

#include <memory>
#include <optional>
#include <string>

namespace fleetwright {

/// The design at hand beside another ship, which is looked at again whenever one of the two has
/// changed.
class ComparePanel : public Panel {
public:
    ComparePanel(const PanelContext& context, MenuEntry& mnuDesign)
        : Panel(context), m_design(mnuDesign) {}

    /// The design at hand may have changed.
    void show();
    /// One of the windows has become the active one: meanwhile the other ship may have changed.
    void lookAgain();

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuCompare{m_design,
                         {.name = "mnuCompare",
                          .caption = "Compare With...",
                          .toolTip = "Shows this design beside another ship"},
                         [this] { mnuCompare_Click(); }};
    /// Brings the comparison up to date when the design has come to rest.
    Timer tmrCompare{form(), "tmrCompare", 100, false, [this] { tmrCompare_Timer(); }};
    frmCompare beside{{.chooseFile = [this] { chooseFile(); },
                       .pasteCode = [this] { pasteCode(); },
                       .activated = [this] { lookAgain(); }}};

private:
    void mnuCompare_Click();
    void tmrCompare_Timer();
    void chooseFile();
    void pasteCode();
    void take(const std::string& source);
    void look();
    void readOther();
    std::string otherName() const;

    std::string m_source;  ///< the other ship: the path of a file, or a code; empty at first
    std::optional<FileStamp> m_stamp;  ///< of that file, before it was read
    std::unique_ptr<ShipClass> m_other;
    std::string m_fault;  ///< why there is no other ship any more
};

}  // namespace fleetwright
