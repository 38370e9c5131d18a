#include "explainShip.h"

#include "ShipClass.h"
#include "arcWords.h"
#include "designWords.h"
#include "text.h"

#include <algorithm>
#include <utility>

namespace fleetwright {

namespace {

std::string describeHull(const HullDesign& hull) {
    std::string text =
        wordOf(hullLine(hull.hullType)) + " hull of mass " + std::to_string(hull.mass);
    if (hull.armor != 0) {
        text += ", armor level " + std::to_string(hull.armor);
    }
    if (hull.streamline != 0) {
        text += hull.streamline == 1 ? ", partial streamlining" : ", full streamlining";
    }
    return text;
}

/// One term for each system aboard; `counted` gives its mass or cost.
template <typename Counted>
void appendSystems(std::vector<Explanation::Term>& terms, const std::vector<WeapRec>& systems,
                   Counted counted) {
    for (const WeapRec& record : systems) {
        terms.push_back(
            {counted(record), std::to_string(record.amount) + " x " + std::string(record.name)});
    }
}

/// Whether a formula in small letters names this value of the ship.
bool isNamedIn(std::string_view formula, std::string_view value) {
    const auto endsWord = [formula](std::size_t at) {
        return at >= formula.size() ||
               std::string_view("abcdefghijklmnopqrstuvwxyz").find(formula[at]) ==
                   std::string_view::npos;
    };
    std::size_t at = formula.find(value);
    while (at != std::string_view::npos && !(endsWord(at - 1) && endsWord(at + value.size()))) {
        at = formula.find(value, at + 1);
    }
    return at != std::string_view::npos;
}

/// A code as a formula has it, with its word.
std::string codeText(std::int32_t code, const std::string& line) {
    return std::to_string(code) + (line.empty() ? "" : " (" + wordOf(line) + ')');
}

/// Which of the values that formulas can name decide what a system takes, and what they are here.
std::string describeValues(const ShipClass& ship, const std::string& formulas,
                           std::int32_t amount) {
    const HullDesign& hull = ship.hullDesign();
    const std::pair<std::string_view, std::string> values[] = {
        {"mass", std::to_string(hull.mass)},
        {"hull", codeText(hull.hullType, hullLine(hull.hullType))},
        {"ftl", codeText(hull.ftl, ftlLine(hull.ftl))},
        {"thrust", std::to_string(hull.thrust)},
        {"hullcost", std::to_string(ship.hullFigures().hullCost)}};
    std::string named;
    const auto add = [&](std::string_view value, const std::string& here) {
        if (isNamedIn(formulas, value)) {
            named += (named.empty() ? ": " : ", ") + std::string(value) + " = " + here;
        }
    };
    for (const auto& [value, here] : values) {
        add(value, here);
    }
    const std::string which =
        named.empty() ? "The same on every hull" : "For a " + describeHull(hull);
    add("amount", std::to_string(amount));
    return which + named;
}

std::string textLine(std::int64_t value, const std::string& text) {
    constexpr std::size_t width = 8;
    const std::string number = std::to_string(value);
    return std::string(width - std::min(width, number.size()), ' ') + number + "  " + text + '\n';
}

}  // namespace

std::string textOf(const Explanation& explanation) {
    std::string text;
    for (const Explanation::Term& term : explanation.terms) {
        text += textLine(term.value, term.text);
    }
    return text + textLine(explanation.sum, "= " + explanation.figure);
}

std::string describeSystem(ShipClass& ship, std::string_view name, std::int32_t amount) {
    std::int32_t index = ship.weapNameToIndex(name);
    if (index == -1) {
        return {};
    }
    WeapRec record;
    ship.listWeap(index, record);
    std::string text = std::to_string(amount) + " x " + std::string(name);
    const auto addLine = [&text](const std::string& line) { text += '\n' + line; };
    addLine("Mass: " + std::to_string(ship.previewWeapMass(name, amount)) + " = " +
            std::string(record.massform));
    addLine("Cost: " + std::to_string(ship.previewWeapCost(name, amount)) + " = " +
            std::string(record.costform));
    addLine(describeValues(
        ship, toSmallLetters(std::string(record.massform) + ' ' + std::string(record.costform)),
        amount));
    if (!ship.PaintableWeap(name)) {
        addLine("No place on the sheet's drawing");
    } else if (const std::string arcs = arcWords(name, record.arclist); !arcs.empty()) {
        addLine("Arcs: " + arcs);
    }
    if (const std::string_view rules = ship.rulesOf(name); !rules.empty()) {
        addLine(std::string(rules));
    }
    return text;
}

std::vector<Explanation> explainShip(ShipClass& ship) {
    const HullFigures hull = ship.hullFigures();
    const std::string hullText = describeHull(hull.design);
    const std::vector<WeapRec> systems = ship.systemsAboard();
    Explanation cost{.figure = "Cost", .terms = {}, .sum = ship.g_lCost};
    cost.terms.push_back({hull.hullCost, hullText});
    cost.terms.push_back({hull.ftlCost, "FTL drive: " + wordOf(ftlLine(hull.design.ftl))});
    cost.terms.push_back({hull.thrustCost, "Thrust " + std::to_string(hull.design.thrust)});
    appendSystems(cost.terms, systems, [&](const WeapRec& record) {
        return std::int64_t{ship.countedCost(record.name, record.amount)};
    });

    Explanation damagePoints{.figure = "Damage points", .terms = {}, .sum = ship.g_iDP};
    damagePoints.terms.push_back({hull.damagePoints, hullText});

    Explanation massLeft{.figure = "Mass left", .terms = {}, .sum = ship.g_iMassLeft};
    massLeft.terms.push_back({hull.freeMass, "Free mass of the " + hullText});
    appendSystems(massLeft.terms, systems, [&](const WeapRec& record) {
        return -std::int64_t{ship.countedMass(record.name, record.amount)};
    });
    return {std::move(cost), std::move(damagePoints), std::move(massLeft)};
}

}  // namespace fleetwright
