#include "arcWords.h"

#include <algorithm>

namespace fleetwright {

namespace {

constexpr std::string_view allRound = "All";

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

/// The letters if all are directions, or nothing.
std::string_view directions(std::string_view letters) {
    const bool areAll =
        std::ranges::none_of(letters, [](char letter) { return arcWord(letter).empty(); });
    return areAll ? letters : std::string_view();
}

/// What stands in brackets at the end of a name.
std::string_view mounting(std::string_view name) {
    const std::size_t open = name.rfind('(');
    if (open == std::string_view::npos || !name.ends_with(')')) {
        return {};
    }
    return name.substr(open + 1, name.size() - open - 2);
}

}  // namespace

std::string_view fieldsOfFire(std::string_view name, std::string_view arcLetters) {
    const std::string_view field = mounting(name);
    if (field == allRound) {
        return "FPSA";
    }
    const std::string_view letters = directions(field);
    return letters.empty() ? directions(arcLetters) : letters;
}

std::string arcWords(std::string_view name, std::string_view arcLetters) {
    if (mounting(name) == allRound) {
        return "all round";
    }
    std::string words;
    for (const char letter : fieldsOfFire(name, arcLetters)) {
        words += (words.empty() ? "" : ", ") + std::string(arcWord(letter));
    }
    return words;
}

}  // namespace fleetwright
