// The controls of the window of fleets.

#include "sections.h"

#include <array>

namespace fleetwright {

ControlRows fleetTexts() {
    static constexpr std::array rows = {
        ControlText{"lblFleetName txtFleetName", "Name of the fleet",
                    "What the fleet is called, on its roster and as the name of its file."},
        ControlText{"lblPlayer txtPlayer", "Player", "Who plays the fleet."},
        ControlText{"lblPointsLimit txtPointsLimit", "Points limit",
                    "How many points the fleet may cost. Below the list stands what is left of "
                    "them, and a warning if it costs more. Leave it empty if any number will do."},
        ControlText{"fraFleetNotes txtFleetNotes", "Notes on the fleet",
                    "What there is to say about the fleet. It stands on the roster."},
        ControlText{"lvShips", "Ships of the fleet",
                    "The designs of the fleet, with how many ships there are of each, class, mass, "
                    "points and the points of all of them. The last column says what is wrong with "
                    "a design. The figures follow its file. Double-click a design or press "
                    "Enter to open it in the main window, press Delete to take it out."},
        ControlText{"cmdAddShipAtHand", "Add Ship at Hand",
                    "Adds the ship in the main window; one more of it, if the fleet has it."},
        ControlText{"cmdAddFiles", "Add Files...",
                    "Adds ship files, or sheets that carry a ship, as many as you choose. You may "
                    "drop files on the window as well."},
        ControlText{"cmdOpenShip", "Open Ship",
                    "Opens the selected ship in the main window. Once it is saved there, its "
                    "figures here are the new ones."},
        ControlText{"cmdMoveUp", "Move Up", "Moves the selected ship up in the list."},
        ControlText{"cmdMoveDown", "Move Down", "Moves the selected ship down in the list."},
        ControlText{"cmdRemoveShip", "Remove",
                    "Takes the selected ship out of the fleet. Its file stays."},
        ControlText{"lblSum", "Totals",
                    "All ships together: how many, their mass, damage points and points, and what "
                    "is left of the points limit."},
        ControlText{
            "lblWarning", "Warnings",
            "What is wrong with the fleet: limits that it breaks, designs that do not load, "
            "and what has changed since the fleet was saved, designs or the catalogue."},
        ControlText{"fraShip", "Selected ship",
                    "How many there are of the ship that is selected in the list, what they are "
                    "called, and notes on them."},
        ControlText{"lblCount txtCount updwnCount", "Count",
                    "How many ships of this design the fleet has."},
        ControlText{"lblNames txtNames", "Own names",
                    "What the ships of this design are called, one name a line. A ship without one "
                    "has the name of the design. With more names than ships, there are as many "
                    "ships as names."},
        ControlText{
            "lblShipNotes txtShipNotes", "Notes on the selected ship",
            "What there is to say about the ships of this design. It stands on the roster."},
        ControlText{"fraLimits lvLimits", "Limits by class",
                    "How many ships or points of one kind the fleet may have at most, and what is "
                    "left of that. Delete takes a limit away."},
        ControlText{"txtMost", "At most", "The number of the limit that Set sets."},
        ControlText{"cboKind", "Kind of ship",
                    "What the limit is about: a class as Escort, a hull as Warship, or a size as "
                    "Destroyer."},
        ControlText{"optShips optPoints", "What the limit counts",
                    "Whether the limit is about the number of ships or about their points."},
        ControlText{"cmdSetLimit", "Set",
                    "Sets the limit: a new one, or another number for one that is there."},
        ControlText{"cmdRemoveLimit", "Drop", "Takes the selected limit away."},
        ControlText{"sbFleet", "Status line", "What has happened, and why."}};
    return rows;
}

ControlRows fleetMenuTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuFleetFile", "Fleet",
                    "What begins, opens, saves, prints and exports fleets."},
        ControlText{"mnuNewFleet", "New", "Begins a fleet without ships."},
        ControlText{"mnuOpenFleet", "Open...", "Opens the fleet in a file."},
        ControlText{"mnuSaveFleet", "Save",
                    "Saves the fleet into its file. If somebody else has changed that, the window "
                    "asks first."},
        ControlText{"mnuSaveFleetAs", "Save As...",
                    "Saves the fleet into another file. The file names its ships from its own "
                    "folder on, so that you can move or pack both together."},
        ControlText{"mnuPreviewFleet", "Preview...",
                    "Shows the roster of the fleet and the sheets of all its ships as they will be "
                    "printed."},
        ControlText{"mnuPrintFleet", "Print All...",
                    "Prints the roster of the fleet and the sheets of all its ships, small ones "
                    "together on a page."},
        ControlText{"mnuExportFleet", "Export PDF...", "Saves the same pages as a file."},
        ControlText{"mnuPlayFleet", "Play in Browser...",
                    "Saves the fleet as one page that opens in any browser, also on a tablet and "
                    "without a network, to cross off damage at the table; and opens it."},
        ControlText{"mnuCloseFleet", "Close", "Closes the window."},
        ControlText{"mnuFleetEdit", "Edit", "What takes steps back."},
        ControlText{"mnuUndoFleet", "Undo",
                    "Takes the last step back, and with each further time the one before."},
        ControlText{"mnuRedoFleet", "Redo", "Does again what was taken back."},
        ControlText{"mnuShips", "Ships", "What adds ships, takes them away and orders them."},
        ControlText{"mnuAddShipAtHand", "Add Ship at Hand", "Adds the ship in the main window."},
        ControlText{"mnuAddFiles", "Add Files...", "Adds ship files, or sheets that carry a ship."},
        ControlText{"mnuOpenShip", "Open Ship", "Opens the selected ship in the main window."},
        ControlText{"mnuMoveUp", "Move Up", "Moves the selected ship up in the list."},
        ControlText{"mnuMoveDown", "Move Down", "Moves the selected ship down in the list."},
        ControlText{"mnuRemoveShip", "Remove", "Takes the selected ship out of the fleet."}};
    return rows;
}

}  // namespace fleetwright
