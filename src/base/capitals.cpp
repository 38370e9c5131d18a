#include "capitals.h"

#include "utf8.h"

#include <algorithm>
#include <array>
#include <utility>

namespace fleetwright {

namespace {

/// The capital of a two-byte character.
std::string_view capitalOf(std::string_view character) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 34> letters = {{
        {"à", "À"}, {"á", "Á"}, {"â", "Â"}, {"ã", "Ã"}, {"ä", "Ä"}, {"å", "Å"}, {"æ", "Æ"},
        {"ç", "Ç"}, {"è", "È"}, {"é", "É"}, {"ê", "Ê"}, {"ë", "Ë"}, {"ì", "Ì"}, {"í", "Í"},
        {"î", "Î"}, {"ï", "Ï"}, {"ð", "Ð"}, {"ñ", "Ñ"}, {"ò", "Ò"}, {"ó", "Ó"}, {"ô", "Ô"},
        {"õ", "Õ"}, {"ö", "Ö"}, {"ø", "Ø"}, {"ù", "Ù"}, {"ú", "Ú"}, {"û", "Û"}, {"ü", "Ü"},
        {"ý", "Ý"}, {"þ", "Þ"}, {"ÿ", "Ÿ"}, {"š", "Š"}, {"œ", "Œ"}, {"ž", "Ž"},
    }};
    const auto found = std::find_if(letters.begin(), letters.end(),
                                    [&](const auto& pair) { return pair.first == character; });
    return found == letters.end() ? character : found->second;
}

}  // namespace

std::string toCapitals(std::string_view text) {
    std::string capitals;
    capitals.reserve(text.size());
    while (!text.empty()) {
        const std::string_view character = text.substr(0, characterLength(text));
        const char first = character.front();
        if (first >= 'a' && first <= 'z') {
            capitals += static_cast<char>(first - 'a' + 'A');
        } else {
            capitals += character.size() == 2 ? capitalOf(character) : character;
        }
        text.remove_prefix(character.size());
    }
    return capitals;
}

}  // namespace fleetwright
