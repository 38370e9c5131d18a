#pragma once

#include "Menu.h"
#include "Panel.h"

namespace fleetwright {

/// The menus that open other windows: the extras but AutoMass, and the help.
class WindowCommands : public Panel {
public:
    WindowCommands(const PanelContext& context, MenuEntry& mnuExtras, MenuEntry& mnuHelpTop);

    /// Only a ship that a map serves gets a sheet.
    void show();
    /// Says which maps the start has dropped, if any.
    void sayDroppedMaps();

private:
    MenuEntry& m_extras;
    MenuEntry& m_helpTop;

public:
    MenuEntry mnuExtrasPage{m_extras, {.name = "mnuExtrasPage", .caption = "Extras Page"}, [this] {
                                mnuExtrasPage_Click();
                            }};
    MenuEntry mnuSepPage{m_extras, {.name = "mnuSepPage", .caption = "-"}};
    MenuEntry mnuSSD{
        m_extras, {.name = "mnuSSD", .caption = "Create SSD"}, [this] { mnuSSD_Click(); }};
    MenuEntry mnuViewSSD{
        m_extras, {.name = "mnuViewSSD", .caption = "View SSD"}, [this] { mnuViewSSD_Click(); }};
    MenuEntry mnucreateSSDMap{m_extras,
                              {.name = "mnucreateSSDMap", .caption = "Create SSD Map"},
                              [this] { mnucreateSSDMap_Click(); }};
    MenuEntry mnuSepMap{m_extras, {.name = "mnuSepMap", .caption = "-"}};

    MenuEntry mnuHelp{m_helpTop, {.name = "mnuHelp", .caption = "Help", .shortcut = "F1"}, [this] {
                          mnuHelp_Click();
                      }};
    MenuEntry mnuSepHelp{m_helpTop, {.name = "mnuSepHelp", .caption = "-"}};
    MenuEntry mnuAbout{m_helpTop,
                       {.name = "mnuAbout", .caption = "About", .shortcut = "F12"},
                       [this] { mnuAbout_Click(); }};

private:
    void mnuExtrasPage_Click();
    void mnuSSD_Click() { services().showMapper(); }
    void mnuViewSSD_Click() { services().showViewer(); }
    void mnucreateSSDMap_Click() { services().showMapCreator(); }
    void mnuHelp_Click();
    void mnuAbout_Click() { services().showAbout(); }
};

}  // namespace fleetwright
