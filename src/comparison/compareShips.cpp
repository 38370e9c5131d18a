#include "compareShips.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace fleetwright {

namespace {

using Cell = ComparedLine::Cell;
using Numbers = std::vector<std::int64_t>;

/// What the numbers behind the first one are, from the last one on.
constexpr std::array<std::string_view, 2> unitsFromTheEnd = {"cost ", "mass "};

std::string_view unitOf(std::size_t number, std::size_t count) {
    return number == 0 ? "" : unitsFromTheEnd[count - 1 - number];
}

std::string textOf(const Numbers& numbers) {
    if (numbers.front() == 0) {
        return "-";
    }
    std::string text;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        text += (i == 0 ? "" : ", ") + std::string(unitOf(i, numbers.size())) +
                std::to_string(numbers[i]);
    }
    return text;
}

Cell counted(Numbers numbers) {
    std::string text = textOf(numbers);
    return {std::move(text), std::move(numbers)};
}

ComparedLine figureLine(std::span<const ShipProfile> ships, std::size_t place) {
    const ShipProfile::Figure& first = ships.front().figures[place];
    ComparedLine line{.about = ComparedLine::About::Figure,
                      .key = std::string(first.key),
                      .title = std::string(first.title),
                      .isAmount = first.isAmount,
                      .cells = {}};
    for (const ShipProfile& ship : ships) {
        const ShipProfile::Figure& figure = ship.figures[place];
        line.cells.push_back({figure.text, figure.isNumber ? Numbers{figure.number} : Numbers{}});
    }
    return line;
}

ComparedLine fireLine(std::span<const ShipProfile> ships, std::size_t direction) {
    const std::string name(FirePower::names[direction]);
    ComparedLine line{
        .about = ComparedLine::About::Fire, .key = name, .title = "Weapons " + name, .cells = {}};
    for (const ShipProfile& ship : ships) {
        const FirePower::Sector& sector = ship.fire.sectors[direction];
        line.cells.push_back(counted({sector.weapons, sector.points}));
    }
    return line;
}

/// The systems that any ship has, each once, by their places in the catalogue of the first ship
/// that has them.
std::vector<std::string> systemsOf(std::span<const ShipProfile> ships) {
    std::map<std::string_view, std::size_t> records;
    for (const ShipProfile& ship : ships) {
        for (const ShipProfile::System& system : ship.systems) {
            records.emplace(system.name, system.record);
        }
    }
    std::vector<std::string> names;
    for (const auto& [name, record] : records) {
        names.emplace_back(name);
    }
    std::ranges::stable_sort(names, {}, [&](const std::string& name) { return records.at(name); });
    return names;
}

ComparedLine systemLine(std::span<const ShipProfile> ships, const std::string& name) {
    ComparedLine line{
        .about = ComparedLine::About::System, .key = name, .title = name, .cells = {}};
    for (const ShipProfile& ship : ships) {
        const auto found = std::ranges::find(ship.systems, name, &ShipProfile::System::name);
        line.cells.push_back(counted(found == ship.systems.end()
                                         ? Numbers{0, 0, 0}
                                         : Numbers{found->amount, found->mass, found->cost}));
    }
    return line;
}

}  // namespace

bool ComparedLine::differs() const {
    return std::ranges::any_of(cells, [&](const Cell& cell) { return cell != cells.front(); });
}

std::string ComparedLine::difference(std::size_t ship) const {
    const Numbers &here = cells[ship].numbers, &first = cells.front().numbers;
    std::string text;
    for (std::size_t i = 0; isAmount && i < here.size(); ++i) {
        if (const std::int64_t more = here[i] - first[i]; more != 0) {
            text += (text.empty() ? "" : ", ") + std::string(unitOf(i, here.size())) +
                    (more > 0 ? "+" : "") + std::to_string(more);
        }
    }
    return text;
}

std::vector<ComparedLine> compareShips(std::span<const ShipProfile> ships) {
    std::vector<ComparedLine> lines;
    for (std::size_t place = 0; place < ships.front().figures.size(); ++place) {
        lines.push_back(figureLine(ships, place));
    }
    for (std::size_t direction = 0; direction < FirePower::names.size(); ++direction) {
        lines.push_back(fireLine(ships, direction));
    }
    for (const std::string& name : systemsOf(ships)) {
        lines.push_back(systemLine(ships, name));
    }
    return lines;
}

std::vector<ComparedLine> impactOn(const ShipProfile& before, const ShipProfile& after) {
    std::vector<ComparedLine> lines = compareShips(std::array{before, after});
    std::erase_if(lines, [](const ComparedLine& line) { return !line.differs(); });
    return lines;
}

std::string differencesIn(std::span<const ComparedLine> lines) {
    const auto count =
        std::ranges::count_if(lines, [](const ComparedLine& line) { return line.differs(); });
    return count == 0 ? "Nothing differs."
                      : std::to_string(count) + " of " + std::to_string(lines.size()) +
                            (count == 1 ? " lines differs." : " lines differ.");
}

}  // namespace fleetwright
