#pragma once

#include "Menu.h"
#include "Panel.h"

namespace fleetwright {

/// Help with the program: the player's guide, and what each control is.
class GuidePanel : public Panel {
public:
    GuidePanel(const PanelContext& context, MenuEntry& mnuDesign)
        : Panel(context), m_design(mnuDesign) {}

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuGuide{m_design,
                       {.name = "mnuGuide",
                        .caption = "Player's Guide",
                        .toolTip = "Opens the guide in the browser"},
                       [this] { mnuGuide_Click(); }};
    MenuEntry mnuWhatsThis{m_design,
                           {.name = "mnuWhatsThis",
                            .caption = "What's This?",
                            .toolTip = "Tells what the control is that is clicked next",
                            .shortcut = "Shift+F1"},
                           [this] { mnuWhatsThis_Click(); }};

private:
    void mnuGuide_Click();
    void mnuWhatsThis_Click();
};

}  // namespace fleetwright
