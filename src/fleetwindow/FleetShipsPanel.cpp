#include "FleetShipsPanel.h"

#include "Desktop.h"
#include "Error.h"
#include "addShips.h"
#include "designCode.h"
#include "fleetPaths.h"
#include "paths.h"
#include "text.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace fleetwright {

namespace {

/// What is to be called a ship that cannot be read.
std::string fileNameIn(const FleetShip& ship) {
    return isDesignCode(ship.file) ? "Design code" : pathText(nativePath(ship.file).filename());
}

/// What is wrong with a ship; empty if nothing is.
std::string remarkOn(const FleetShip& ship, const FleetRow& row) {
    if (!row.figures) {
        return "Does not load" + (row.faults.empty() ? "" : ": " + row.faults.front().text);
    }
    std::string remark;
    const auto add = [&remark](const std::string& text) {
        remark += (remark.empty() ? "" : "; ") + text;
    };
    if (hasChanged(ship, row)) {
        add("Changed since it was saved");
    }
    if (!row.faults.empty()) {
        add("Not taken: " + row.faults.front().text +
            (row.faults.size() == 1 ? ""
                                    : " and " + std::to_string(row.faults.size() - 1) + " more"));
    }
    if (row.figures->massLeft < 0) {
        add("Overloaded by " + std::to_string(-row.figures->massLeft));
    }
    return remark;
}

}  // namespace

FleetShipsPanel::FleetShipsPanel(const FleetContext& context, MenuEntry& mnuShips)
    : FleetPart(context), m_ships(mnuShips) {
    lvShips.addColumn("Ship", 2250);
    lvShips.addColumn("Count", 660);
    lvShips.addColumn("Class", 960);
    lvShips.addColumn("Mass", 660);
    lvShips.addColumn("Points", 750);
    lvShips.addColumn("Sum", 750);
    lvShips.addColumn("Remark", 1500);
    lvShips.onDblClick = [this] { openShip(); };
    lvShips.onEnter = [this] { openShip(); };
    lvShips.onDelete = [this] { remove(); };
    lvShips.onClick = [this] { window().refresh(); };
    lvShips.rowToolTip = [this](const ListView::Row& row) {
        FleetShip ship;
        ship.file = row.key;
        std::string tip = row.text + '\n' + shownText(shipPath(document().folder(), ship));
        return row.moreItems.back().empty() ? tip : tip + '\n' + row.moreItems.back();
    };
}

std::optional<std::size_t> FleetShipsPanel::selected() const {
    const auto row = lvShips.selected();
    return row && *row < fleet().ships.size() ? row : std::nullopt;
}

ListView::Row FleetShipsPanel::rowOf(std::size_t place) const {
    const FleetShip& ship = fleet().ships[place];
    ListView::Row row = {.key = ship.file,
                         .text = {},
                         .subItem = std::to_string(ship.count),
                         .moreItems = {"", "", "", "", ""}};
    const FleetRow* const known =
        place < window().rows.size() ? window().rows[place].get() : nullptr;
    if (known == nullptr || !known->figures) {
        row.text = shownText(fileNameIn(ship));
    } else {
        const ShipFigures& figures = *known->figures;
        row.text = shownText(figures.name);
        row.moreItems = {std::string(figures.shipClass), std::to_string(figures.mass),
                         std::to_string(figures.points),
                         std::to_string(std::int64_t{ship.count} * figures.points), ""};
    }
    if (known != nullptr) {
        row.moreItems.back() = shownText(remarkOn(ship, *known));
        row.isAlarming = !row.moreItems.back().empty();
    }
    return row;
}

