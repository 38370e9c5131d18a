#include "sheetFacts.h"

#include "Error.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "arcWords.h"
#include "designWords.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace fleetwright {

namespace {

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
        addFireControls();
        addParties();
        addDrives();
        return std::move(m_rows);
    }

private:
    void addSystem(const std::string& name, std::int32_t count);
    LegendRow& add(SheetRecord::Picture picture, std::string name, std::int32_t count);
    void addFireControls();
    void addParties();
    void addDrives();

    SheetRecord::Picture pictureOf(const Raster& picture) const {
        SheetRecord::Picture found{m_sources.drawings.of(picture), nullptr};
        if (!found.drawing) {
            found.raster = std::make_shared<const Raster>(picture);
        }
        return found;
    }
    SheetRecord::Picture filePicture(std::string_view file) const {
        return pictureOf(m_sources.images.file(file));
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

LegendRow& Legend::add(SheetRecord::Picture picture, std::string name, std::int32_t count) {
    LegendRow row;
    row.picture = std::move(picture);
    row.name = std::move(name);
    row.count = count;
    return m_rows.emplace_back(std::move(row));
}

void Legend::addSystem(const std::string& name, std::int32_t count) {
    LegendRow& row = add(systemPicture(name), name, count);
    if (m_ship.weapNameToIndex(name) == -1) {
        return;  // aboard from an earlier catalogue; to ask for its figures would tell the user
    }
    if (m_ship.PaintableWeap(name)) {
        row.arcs = arcWords(name, m_ship.GimmeWeapArc(name));
    }
    row.mass = m_ship.countedMass(name, count);
    row.points = m_ship.countedCost(name, count);
    row.isLinear = row.mass == std::int64_t{count} * m_ship.countedMass(name, 1) &&
                   row.points == std::int64_t{count} * m_ship.countedCost(name, 1);
    row.rules = m_ship.rulesOf(name);
}

void Legend::addFireControls() {
    const std::int32_t count = wholeNumber(m_figures.txtFireCon);
    if (count > 0) {
        add(filePicture(fireControlPicture), fireControlName, count).rules =
            "One for each target that the ship fires at in a turn.";
    }
}

/// Parties of the hull and bought ones have one picture, and so one row.
void Legend::addParties() {
    const std::int32_t count = wholeNumber(m_figures.txtDCP);
    if (count <= 0) {
        return;
    }
    const auto bought = std::find_if(m_rows.begin(), m_rows.end(), [](const LegendRow& row) {
        return row.name == Catalogue::partyName;
    });
    LegendRow& row = bought != m_rows.end() ? *bought
                                            : add(systemPicture(Catalogue::partyName),
                                                  std::string(Catalogue::partyName), 0);
    row.count += count;
    row.withHull = count;
    row.rules = m_ship.rulesOf(Catalogue::partyName);
}

/// What has no mass of its own but is paid for.
void Legend::addDrives() {
    const HullFigures& hull = m_ship.hullFigures();
    const std::int16_t thrust = m_ship.THRUST();
    if (!isBase(m_ship.Hull()) && thrust > 0) {
        add(filePicture(thrustPicture(thrust)), thrustDriveName(thrust), 1).points =
            hull.thrustCost;
    }
    const std::string_view drive = ftlDriveName(m_ship.FTL());
    if (!drive.empty()) {
        add(filePicture(drivePicture(m_ship.FTL())), std::string(drive), 1).points = hull.ftlCost;
    }
}

}  // namespace

SheetFacts sheetFacts(const SheetShip& ship, const std::vector<ListView::Row>& lvCurrentWeapons,
                      const SheetSources& sources) {
    const ShipClass& design = ship.ship;
    return {.shipName = ship.txtShipName.empty() ? "Unnamed Ship" : ship.txtShipName,
            .designer = ship.txtDesigner,
            .shipClass = std::string(design.Class()),
            .designation = std::string(design.relSize()),
            .hull = std::string(hullWord(design.Hull())),
            .mass = design.mass(),
            .points = wholeNumber(ship.txtCost),
            .thrust = thrustWords(design.hullDesign().thrust),
            .drive = driveWords(design.FTL()),
            .damagePoints = wholeNumber(ship.txtDP),
            .damageRows = design.g_iDamRows,
            .armor = wordOf(armorLine(design.Armor())),
            .streamlining = wordOf(streamlineLine(design.Streamline())),
            .fire = firePowerOf(ship.ship),
            .legend = Legend(ship, sources).rows(lvCurrentWeapons)};
}

}  // namespace fleetwright
