#pragma once

#include "Menu.h"
#include "Panel.h"
#include "TrayIcon.h"

namespace fleetwright {

/// The window as an icon in the tray while it is minimized, and the icon's menu.
class TrayPanel : public Panel {
public:
    /// Fills the pop-up.
    TrayPanel(const PanelContext& context, MenuEntry& mnuTaskBarFunctions);

    /// The window was minimized or taken back.
    void followState();
    /// Brings a hidden window back into the task bar when the tray has gone in which its icon was.
    void keepFindable();

private:
    MenuEntry& m_taskBarFunctions;

public:
    TrayIcon tray1{
        form(),
        {.name = "tray1", .picture = "tray", .toolTip = "Nils's Fleetwright"},
        {.leftClick = [this] { tray1_LeftClick(); }, .rightClick = [this] { tray1_RightClick(); }}};
    MenuEntry mnuRestore{m_taskBarFunctions, {.name = "mnuRestore", .caption = "Restore"}, [this] {
                             mnuRestore_Click();
                         }};
    MenuEntry mnuSepTask{m_taskBarFunctions, {.name = "mnuSepTask", .caption = "-"}};
    MenuEntry mnuExitTask{m_taskBarFunctions, {.name = "mnuExitTask", .caption = "Exit"}, [this] {
                              mnuExitTask_Click();
                          }};

private:
    void tray1_LeftClick() { restore(); }
    void tray1_RightClick();
    void mnuRestore_Click() { restore(); }
    void mnuExitTask_Click();
    void restore();
};

}  // namespace fleetwright
