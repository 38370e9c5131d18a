#include "sheetFacts.h"

#include "Error.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "designWords.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace fleetwright {

namespace {

/// The word behind "Key: " in a line of designWords.
std::string factOf(const std::string& line) {
    constexpr std::string_view parting = ": ";
    const std::size_t colon = line.find(parting);
    return colon == std::string::npos ? std::string() : line.substr(colon + parting.size());
}

std::string thrustWords(std::int32_t thrust) {
    if (thrust <= 0) {
        return "None";
    }
    static constexpr std::string_view paces[] = {"slow", "steady", "fast", "very fast"};
    constexpr std::int32_t ratingsToAPace = 2;
    const std::int32_t pace = (std::min(thrust, mostThrust) - 1) / ratingsToAPace;
    return std::to_string(thrust) + ", " + std::string(paces[pace]);
}

std::string driveWords(std::int32_t ftl) {
    switch (ftl) {
    case NormalDrive:
        return "FTL";
    case TugDrive:
        return "FTL tug";
    default:
        return "None";
    }
}

std::string_view arcWord(char letter) {
    switch (letter) {
    case 'F':
        return "fore";
    case 'P':
        return "port";
    case 'S':
        return "starboard";
    case 'A':
        return "aft";
    default:
        return {};
    }
}

/// The words for letters that all are directions, or nothing.
std::string directions(std::string_view letters) {
    std::string words;
    for (const char letter : letters) {
        const std::string_view word = arcWord(letter);
        if (word.empty()) {
            return {};
        }
        words += (words.empty() ? "" : ", ") + std::string(word);
    }
    return words;
}

/// What stands in brackets at the end of a name.
std::string_view mounting(std::string_view name) {
    const std::size_t open = name.rfind('(');
    if (open == std::string_view::npos || !name.ends_with(')')) {
        return {};
    }
    return name.substr(open + 1, name.size() - open - 2);
}

class Legend {
public:
    Legend(const SheetShip& ship, const SheetSources& sources)
        : m_figures(ship), m_ship(ship.ship), m_sources(sources) {}

    std::vector<LegendRow> rows(const std::vector<ListView::Row>& lvCurrentWeapons) {
        for (const ListView::Row& row : lvCurrentWeapons) {
            const std::int32_t count = wholeNumber(row.subItem);
            if (count > 0) {
                addSystem(row.key, count);
            }
        }
        addWithHull("Fire Control", std::string(fireControlPicture),
                    wholeNumber(m_figures.txtFireCon));
        addParties();
        addDrives();
        return std::move(m_rows);
    }

private:
    void addSystem(const std::string& name, std::int32_t count);
    void addWithHull(const std::string& name, const std::string& file, std::int32_t count);
    void addParties();
    void addDrives();

    SheetRecord::Picture pictureOf(const Raster& picture) const {
        SheetRecord::Picture found{m_sources.drawings.of(picture), nullptr};
        if (!found.drawing) {
            found.raster = std::make_shared<const Raster>(picture);
        }
        return found;
    }
    SheetRecord::Picture systemPicture(std::string_view name) const;

    const SheetShip& m_figures;
    ShipClass& m_ship;
    const SheetSources& m_sources;
    std::vector<LegendRow> m_rows;
};

/// A system that is only listed need not have a picture.
SheetRecord::Picture Legend::systemPicture(std::string_view name) const {
    try {
        return pictureOf(m_sources.images.system(name));
    } catch (const Error&) {
        return {};
    }
}

void Legend::addSystem(const std::string& name, std::int32_t count) {
    m_rows.push_back({.picture = systemPicture(name),
                      .name = name,
                      .count = count,
                      .arcs = m_ship.PaintableWeap(name) ? arcWords(name, m_ship.GimmeWeapArc(name))
                                                         : std::string(),
                      .mass = m_ship.countedMass(name, 1),
                      .points = m_ship.countedCost(name, 1),
                      .rules = std::string(m_ship.rulesOf(name))});
}

/// What comes with the hull, or is paid for with it.
void Legend::addWithHull(const std::string& name, const std::string& file, std::int32_t count) {
    if (count > 0) {
        m_rows.push_back({.picture = pictureOf(m_sources.images.file(file)),
                          .name = name,
                          .count = count,
                          .arcs = {},
                          .mass = 0,
                          .points = 0,
                          .rules = {}});
    }
}

/// Parties of the hull and bought ones have one picture, and so one row.
void Legend::addParties() {
    const std::int32_t count = wholeNumber(m_figures.txtDCP);
    const auto bought = std::find_if(m_rows.begin(), m_rows.end(), [](const LegendRow& row) {
        return row.name == Catalogue::partyName;
    });
    if (bought != m_rows.end()) {
        bought->count += std::max(count, 0);
        if (count > 0) {
            bought->rules = trimmed(std::to_string(count) + " with the hull. " + bought->rules);
        }
    } else if (count > 0) {
        m_rows.push_back({.picture = systemPicture(Catalogue::partyName),
                          .name = std::string(Catalogue::partyName),
                          .count = count,
                          .arcs = {},
                          .mass = 0,
                          .points = 0,
                          .rules = std::string(m_ship.rulesOf(Catalogue::partyName))});
    }
}

void Legend::addDrives() {
    const HullFigures& hull = m_ship.hullFigures();
    if (!isBase(m_ship.Hull()) && m_ship.THRUST() > 0) {
        addWithHull("Thrust Drive " + std::to_string(m_ship.THRUST()),
                    thrustPicture(m_ship.THRUST()), 1);
        m_rows.back().points = hull.thrustCost;
    }
    if (drivePicture(m_ship.FTL()) != noDrivePicture) {
        addWithHull(m_ship.FTL() == TugDrive ? "FTL Tug Drive" : "FTL Drive",
                    drivePicture(m_ship.FTL()), 1);
        m_rows.back().points = hull.ftlCost;
    }
}

}  // namespace

std::string arcWords(std::string_view name, std::string_view arcLetters) {
    const std::string_view field = mounting(name);
    if (field == "All") {
        return "all round";
    }
    const std::string words = directions(field);
    return words.empty() ? directions(arcLetters) : words;
}

SheetFacts sheetFacts(const SheetShip& ship, const std::vector<ListView::Row>& lvCurrentWeapons,
                      const SheetSources& sources) {
    const ShipClass& design = ship.ship;
    return {.shipName = ship.txtShipName,
            .designer = ship.txtDesigner,
            .shipClass = std::string(design.Class()),
            .designation = std::string(design.relSize()),
            .hull = factOf(hullLine(design.Hull())),
            .mass = design.mass(),
            .points = wholeNumber(ship.txtCost),
            .thrust = thrustWords(design.THRUST()),
            .drive = driveWords(design.FTL()),
            .damagePoints = wholeNumber(ship.txtDP),
            .damageRows = design.g_iDamRows,
            .armor = factOf(armorLine(design.Armor())),
            .streamlining = factOf(streamlineLine(design.Streamline())),
            .legend = Legend(ship, sources).rows(lvCurrentWeapons)};
}

}  // namespace fleetwright