void FleetShipsPanel::show() {
    ListView::Content content;
    const std::size_t count = fleet().ships.size();
    content.rows.reserve(count);
    for (std::size_t place = 0; place < count; ++place) {
        content.rows.push_back(rowOf(place));
    }
    content.selected = std::exchange(m_wanted, std::nullopt);
    if (!content.selected) {
        content.selected = lvShips.selected();
    }
    content.selected = count == 0
                           ? std::nullopt
                           : std::optional(std::min(content.selected.value_or(0), count - 1));
    if (content.rows != lvShips.rows() || content.selected != lvShips.selected()) {
        lvShips.setContent(std::move(content));
    }
    const auto place = selected();
    for (Control* const needsShip : std::initializer_list<Control*>{
             &cmdOpenShip, &mnuOpenShip, &cmdRemoveShip, &mnuRemoveShip}) {
        needsShip->setEnabled(place.has_value());
    }
    for (Control* const up : std::initializer_list<Control*>{&cmdMoveUp, &mnuMoveUp}) {
        up->setEnabled(place && *place > 0);
    }
    for (Control* const down : std::initializer_list<Control*>{&cmdMoveDown, &mnuMoveDown}) {
        down->setEnabled(place && *place + 1 < count);
    }
}

void FleetShipsPanel::place(const Place& list, int buttons) {
    lvShips.setPlace(list);
    const int down = list.top - cmdAddShipAtHand.place().top;
    for (Button* const button : {&cmdAddShipAtHand, &cmdAddFiles, &cmdOpenShip, &cmdMoveUp,
                                 &cmdMoveDown, &cmdRemoveShip}) {
        Place place = button->place();
        place.left = buttons;
        place.top += down;
        button->setPlace(place);
    }
}

void FleetShipsPanel::addShipAtHand() {
    try {
        const ShipAtHand ship = services().shipAtHand();
        const std::string file =
            ship.file.empty() ? ship.code : fileInFleet(document().folder(), nativePath(ship.file));
        window().act({"Add " + shownText(ship.name)},
                     [&](Fleet& fleet) { m_wanted = addShips(fleet, {file}); });
        window().say(
            ship.file.empty()
                ? "The ship is in no file, so the fleet holds it as it is now. Save it, and add "
                  "its file, to have the fleet follow it."
            : ship.isChanged
                ? "The fleet takes the ship from its file: save it there, and the figures follow."
                : "Added " + shownText(ship.name));
    } catch (const Error& error) {
        window().say(error.what());
    }
}

void FleetShipsPanel::chooseFiles() {
    addFiles(services().desktop.chooseFilesToOpen(
        {.filter = "All Files (*.*)|*.*|Ships and Sheets|*.shp *.svg *.pdf *.png|"
                   "Ship Files(*.shp)|*.shp",
         .filterIndex = 2,
         .initialFolder = services().appFolder / "ships"}));
}

void FleetShipsPanel::addFiles(const std::vector<std::string>& files) {
    if (files.empty()) {
        return;
    }
    try {
        std::vector<std::string> names;
        for (const std::string& file : files) {
            names.push_back(fileInFleet(document().folder(), nativePath(file)));
        }
        const std::string what = names.size() == 1
                                     ? shownText(pathText(nativePath(files[0]).filename()))
                                     : std::to_string(names.size()) + " Ships";
        window().act({"Add " + what}, [&](Fleet& fleet) { m_wanted = addShips(fleet, names); });
        window().say("Added " + what);
    } catch (const FileError& error) {
        window().say(complaint(error));
    } catch (const Error& error) {
        window().say(error.what());
    }
}

void FleetShipsPanel::openShip() {
    if (const auto place = selected()) {
        services().openShip(shipPath(document().folder(), fleet().ships[*place]));
    }
}

void FleetShipsPanel::move(int step) {
    const auto from = selected();
    const std::size_t to = from.value_or(0) + static_cast<std::size_t>(step);
    if (from && to < fleet().ships.size()) {
        window().act({"Order"}, [&](Fleet& fleet) {
            std::swap(fleet.ships[*from], fleet.ships[to]);
            m_wanted = to;
        });
    }
}

void FleetShipsPanel::remove() {
    if (const auto place = selected()) {
        window().act({"Remove " + lvShips.rows()[*place].text}, [&](Fleet& fleet) {
            fleet.ships.erase(fleet.ships.begin() + static_cast<std::ptrdiff_t>(*place));
        });
    }
}

}  // namespace fleetwright
