#include "arcWords.h"

namespace fleetwright {

namespace {

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

}  // namespace

std::string arcWords(std::string_view name, std::string_view arcLetters) {
    const std::string_view field = mounting(name);
    if (field == "All") {
        return "all round";
    }
    const std::string words = directions(field);
    return words.empty() ? directions(arcLetters) : words;
}

}  // namespace fleetwright
