#pragma once

#include "Menu.h"
#include "Panel.h"
#include "Shortcut.h"

namespace fleetwright {

/// How large the main window is shown.
class ZoomPanel : public Panel {
public:
    ZoomPanel(const PanelContext& context, MenuEntry& mnuDesign)
        : Panel(context), m_design(mnuDesign) {}

private:
    MenuEntry& m_design;

public:
    MenuEntry mnuZoomIn{m_design,
                        {.name = "mnuZoomIn",
                         .caption = "Zoom In",
                         .toolTip = "Shows the window and all that is in it larger",
                         .shortcut = "Ctrl++"},
                        [this] { zoomTo(form().zoom().larger()); }};
    MenuEntry mnuZoomOut{m_design,
                         {.name = "mnuZoomOut",
                          .caption = "Zoom Out",
                          .toolTip = "Shows the window and all that is in it smaller",
                          .shortcut = "Ctrl+-"},
                         [this] { zoomTo(form().zoom().smaller()); }};
    MenuEntry mnuActualSize{m_design,
                            {.name = "mnuActualSize",
                             .caption = "Actual Size",
                             .toolTip = "Shows the window as large as it is by itself",
                             .shortcut = "Ctrl+0"},
                            [this] { zoomTo(Zoom()); }};
    MenuEntry mnuSepZoom{m_design, {.name = "mnuSepZoom", .caption = "-"}};
    /// On many keyboards the plus sign is the upper one of this key.
    Shortcut keyZoomIn{
        form(), {.name = "keyZoomIn", .shortcut = "Ctrl+="}, [this] { mnuZoomIn.choose(); }};

private:
    void zoomTo(Zoom zoom);
};

}  // namespace fleetwright
