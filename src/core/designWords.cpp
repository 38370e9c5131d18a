#include "designWords.h"

#include "HullRules.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace fleetwright {

namespace {

struct CodeWord {
    std::int32_t code;
    std::string_view word;
};

constexpr std::array<CodeWord, 6> hullWords = {{{Warship, "Warship"},
                                                {Merchant, "Merchant"},
                                                {QShip, "Q-Ship"},
                                                {Starbase, "Starbase"},
                                                {SpaceStation, "Space Station"},
                                                {QSpaceStation, "Q-Space Station"}}};
constexpr std::array<CodeWord, 2> streamlineWords = {{{1, "Partial"}, {2, "Full"}}};
constexpr std::array<CodeWord, 2> armorWords = {{{1, "Level 1"}, {2, "Level 2"}}};
constexpr std::array<CodeWord, 3> ftlWords = {
    {{NoDrive, "None"}, {NormalDrive, "Normal"}, {TugDrive, "Tug"}}};

template <std::size_t Size>
std::string lineOf(std::string_view key, const std::array<CodeWord, Size>& words,
                   std::int32_t code) {
    for (const CodeWord& entry : words) {
        if (entry.code == code) {
            return std::string(key) + ": " + std::string(entry.word);
        }
    }
    return {};
}

template <std::size_t Size, typename Equal>
std::optional<std::int32_t> codeOf(const std::array<CodeWord, Size>& words, Equal equal) {
    for (const CodeWord& entry : words) {
        if (equal(entry.word)) {
            return entry.code;
        }
    }
    return std::nullopt;
}

struct SizeName {
    std::int32_t largestMass;
    std::string_view name;
};

constexpr std::array<SizeName, 3> classNames = {
    {{escortMass, "Escort"}, {cruiserMass, "Cruiser"}, {capitalMass, "Capital"}}};
constexpr std::string_view classAbove = "Supership";

constexpr std::array<SizeName, 12> designations = {{{4, "Scout"},
                                                    {6, "Corvette"},
                                                    {10, "Frigate"},
                                                    {14, "Destroyer"},
                                                    {18, "Super Destroyer"},
                                                    {22, "Light Cruiser"},
                                                    {26, "Escort Cruiser"},
                                                    {36, "Heavy Cruiser"},
                                                    {40, "Battle Cruiser"},
                                                    {48, "BattleShip"},
                                                    {70, "BattleDreadnought"},
                                                    {100, "SuperDreadnought"}}};
constexpr std::string_view designationAbove = "SuperShip";
constexpr std::int32_t courierMass = 2;
constexpr std::string_view courierName = "Courier";

template <std::size_t Size>
std::string_view nameOf(std::int32_t mass, const std::array<SizeName, Size>& names,
                        std::string_view nameAbove) {
    for (const SizeName& entry : names) {
        if (mass <= entry.largestMass) {
            return entry.name;
        }
    }
    return nameAbove;
}

}  // namespace

std::string_view hullWord(std::int32_t hullType) {
    const auto* const found =
        std::find_if(hullWords.begin(), hullWords.end(),
                     [&](const CodeWord& entry) { return entry.code == hullType; });
    return found == hullWords.end() ? std::string_view() : found->word;
}

std::string hullLine(std::int32_t hullType) {
    return lineOf("Type", hullWords, hullType);
}

std::string streamlineLine(std::int32_t level) {
    return lineOf("Streamlining", streamlineWords, level);
}

std::string armorLine(std::int32_t level) {
    return lineOf("Armor", armorWords, level);
}

std::string ftlLine(std::int32_t ftl) {
    return lineOf("FTL", ftlWords, ftl);
}

std::string wordOf(const std::string& line, std::string_view otherwise) {
    const std::size_t colon = line.find(": ");
    return colon == std::string::npos ? std::string(otherwise) : line.substr(colon + 2);
}

std::optional<std::int32_t> hullTypeOf(std::string_view word) {
    const std::string capitals = toCapitals(word);
    return codeOf(hullWords, [&](std::string_view known) { return toCapitals(known) == capitals; });
}

std::optional<std::int32_t> ftlOf(std::string_view word) {
    return codeOf(ftlWords, [&](std::string_view known) { return known == word; });
}

std::optional<std::int32_t> streamlineOf(std::string_view word) {
    return codeOf(streamlineWords, [&](std::string_view known) { return known == word; });
}

std::string_view classOf(std::int32_t mass) {
    return nameOf(mass, classNames, classAbove);
}

std::string_view designationOf(std::int32_t mass) {
    return mass == courierMass ? courierName : nameOf(mass, designations, designationAbove);
}

std::vector<std::string_view> shipKinds() {
    std::vector<std::string_view> kinds;
    kinds.reserve(hullWords.size() + classNames.size() + 2);
    for (const CodeWord& hull : hullWords) {
        kinds.push_back(hull.word);
    }
    for (const SizeName& entry : classNames) {
        kinds.push_back(entry.name);
    }
    kinds.insert(kinds.end(), {classAbove, courierName});
    for (const SizeName& entry : designations) {
        kinds.push_back(entry.name);
    }
    return kinds;
}

std::string thrustDriveName(std::int32_t thrust) {
    return std::string(thrustDriveWords) + std::to_string(thrust);
}

std::string_view ftlDriveName(std::int32_t ftl) {
    switch (ftl) {
    case NormalDrive:
        return "FTL Drive";
    case TugDrive:
        return "FTL Tug Drive";
    default:
        return {};
    }
}

}  // namespace fleetwright
