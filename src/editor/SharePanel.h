#pragma once

#include "Menu.h"
#include "Panel.h"

#include <functional>
#include <string>

namespace fleetwright {

/// Designs that come and go by the clipboard, as codes of one line.
class SharePanel : public Panel {
public:
    /// `openCode` replaces the ship by the one in a code that is sound.
    SharePanel(const PanelContext& context, MenuEntry& mnuDesign,
               std::function<void(const std::string& code)> openCode);

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuCopyDesign{m_design,
                            {.name = "mnuCopyDesign",
                             .caption = "Copy Design",
                             .toolTip = "Puts the design on the clipboard, as a line for chats and "
                                        "mails",
                             .shortcut = "Ctrl+C"},
                            [this] { mnuCopyDesign_Click(); }};
    MenuEntry mnuPasteDesign{m_design,
                             {.name = "mnuPasteDesign",
                              .caption = "Paste Design",
                              .toolTip = "Opens the design whose code, or ship file, was copied",
                              .shortcut = "Ctrl+V"},
                             [this] { mnuPasteDesign_Click(); }};

private:
    void mnuCopyDesign_Click();
    void mnuPasteDesign_Click();

    std::function<void(const std::string& code)> m_openCode;
};

}  // namespace fleetwright
