#include "fleetTable.h"

#include "TextColumns.h"
#include "console.h"
#include "figuresJson.h"
#include "fleetWords.h"
#include "text.h"

#include <functional>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

using Cells = std::vector<std::string>;
using Align = TextColumns::Align;

const Cells tableHead = {"Count", "Ship",   "Class",  "Mass", "Points",
                         "Sum",   "Damage", "Thrust", "Drive"};

std::string numbered(std::int64_t number) {
    return std::to_string(number);
}

Cells cellsOf(const FleetShip& ship, const FleetRow& row) {
    if (!row.figures) {
        return {
            numbered(ship.count), shownText(ship.file), "does not load", "", "", "", "", "", ""};
    }
    const ShipFigures& figures = *row.figures;
    return {numbered(ship.count),
            shownText(figures.name) + (hasChanged(ship, row) ? " *" : ""),
            sizeWords(figures),
            numbered(figures.mass),
            numbered(figures.points),
            numbered(std::int64_t{ship.count} * figures.points),
            numbered(figures.damagePoints),
            thrustWord(figures),
            std::string(driveWord(figures))};
}

/// The names that ships have of their own, below their design.
std::string namesOf(const FleetShip& ship) {
    std::string names;
    for (const std::string& name : ship.names) {
        names += name.empty() ? "" : (names.empty() ? "" : ", ") + name;
    }
    return names.empty() ? names : "         " + shownText(names) + '\n';
}

/// Calls `use` for each line of the table, twice at different times.
void forEachLine(const FleetReport& report,
                 const std::function<void(const Cells&, const std::string& below)>& use) {
    use(tableHead, {});
    for (std::size_t i = 0; i < report.rows.size(); ++i) {
        const FleetShip& ship = report.fleet.ships[i];
        use(cellsOf(ship, *report.rows[i]), namesOf(ship));
    }
    const FleetSum& sum = report.sum;
    use({numbered(sum.ships), "Together", "", numbered(sum.mass), "", numbered(sum.points),
         numbered(sum.damagePoints), "", ""},
        {});
}

std::string titleOf(const Fleet& fleet) {
    const std::string name = fleet.name.empty() ? "Unnamed fleet" : shownText(fleet.name);
    return name + (fleet.player.empty() ? "" : ", " + shownText(fleet.player));
}

Json limitsJson(const FleetReport& report) {
    Json limits = Json::array();
    for (std::size_t i = 0; i < report.fleet.limits.size(); ++i) {
        const FleetLimit& limit = report.fleet.limits[i];
        const std::int64_t left = report.sum.limitsLeft[i];
        limits.push_back({{"kind", limit.kind},
                          {"unit", limit.unit == FleetLimit::Unit::Ships ? "ships" : "points"},
                          {"most", limit.most},
                          {"used", limit.most - left},
                          {"left", left}});
    }
    return limits;
}

template <typename Value>
Json orNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

Json headJson(const FleetReport& report, const std::string& file) {
    const Fleet& fleet = report.fleet;
    const FleetSum& sum = report.sum;
    return {{"file", file},
            {"name", fleet.name},
            {"player", fleet.player},
            {"notes", fleet.notes},
            {"ships", sum.ships},
            {"mass", sum.mass},
            {"points", sum.points},
            {"dp", sum.damagePoints},
            {"pointsLimit", orNull(fleet.pointsLimit)},
            {"pointsLeft", orNull(sum.pointsLeft)},
            {"limits", limitsJson(report)},
            {"breaksLimit", sum.breaksLimit()},
            {"catalogueChanged", orNull(report.isOtherCatalogue)}};
}

Json shipJson(const FleetShip& ship, const FleetRow& row) {
    Json faults = Json::array();
    for (const Fault& fault : row.faults) {
        faults.push_back(fault.text);
    }
    Json json = {{"file", ship.file},
                 {"count", ship.count},
                 {"names", ship.names},
                 {"notes", ship.notes},
                 {"loads", row.figures.has_value()},
                 {"faults", std::move(faults)},
                 {"changed", ship.fingerprint.empty() || row.fingerprint.empty()
                                 ? Json()
                                 : Json(hasChanged(ship, row))}};
    if (row.figures) {
        const ShipFigures& figures = *row.figures;
        json.update({{"shipName", figures.name},
                     {"designer", figures.designer},
                     {"type", figures.hull},
                     {"class", figures.shipClass},
                     {"relSize", figures.designation},
                     {"mass", figures.mass},
                     {"points", figures.points},
                     {"sum", std::int64_t{ship.count} * figures.points},
                     {"dp", figures.damagePoints},
                     {"damRows", figures.damageRows},
                     {"thrust", figures.thrust},
                     {"ftl", figures.ftl},
                     {"massLeft", figures.massLeft}});
    }
    return json;
}

}  // namespace

void printTable(const FleetReport& report) {
    TextColumns columns({Align::Right, Align::Left, Align::Left, Align::Right, Align::Right,
                         Align::Right, Align::Right, Align::Right, Align::Left});
    forEachLine(report, [&](const Cells& cells, const auto&) { columns.measure(cells); });
    printResults(titleOf(report.fleet) + "\n\n");
    forEachLine(report, [&](const Cells& cells, const std::string& below) {
        printResults(columns.line(cells) + '\n' + below);
    });

    std::string below;
    for (const LimitWords& limit : limitWords(report.fleet, report.sum)) {
        below += limit.text + '\n';
    }
    if (report.sum.changed > 0) {
        below += "* changed since the fleet was written\n";
    }
    if (report.isOtherCatalogue.value_or(false)) {
        below += "The catalogue has changed since the fleet was written.\n";
    }
    printResults(below.empty() ? "" : '\n' + below);
}

void printJson(const FleetReport& report, const std::string& file) {
    std::string head = jsonText(headJson(report, file));
    head.pop_back();  // the ships follow, one by one: there can be many
    printResults(head + ",\"designs\":[");
    for (std::size_t i = 0; i < report.rows.size(); ++i) {
        printResults((i == 0 ? "" : ",") +
                     jsonText(shipJson(report.fleet.ships[i], *report.rows[i])));
    }
    printResults("]}\n");
}

}  // namespace fleetwright
