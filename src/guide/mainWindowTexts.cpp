// The controls of the main window.

#include "sections.h"

#include <array>

namespace fleetwright {

ControlRows massTexts() {
    static constexpr std::array rows = {
        ControlText{"fraMassNfo lblMass txtMass", "Mass",
                    "How big the hull is. Nearly everything follows from it: what hull, drives and "
                    "thrust cost, how much room there is for systems, how much damage the ship "
                    "takes. Click it for the standard hulls; 2 is the smallest."},
        ControlText{"lblMassLft lblMassLeft", "Mass Left",
                    "The room for systems that is still free. Below 0 the ship carries more than "
                    "its hull has room for: take systems away, or make the hull larger. Point at "
                    "it to see what takes the room."},
        ControlText{"Label1 updwnMass_1", "x2",
                    "Makes the hull larger or smaller by 2 points of mass. Hold an arrow down to "
                    "go on."},
        ControlText{"Label2 updwnMass_10", "x10",
                    "Makes the hull larger or smaller by 10 points of mass. It never gets smaller "
                    "than 2."},
        ControlText{"Label3 updwnMass_5", "x50",
                    "Makes the hull larger or smaller by 50 points of mass. There is no largest "
                    "mass; thrust costs twice as much above 100."},
        ControlText{"fraMassSpinner", "Arrows",
                    "They change the mass. They are away while AutoMass is on, which fits the mass "
                    "to the systems by itself."}};
    return rows;
}

ControlRows hullTexts() {
    static constexpr std::array rows = {
        ControlText{"fraHull", "Hull Type",
                    "What the hull is built for. It decides what a point of mass costs, how much "
                    "of it is free for systems, and how much damage it takes."},
        ControlText{"optWarship", "Warship",
                    "The strong hull: 2 points of cost for each of mass, a damage point for every "
                    "2, and half of the mass free for systems, three quarters without an FTL "
                    "drive. Up to mass 36 its thrust is cheaper than a merchant's."},
        ControlText{"optMerchant", "Merchant",
                    "A cheap hull full of cargo: 1.5 points for each of mass, a damage point for "
                    "every 4, and a tenth of the mass free for systems. It has a single fire "
                    "control up to mass 100, and a cloaking field goes with nothing else aboard."},
        ControlText{"optQship", "Q-Ship",
                    "A warship in a merchant's skin: the hull of a merchant, at 1.5 points and a "
                    "damage point for every 4 of mass, with a warship's room, thrust and fire "
                    "controls. False panels take half the room in it."},
        ControlText{"optStarBase", "Star Base",
                    "A fortress that does not move: hull cost, damage points and fire controls of "
                    "a warship, half of the mass free for systems. It has no FTL drive, no thrust "
                    "and no streamlining, and pays for none."},
        ControlText{"optSpaceStation", "Space Station",
                    "A merchant hull that does not move: 1.5 points for each of mass, a damage "
                    "point for every 4, a tenth free for systems. As on a merchant, a cloaking "
                    "field goes with nothing else aboard."},
        ControlText{"optQstation", "Q-Space Station",
                    "A fortress that looks like a station: hull cost and damage points of a space "
                    "station, with half of the mass free for systems and the fire controls of a "
                    "warship."},
        ControlText{"fraStreamling", "Streamlining",
                    "How much of the hull is shaped for air. It costs by the mass of the hull and "
                    "takes no room. Bases have none."},
        ControlText{"optNoStreamline", "Unstreamlined",
                    "A hull for space alone. It costs nothing more."},
        ControlText{"optPartStreamline", "Partial Streamling",
                    "Costs half a point more for each point of mass."},
        ControlText{"optFullStreamling", "Full Streamlining",
                    "Costs a point more for each point of mass."},
        ControlText{"fraArmor", "Armor",
                    "How strong the walls of the hull are. It costs by the mass of the hull, takes "
                    "no room and adds no damage points. Plates are systems of their own: see "
                    "Defenses."},
        ControlText{"optNoArmor", "None, Lvl 1, Lvl 2",
                    "No armor, or armor of level 1 for half a point, of level 2 for one point more "
                    "for each point of mass."}};
    return rows;
}

ControlRows driveTexts() {
    static constexpr std::array rows = {
        ControlText{"fraFTL", "FTL", "The drive between the stars. Bases have none."},
        ControlText{"optNone", "None",
                    "No drive between the stars: others bring the ship to the battle. It costs "
                    "nothing, and leaves a warship or a Q-ship three quarters of its mass for "
                    "systems instead of a half."},
        ControlText{"optNormal", "Normal drive",
                    "A drive for the ship alone. It costs a point for each point of mass."},
        ControlText{"optTug", "Tug drive",
                    "A drive that is strong enough for a second ship. It costs 3 points for each "
                    "point of mass, and makes a tug yoke lighter."},
        ControlText{"fraThrust optThrust", "Thrust",
                    "How fast the ship speeds up and turns, from 0 to 8. It takes no room. Each "
                    "step costs a warship or a Q-ship a quarter of its mass up to mass 18, half of "
                    "it up to 36, and, as any merchant, all of it up to 100 and twice its mass "
                    "above."}};
    return rows;
}

ControlRows figureTexts() {
    static constexpr std::array rows = {
        ControlText{"fraInfo", "Figures",
                    "What the rules make of the design, worked out anew with each change."},
        ControlText{"lblCost txtCost", "Cost",
                    "What the ship costs of the points that a fleet may have: hull, FTL drive, "
                    "thrust and all systems. Point at it to see them one by one."},
        ControlText{"lblDP txtDP", "DP",
                    "Damage points: the boxes of the sheet's damage track, a box for each point "
                    "of damage. A ship without a free box is lost."},
        ControlText{"lblDamRows txtDamRows", "Damage Rows",
                    "In how many rows the damage points stand on the sheet: 2 to 4 up to mass 100. "
                    "When a row is full, as many systems fail as rows are full then."},
        ControlText{"lblDCP txtDCP", "Damage Control",
                    "How many damage control parties the hull brings along, to mend failed "
                    "systems. Further ones are a system, under Crew and Command."},
        ControlText{"Label5 txtFireCon", "Fire Controls",
                    "At how many targets the ship can fire in a turn. They come with the hull; a "
                    "fire director, under Sensors, is one more."},
        ControlText{"lblClass txtClass", "Class",
                    "The broad class by mass alone: Escort up to 18, Cruiser up to 36, Capital up "
                    "to 100, Supership above. Rows, damage control and fire controls go by it."},
        ControlText{"lblRelSize txtRelSize", "Designation",
                    "What a warship of this mass is called, from Courier to SuperShip. The type of "
                    "the hull does not matter to it."},
        ControlText{"txtShipName", "Ship name",
                    "Double-click it or press F2 to write another one, and press Enter when it is "
                    "done. It stands on the sheet and is the name that files are suggested by."},
        ControlText{"txtDesigner", "Designer",
                    "Whose design it is. Double-click it or press F2 to write another one, and "
                    "press Enter when it is done. The Extras Page can keep it for later starts."},
        ControlText{"sbStatus", "Status line",
                    "Says what has just happened and why. Its text goes after half a minute at the "
                    "latest; point at it to read one that is too long."}};
    return rows;
}

ControlRows systemTexts() {
    static constexpr std::array rows = {
        ControlText{"tvWeapons", "Catalogue",
                    "All systems that a ship can carry, by kind. Double-click one, press Enter or "
                    "drag it to the list to fit one; the right button fits up to 100 at once. Type "
                    "to search it, point at a system to read what it does."},
        ControlText{"cmdBeams", "Beams",
                    "Opens the weapons that hit at once and never run dry, and closes all others. "
                    "Press it again to close them, too."},
        ControlText{"cmdDefense", "Defenses",
                    "Opens guard guns, wards, plates and decoys, what keeps a hull whole, and "
                    "closes all others."},
        ControlText{"cmdSystems", "Systems",
                    "Opens what makes a hull a ship: drive gear, sensors, crew and cargo. All "
                    "others close."},
        ControlText{"cmdHeavy", "Heavy weapons",
                    "Opens what strikes hard and seldom: rail drivers, torpedoes, missiles, keel "
                    "guns and mines. All others close."},
        ControlText{"cmdSpecial", "Specials",
                    "Opens the odd trades, cloaks, disguises, grapples and station works, and "
                    "closes all others."},
        ControlText{"cmdHangars", "Hangars",
                    "Opens flights, boats and docks, what flies off and comes back, and closes all "
                    "others."},
        ControlText{"cmdAlien", "Alien systems",
                    "Opens what human yards cannot build, by the three peoples who can, and closes "
                    "all others."},
        ControlText{"cmdCollapseAll", "Collapse All",
                    "Closes the whole catalogue, down to its seven kinds."},
        ControlText{"cmdExpandAll", "Expand All",
                    "Opens the whole catalogue, so that every system is in view."},
        ControlText{"lvCurrentWeapons", "Systems aboard",
                    "What the ship carries, and how many of each. Double-click a row or press "
                    "Delete to take one away; the right button asks how many are to remain. Point "
                    "at a row to see what it weighs and costs."},
        ControlText{"lblWeapNfo lblWeapMass lblWeapCost", "Mass and Cost",
                    "Below the catalogue: what one piece of the selected system weighs and costs "
                    "on this ship. Below the list: what all pieces of the selected row do. Systems "
                    "that go by the hull change with it."}};
    return rows;
}

}  // namespace fleetwright
