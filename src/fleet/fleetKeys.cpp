#include "fleetKeys.h"

#include "Error.h"
#include "designWords.h"
#include "fleetFile.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

namespace fleetwright {

namespace {

using Values = std::vector<std::string>;

Values valuesOf(std::string_view text) {
    return text.empty() ? Values() : Values{oneLine(text)};
}

Values linesOf(std::string_view notes) {
    Values lines;
    while (!notes.empty()) {
        const std::size_t end = notes.find('\n');
        lines.push_back(oneLine(notes.substr(0, end)));
        if (end == std::string_view::npos) {
            return lines;
        }
        notes.remove_prefix(end + 1);
        if (notes.empty()) {
            lines.emplace_back();
        }
    }
    return lines;
}

/// A whole number of a fleet file from `least` to `most`.
std::int32_t numberOf(const std::string& value, std::int32_t least, std::int32_t most) {
    const std::int32_t number = wholeNumber(value);
    if (number < least || number > most) {
        throw Error(quote(value) + " is not " + std::to_string(least) + " to " +
                    std::to_string(most));
    }
    return number;
}

constexpr std::int32_t mostPoints = std::numeric_limits<std::int32_t>::max();

std::string kindOf(std::string_view word) {
    const std::string wanted = toCapitals(word);
    for (const std::string_view kind : shipKinds()) {
        if (toCapitals(kind) == wanted) {
            return std::string(kind);
        }
    }
    throw Error("there is no kind of ship " + quote(word));
}

/// "Capital: 2 ships" or "Merchant: 300 points".
FleetLimit limitOf(const std::string& value) {
    const std::size_t colon = value.find(':');
    const std::size_t blank = value.find_last_of(' ');
    if (colon == std::string::npos || blank == std::string::npos || blank < colon) {
        throw Error("a limit is \"KIND: NUMBER ships\" or \"KIND: NUMBER points\", and not " +
                    quote(value));
    }
    const std::string unit = toSmallLetters(std::string_view(value).substr(blank + 1));
    const bool isOfPoints = unit == "points" || unit == "point";
    if (!isOfPoints && unit != "ships" && unit != "ship") {
        throw Error("a limit counts ships or points, and not " + quote(unit));
    }
    return {.kind = kindOf(trimmed(std::string_view(value).substr(0, colon))),
            .most = numberOf(value.substr(colon + 1, blank - colon - 1), 0, mostPoints),
            .unit = isOfPoints ? FleetLimit::Unit::Points : FleetLimit::Unit::Ships};
}

/// Joins the lines of notes as they come.
void addNote(std::string& notes, const std::string& line, bool isFirst) {
    notes += isFirst ? line : '\n' + line;
}

constexpr KeyRow<Fleet> fleetRows[] = {
    {.key = "name",
     .take = [](Fleet& fleet, const std::string& value, bool) { fleet.name = value; },
     .values = [](const Fleet& fleet) { return valuesOf(fleet.name); }},
    {.key = "player",
     .take = [](Fleet& fleet, const std::string& value, bool) { fleet.player = value; },
     .values = [](const Fleet& fleet) { return valuesOf(fleet.player); }},
    {.key = pointsLimitKey,
     .take = [](Fleet& fleet, const std::string& value,
                bool) { fleet.pointsLimit = numberOf(value, 0, mostPoints); },
     .values =
         [](const Fleet& fleet) {
             return fleet.pointsLimit ? Values{std::to_string(*fleet.pointsLimit)} : Values();
         }},
    {.key = limitKey,
     .isList = true,
     .take = [](Fleet& fleet, const std::string& value,
                bool) { fleet.limits.push_back(limitOf(value)); },
     .values =
         [](const Fleet& fleet) {
             Values values;
             for (const FleetLimit& limit : fleet.limits) {
                 values.push_back(limitText(limit));
             }
             return values;
         }},
    {.key = "note",
     .isList = true,
     .take = [](Fleet& fleet, const std::string& value,
                bool isFirst) { addNote(fleet.notes, value, isFirst); },
     .values = [](const Fleet& fleet) { return linesOf(fleet.notes); }},
    {.key = "catalogue",
     .take = [](Fleet& fleet, const std::string& value, bool) { fleet.catalogue = value; },
     .values = [](const Fleet& fleet) { return valuesOf(fleet.catalogue); }},
};

constexpr KeyRow<FleetShip> shipRows[] = {
    {.key = "ship",
     .take =
         [](FleetShip& ship, const std::string& value, bool) {
             ship.file = value;
             if (value.empty()) {
                 throw Error("names no ship");
             }
         },
     .values = [](const FleetShip& ship) { return Values{oneLine(ship.file)}; }},
    {.key = "count",
     .take = [](FleetShip& ship, const std::string& value,
                bool) { ship.count = numberOf(value, 1, FleetShip::mostCount); },
     .values =
         [](const FleetShip& ship) {
             return ship.count == 1 ? Values() : Values{std::to_string(ship.count)};
         }},
    {.key = "named",
     .isList = true,
     .take = [](FleetShip& ship, const std::string& value, bool) { ship.names.push_back(value); },
     .values =
         [](const FleetShip& ship) {
             Values values;
             std::transform(ship.names.begin(), ship.names.end(), std::back_inserter(values),
                            oneLine);
             return values;
         }},
    {.key = "note",
     .isList = true,
     .take = [](FleetShip& ship, const std::string& value,
                bool isFirst) { addNote(ship.notes, value, isFirst); },
     .values = [](const FleetShip& ship) { return linesOf(ship.notes); }},
    {.key = "fingerprint",
     .take = [](FleetShip& ship, const std::string& value, bool) { ship.fingerprint = value; },
     .values = [](const FleetShip& ship) { return valuesOf(ship.fingerprint); }},
};

/// Names that no ship is left for count for nothing.
void checkSection(FleetShip& ship, std::vector<KeyLine>& lines, std::vector<Fault>& faults) {
    const auto count = static_cast<std::size_t>(ship.count);
    if (ship.names.size() <= count) {
        return;
    }
    ship.names.resize(count);
    std::size_t names = 0;
    for (KeyLine& line : lines) {
        const bool isName = line.row != KeyLine::none && shipRows[line.row].key == "named";
        names += isName ? 1 : 0;
        if (isName && names > count) {
            line.row = KeyLine::none;
            line.isFaulty = true;
        }
        if (isName && names == count + 1) {
            faults.push_back({line.number, "there are more names than ships"});
        }
    }
}

void checkSection(Fleet&, std::vector<KeyLine>&, std::vector<Fault>&) {}

/// Whether one of these rows has such a key.
template <typename Row, std::size_t count>
bool isKeyOf(const Row (&rows)[count], std::string_view key) {
    return std::any_of(std::begin(rows), std::end(rows),
                       [&](const Row& row) { return row.key == key; });
}

/// Where a key that is none of this section would mean something; nothing for one of no section.
std::string_view placeOf(std::string_view key, const Fleet&) {
    return isKeyOf(shipRows, key) ? "belongs behind a ship" : "";
}

std::string_view placeOf(std::string_view key, const FleetShip&) {
    return isKeyOf(fleetRows, key) ? "belongs in front of the ships" : "";
}

}  // namespace

std::string limitText(const FleetLimit& limit) {
    const std::string unit = limit.unit == FleetLimit::Unit::Ships ? " ship" : " point";
    return limit.kind + ": " + std::to_string(limit.most) + unit + (limit.most == 1 ? "" : "s");
}

KeyRows<Fleet> headKeys() {
    return fleetRows;
}

KeyRows<FleetShip> shipKeys() {
    return shipRows;
}

template <typename Section>
std::vector<KeyLine> readLines(KeyRows<Section> rows, std::string_view text, Section& section,
                               int firstLine, std::vector<Fault>& faults) {
    section.asRead = text;
    std::vector<KeyLine> lines;
    std::vector<bool> isTaken(rows.size());
    for (int number = firstLine; !text.empty(); ++number) {
        KeyLine& line = lines.emplace_back(KeyLine{.cut = cutFleetLine(text), .number = number});
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const KeyRow<Section>& known) {
            return known.key == line.cut.key;
        });
        if (row == rows.end()) {
            const bool isFirst = number == 1;  // that of the version
            if (line.cut.key.empty() && !line.cut.isBlank() && !line.cut.isComment() && !isFirst) {
                faults.push_back({number, "is no \"key = value\""});
            }
            if (const std::string_view place = placeOf(line.cut.key, section); !place.empty()) {
                faults.push_back({number, quote(line.cut.key).append(" ").append(place)});
            }
            continue;
        }
        const auto index = static_cast<std::size_t>(row - rows.begin());
        try {
            if (isTaken[index] && !row->isList) {
                throw Error(quote(line.cut.key) + " has been said already");
            }
            row->take(section, line.cut.value, !isTaken[index]);
            isTaken[index] = true;
            line.row = index;
        } catch (const Error& error) {
            faults.push_back({number, error.what()});
            line.isFaulty = true;
            line.row = row->isList ? KeyLine::none : index;
        }
    }
    checkSection(section, lines, faults);
    return lines;
}

template std::vector<KeyLine> readLines(KeyRows<Fleet>, std::string_view, Fleet&, int,
                                        std::vector<Fault>&);
template std::vector<KeyLine> readLines(KeyRows<FleetShip>, std::string_view, FleetShip&, int,
                                        std::vector<Fault>&);

}  // namespace fleetwright
