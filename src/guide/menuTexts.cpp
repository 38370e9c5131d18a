// The menus of the main window.

#include "sections.h"

#include <array>

namespace fleetwright {

ControlRows fileMenuTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuFile", "File",
                    "New, load, save and print; and the ships that you had open last."},
        ControlText{"mnuNew", "New",
                    "Begins a new ship: a warship of mass 2 with thrust 2 and nothing aboard. It "
                    "asks before a design with changes goes."},
        ControlText{"mnuLoad", "Load",
                    "Opens a design from a ship file, or from a sheet that carries one as SVG, PNG "
                    "or PDF. The design at hand goes without a question; what was not saved is put "
                    "aside. Files can also be dropped on the window."},
        ControlText{"mnuSaveAs", "Save As",
                    "Saves the design in a file of your choice, a small text file that ends in "
                    ".shp. From then on Save writes there."},
        ControlText{"mnuSave", "Save",
                    "Saves the design in the file that it came from. It waits for Save As while "
                    "there is none."},
        ControlText{"mnuPrint", "Print",
                    "Prints the report of the ship: its figures and systems as plain lines of "
                    "text. For the sheet to play with see Design > Print Sheet..."},
        ControlText{"mnuExit", "Exit",
                    "Ends the program. With Confirm on Exit it asks about a design with changes; "
                    "without, such a design is put aside."},
        ControlText{"mnuMRUFile", "1 to 5",
                    "The ships that were loaded or saved last, by name. Choosing one loads it from "
                    "the folder of ships, as Load does, and a sheet from where it lies."}};
    return rows;
}

ControlRows standardHullTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuStdHulls", "Standard Hulls",
                    "Hulls of usual size by their names. One sets type and mass of the hull and "
                    "leaves all else; with AutoMass on, the mass is fitted again at once."},
        ControlText{"mnuMilitary", "Military", "Standard warships, from mass 2 to 90."},
        ControlText{"mnuCourier mnuScoutShip mnuCorvette mnuFrigate mnuDestroyer mnuLightCruiser "
                    "mnuEscortCruiser mnuHeavyCruiser mnuBattleCruiser mnuBattleShip "
                    "mnuBattleDreadnought mnuSuperdreadnought mnuLightCarrier mnuFleetCarrier",
                    "Courier to Fleet Carrier",
                    "Makes the ship a warship of that size: Courier 2, Scoutship 4, Corvette 6, "
                    "Frigate 10, Destroyer 14; cruisers 22, 26 and 32; capital ships 40, 48, 60 "
                    "and 80; carriers 70 and 90."},
        ControlText{"mnuCivilian", "Civilian", "Standard merchants, from mass 48 to 100."},
        ControlText{"mnuSurveyCruiser mnuHvyFreighter mnuTAnker", "Survey Cruiser to Bulk Tanker",
                    "Makes the ship a merchant of that size: Survey Cruiser 48, Heavy Freighter "
                    "60, Bulk Tanker 100."}};
    return rows;
}

ControlRows extrasMenuTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuExtras", "Extras", "Settings, sheets as bitmaps, maps, and AutoMass."},
        ControlText{
            "mnuExtrasPage", "Extras Page",
            "Opens the page of the settings, on which the names of ship and designer stand, "
            "too."},
        ControlText{"mnuSSD", "Create SSD",
                    "Draws the sheet of the ship as a bitmap, on a map that you choose. It serves "
                    "ships up to mass 100; Design > Export Sheet... serves all."},
        ControlText{"mnuViewSSD", "View SSD",
                    "Shows a saved sheet, or any other picture, and prints or exports it."},
        ControlText{"mnucreateSSDMap", "Create SSD Map",
                    "Makes a map out of an outline of your own that you have marked in a paint "
                    "program, so that sheets can be drawn on it."},
        ControlText{"mnuAutoMass", "AutoMass",
                    "While it is marked, the hull grows and shrinks with each change until it just "
                    "holds what is aboard, with 0 or 1 left. The arrows of the mass are away "
                    "meanwhile. Where no mass fits, the ship keeps the one that it had."}};
    return rows;
}

