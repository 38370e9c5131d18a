#pragma once

#include "Button.h"
#include "FleetPart.h"
#include "ListView.h"
#include "Menu.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// The ships of the fleet as a list: which they are, what they cost and what is wrong with them;
/// adding them, taking them away, their order, and the way of each into the main window.
class FleetShipsPanel : public FleetPart {
public:
    FleetShipsPanel(const FleetContext& context, MenuEntry& mnuShips);

    void show();
    /// Where the list is, and where the buttons begin.
    void place(const Place& list, int buttons);
    /// The place of the selected ship in the fleet.
    std::optional<std::size_t> selected() const;
    /// Adds the ships in these files, as one step.
    void addFiles(const std::vector<std::string>& files);

private:
    MenuEntry& m_ships;

public:
    MenuEntry mnuAddShipAtHand{m_ships,
                               {.name = "mnuAddShipAtHand",
                                .caption = "Add Ship at Hand",
                                .toolTip = "Adds the ship in the main window",
                                .shortcut = "Ctrl+D"},
                               [this] { addShipAtHand(); }};
    MenuEntry mnuAddFiles{m_ships,
                          {.name = "mnuAddFiles",
                           .caption = "Add Files...",
                           .toolTip = "Adds ship files, or sheets that carry a ship",
                           .shortcut = "Ctrl+I"},
                          [this] { chooseFiles(); }};
    MenuEntry mnuOpenShip{m_ships,
                          {.name = "mnuOpenShip",
                           .caption = "Open Ship",
                           .toolTip = "Opens the selected ship in the main window",
                           .shortcut = "Ctrl+L"},
                          [this] { openShip(); }};
    MenuEntry mnuSepOrder{m_ships, {.name = "mnuSepOrder", .caption = "-"}};
    MenuEntry mnuMoveUp{m_ships,
                        {.name = "mnuMoveUp", .caption = "Move Up", .shortcut = "Alt+Up"},
                        [this] { move(-1); }};
    MenuEntry mnuMoveDown{m_ships,
                          {.name = "mnuMoveDown", .caption = "Move Down", .shortcut = "Alt+Down"},
                          [this] { move(+1); }};
    MenuEntry mnuRemoveShip{m_ships,
                            {.name = "mnuRemoveShip",
                             .caption = "Remove",
                             .toolTip = "Takes the selected ship out of the fleet"},
                            [this] { remove(); }};

    ListView lvShips{form(),
                     {.name = "lvShips",
                      .place = {},
                      .accessibleName = "Ships of the fleet",
                      .accessibleDescription = "Enter opens a ship in the main window, Delete "
                                               "takes it out of the fleet"}};
    Button cmdAddShipAtHand{form(),
                            {.name = "cmdAddShipAtHand",
                             .place = {0, 0, 1860, 375},
                             .caption = "Add Ship at &Hand",
                             .toolTip = "Adds the ship in the main window (Ctrl+D)"},
                            [this] { addShipAtHand(); }};
    Button cmdAddFiles{form(),
                       {.name = "cmdAddFiles",
                        .place = {0, 450, 1860, 375},
                        .caption = "Add &Files...",
                        .toolTip = "Adds ship files, or sheets that carry a ship (Ctrl+I)"},
                       [this] { chooseFiles(); }};
    Button cmdOpenShip{form(),
                       {.name = "cmdOpenShip",
                        .place = {0, 1050, 1860, 375},
                        .caption = "&Open Ship",
                        .toolTip = "Opens the selected ship in the main window (Ctrl+L)"},
                       [this] { openShip(); }};
    Button cmdMoveUp{form(),
                     {.name = "cmdMoveUp",
                      .place = {0, 1650, 1860, 375},
                      .caption = "Move &Up",
                      .toolTip = "Moves the selected ship up in the list (Alt+Up)"},
                     [this] { move(-1); }};
    Button cmdMoveDown{form(),
                       {.name = "cmdMoveDown",
                        .place = {0, 2100, 1860, 375},
                        .caption = "Move &Down",
                        .toolTip = "Moves the selected ship down in the list (Alt+Down)"},
                       [this] { move(+1); }};
    Button cmdRemoveShip{form(),
                         {.name = "cmdRemoveShip",
                          .place = {0, 2550, 1860, 375},
                          .caption = "&Remove",
                          .toolTip = "Takes the selected ship out of the fleet (Delete in the "
                                     "list)"},
                         [this] { remove(); }};

private:
    void addShipAtHand();
    void chooseFiles();
    void openShip();
    void move(int step);
    void remove();
    ListView::Row rowOf(std::size_t ship) const;

    std::optional<std::size_t> m_wanted;  ///< the row to be selected by the next show
};

}  // namespace fleetwright
