// The controls of the windows that the main window opens.

#include "sections.h"

#include <array>

namespace fleetwright {

ControlRows amountTexts() {
    static constexpr std::array rows = {
        ControlText{"sliCount lblAmount", "Amount",
                    "How many pieces of the system are to remain, from none to as many as there "
                    "are."},
        ControlText{"cmdOK", "OK", "Takes all pieces beyond that number off the ship."},
        ControlText{"cmdCancel", "Cancel", "Leaves the system as it is."}};
    return rows;
}

ControlRows extrasPageTexts() {
    static constexpr std::array rows = {
        ControlText{"lblDesigner txtDesigner", "Designer",
                    "Whose design the ship at hand is. OK gives it this name; Save Settings also "
                    "keeps it for the first ship of each later start."},
        ControlText{"lblShipName txtShipName", "Ship Name",
                    "The name of the ship at hand. OK gives it this name."},
        ControlText{"chkSounds", "Play Sounds",
                    "Whether a sound ends the start of the program. Only Save Settings keeps it."},
        ControlText{"chkMinimized", "Hide when Minimized",
                    "Whether the minimized window leaves the task bar, with an icon in the tray to "
                    "bring it back. OK keeps it for this run, Save Settings for later ones, too."},
        ControlText{"chkConfirmExit", "Confirm on Exit",
                    "Whether the program asks before it ends with a design that is not saved. Only "
                    "Save Settings keeps it."},
        ControlText{"cmdClearMRU", "Clear Recent File List",
                    "Takes the ships of late out of the menu File, at once. The files stay."},
        ControlText{"cmdSaveSettings", "Save Settings",
                    "Keeps the three switches, and the designer for the first ship of each later "
                    "start. Cancel does not take that back."},
        ControlText{"cmdOK", "OK",
                    "Gives the ship at hand both names, takes Hide when Minimized over, and closes "
                    "the page."},
        ControlText{"cmdCancel", "Cancel", "Closes the page and leaves the ship as it is."}};
    return rows;
}

ControlRows findingsTexts() {
    static constexpr std::array rows = {
        ControlText{"lblAbout lvFindings", "Findings",
                    "What is wrong with the design at hand, and where. The list changes as you "
                    "change the design. Double-click a finding or press Enter to go to the control "
                    "that it is about."},
        ControlText{"cmdGoTo", "Go To", "Goes to the control that the selected finding is about."},
        ControlText{"cmdClose", "Close", "Closes the window."}};
    return rows;
}

ControlRows compareTexts() {
    static constexpr std::array rows = {
        ControlText{"lblAbout lvLines", "The two designs",
                    "All figures and systems of the design at hand and of another ship, beside "
                    "each other. Lines that differ are bold, and the last column says by how much. "
                    "Of a system there stand the pieces, their mass and their cost. The table "
                    "follows the design as you change it, and the file of the other ship."},
        ControlText{"fraFire lblHere lblOther lblWeapons lblPoints picWeaponsHere picWeaponsOther "
                    "picPointsHere picPointsOther",
                    "Fire Power",
                    "What the weapons of both ships cover, with the bow up: the larger a sector, "
                    "the more weapons bear there, or the more points they cost. All of a row have "
                    "one scale. A weapon that bears in several directions counts in each."},
        ControlText{"chkOnlyDifferences", "Only what differs",
                    "Leaves out the lines in which the two are alike."},
        ControlText{"cmdPaste", "Paste Code",
                    "Takes the other ship from the clipboard: the line of letters from Copy "
                    "Design, be it in the midst of a message, or the text of a ship file."},
        ControlText{"cmdChoose", "Choose File...",
                    "Chooses the other ship: a ship file, or a sheet that carries one."},
        ControlText{"cmdClose", "Close", "Closes the window."}};
    return rows;
}

ControlRows putAsideTexts() {
    static constexpr std::array rows = {
        ControlText{"lblAbout lvDesigns", "Designs put aside",
                    "Designs with changes that were not saved when they were put aside, those of a "
                    "crash first: name, mass, and the time. Double-click one or press Enter to "
                    "open it; Delete moves it to the trash."},
        ControlText{"cmdTrash", "Move to Trash",
                    "Moves the selected design into the trash of the desktop, from where it can be "
                    "had back."},
        ControlText{"cmdOpen", "Open",
                    "Puts the selected design into the place of the one at hand. It has no file "
                    "yet: save it with Save As."},
        ControlText{"cmdNotNow", "Not Now",
                    "Leaves all designs where they are, for another time."}};
    return rows;
}

ControlRows mapperTexts() {
    static constexpr std::array rows = {
        ControlText{"fraControls", "Sheet", "Choose a map, draw the sheet, and save it."},
        ControlText{"cboMapSelection", "Map",
                    "Where the systems stand on the sheet: an outline and its places. Only maps "
                    "with room for the ship are offered; point here to read which one fits best."},
        ControlText{"cmdDrawIt", "Draw It!",
                    "Draws the sheet of the ship at hand on this map. Another sheet takes another "
                    "window: close this one and open it anew."},
        ControlText{"lblOther", "Lists the systems of an earlier design",
                    "Told when the design has changed since the window was opened, so that a "
                    "sheet would mix two designs, or has mixed them, or is out of date: close it "
                    "and open it anew."},
        ControlText{"cmdSave", "Save It!",
                    "Saves the sheet as a bitmap, which knows nothing of the design, and closes "
                    "the window. Ctrl+E exports a PDF, SVG or PNG file with the design in it."},
        ControlText{"picSSD", "Sheet",
                    "The sheet of the ship: its systems at their places, boxes for the damage, and "
                    "its names and points. Once it is drawn, Ctrl+P prints it and Ctrl+E exports "
                    "it."},
        ControlText{"sbSheet", "Status line",
                    "Says where the sheet was exported, that it is on its way to the printer, or "
                    "what has failed and why. There is none until there is something to say."}};
    return rows;
}

ControlRows viewerTexts() {
    static constexpr std::array rows = {
        ControlText{"fraCommands", "Picture", "Choose the picture, or close the window."},
        ControlText{"cmdSelect", "Select File",
                    "Chooses the sheet, or any other picture, that is shown."},
        ControlText{"chkCancel", "Cancel", "Closes the window."},
        ControlText{"picImage", "Sheet",
                    "The picture that was chosen. Ctrl+P prints it and Ctrl+E exports it; one that "
                    "carries a design comes as a new sheet of that ship."},
        ControlText{"sbSheet", "Status line",
                    "Says where the picture was exported, that it is on its way to the printer, or "
                    "why a file cannot be shown. There is none until there is something to "
                    "say."}};
    return rows;
}

ControlRows mapCreatorTexts() {
    static constexpr std::array rows = {
        ControlText{"cmdSelect", "Select File",
                    "Chooses the outline: a drawing in which a pixel of a pure color marks each "
                    "place. The chapter on maps of your own says which colors."},
        ControlText{"cmdDoit", "Do It",
                    "Scans the outline for its marks and writes the map below. The black area "
                    "shows how far it is."},
        ControlText{"chkCancel", "Cancel", "Ends the scan that is on its way."},
        ControlText{"cmdSaveIt", "Save It",
                    "Saves the map. A new one is offered for sheets at once, by the name of its "
                    "file; one that replaces another counts from the next start on."},
        ControlText{"picImage", "Outline", "The outline that was chosen, or how far its scan is."},
        ControlText{"txtOutput", "Map",
                    "The text of the map, a line for each mark. It can be changed here before it "
                    "is saved."},
        ControlText{
            "sbCreator", "Status line",
            "Says what may be wrong with a map that was scanned, where it was saved and for "
            "which ships it is offered, or what has failed and why. There is none until "
            "there is something to say."}};
    return rows;
}

ControlRows aboutTexts() {
    static constexpr std::array rows = {
        ControlText{"picIcon lblTitle lblVersion lblAuthor", "About",
                    "The program, its version, and who has made it."},
        ControlText{"cmdOK", "OK", "Closes the window."},
        ControlText{"cmdSysInfo", "System Info...",
                    "Starts the desktop's own tool that tells about this computer."}};
    return rows;
}

}  // namespace fleetwright