ControlRows designMenuTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuDesign", "Design",
                    "What else can be done with the design at hand, and help with it."},
        ControlText{
            "mnuUndo", "Undo",
            "Takes the last step back, and then those before it, without limit. It says what "
            "the step was. A new ship and a load are steps, too: the design from before comes "
            "back with its file. Moments of an arrow that is held are one step."},
        ControlText{
            "mnuRedo", "Redo",
            "Does again what was taken back, until something else is done. Ctrl+Shift+Z does "
            "it, too."},
        ControlText{"mnuFind", "Find System...",
                    "Finds a system by words of its name, or by the letters that they begin with, "
                    "as in \"pulse iii fps\". Typing in the catalogue does the same. Down, Up and "
                    "F3 go on, Enter fits what is shown, Escape goes back."},
        ControlText{"mnuFindings", "Findings...",
                    "Lists what is wrong with the design at hand: systems that are too heavy for "
                    "the hull or do not go together, and what was lost when it was loaded."},
        ControlText{"mnuSheetPreview", "Sheet Preview...",
                    "Shows the pages of the ship's sheet as they would be printed, on the map that "
                    "fits it best."},
        ControlText{"mnuPrintSheet", "Print Sheet...",
                    "Prints the sheet of the ship: its drawing with boxes for the damage, and what "
                    "is aboard and how it is played."},
        ControlText{"mnuExportSheet", "Export Sheet...",
                    "Saves the sheet as PDF, SVG or PNG file. The design is in that file, and Load "
                    "gets it out again."},
        ControlText{"mnuCopyDesign", "Copy Design",
                    "Puts the design on the clipboard as a code, one line of letters to be pasted "
                    "into a chat or a mail. While a text is open or marked, Ctrl+C copies that."},
        ControlText{"mnuPasteDesign", "Paste Design",
                    "Opens the design whose code was copied, with or without the words around it, "
                    "or the text of a ship file. The design at hand comes back with Undo."},
        ControlText{"mnuCompare", "Compare With...",
                    "Shows the design at hand beside another ship, and what differs: figures, "
                    "systems, and what the weapons cover."},
        ControlText{"mnuFleet", "Fleet...",
                    "Opens the window in which ships are put together to a fleet: with counts, own "
                    "names, limits, and all their sheets in one print."},
        ControlText{"mnuPutAside", "Designs Put Aside...",
                    "Lists the designs that were put aside unsaved: after a crash, and whenever "
                    "another one took their place. Any of them can be opened."},
        ControlText{"mnuZoomIn", "Zoom In",
                    "Shows the window and all that is in it larger, up to 300 %. The keys, Ctrl++, "
                    "do so in each window, and each keeps its own size. What the screen has no "
                    "room for scrolls."},
        ControlText{"mnuZoomOut", "Zoom Out",
                    "Shows the window and all that is in it smaller, down to 75 %."},
        ControlText{"mnuActualSize", "Actual Size", "Shows the window at 100 % again."},
        ControlText{
            "mnuGuide", "Player's Guide",
            "Opens the guide in the browser. It lies in the folder of the program and needs "
            "no network."},
        ControlText{"mnuWhatsThis", "What's This?",
                    "Makes the pointer ask: click anything in the window to read what it is. With "
                    "Shift+F1, in each window, what has the keyboard tells that at once."}};
    return rows;
}

ControlRows helpMenuTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuHelpTop", "Help", "What program this is. The guide is in the menu Design."},
        ControlText{"mnuHelp", "Help",
                    "Says that there is no help here; Design > Player's Guide is."},
        ControlText{"mnuAbout", "About", "Shows the name and the version of the program."}};
    return rows;
}

ControlRows popUpTexts() {
    static constexpr std::array rows = {
        ControlText{"mnuAddWeaps mnuAddWeap", "X1 to X10",
                    "Fits so many pieces of the system that is selected in the catalogue."},
        ControlText{"mnuMore mnuAddWeapEx", "More",
                    "Fits 20, 50 or 100 pieces of the system that is selected in the catalogue."},
        ControlText{"mnuTaskBarFunctions tray1", "Icon in the tray",
                    "Stands there while the window is minimized. A click brings the window back, "
                    "the right button opens a menu."},
        ControlText{"mnuRestore", "Restore", "Brings the minimized window back."},
        ControlText{"mnuExitTask", "Exit", "Ends the program, as File > Exit does."}};
    return rows;
}

}  // namespace fleetwright
