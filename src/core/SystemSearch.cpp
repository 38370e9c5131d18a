#include "SystemSearch.h"

#include "text.h"

#include <algorithm>
#include <numeric>

namespace fleetwright {

namespace {

/// Letters of other scripts are bytes of their own, of which none parts words.
bool partsWords(char c) {
    return static_cast<unsigned char>(c) < 0x80 && (c < '0' || (c > '9' && c < 'a') || c > 'z');
}

std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    while (!(text = trimmed(text)).empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        words.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

}  // namespace

SystemSearch::SystemSearch(const std::vector<std::string_view>& names) {
    for (const std::string_view name : names) {
        const std::string letters = toSmallLetters(name);
        for (std::size_t at = 0; at < letters.size(); ++at) {
            if (at == 0 || partsWords(letters[at - 1])) {
                m_wordStarts.push_back(static_cast<std::uint32_t>(m_names.size() + at));
            }
        }
        m_names += letters;
        m_ends.push_back(static_cast<std::uint32_t>(m_names.size()));
        m_wordEnds.push_back(static_cast<std::uint32_t>(m_wordStarts.size()));
    }
}

std::string_view SystemSearch::name(std::size_t place) const {
    const std::size_t start = place == 0 ? 0 : m_ends[place - 1];
    return std::string_view(m_names).substr(start, m_ends[place] - start);
}

SystemSearch::Fit SystemSearch::fit(std::size_t place, std::string_view word) const {
    const std::string_view names = std::string_view(m_names).substr(0, m_ends[place]);
    for (std::size_t i = place == 0 ? 0 : m_wordEnds[place - 1]; i < m_wordEnds[place]; ++i) {
        if (names.substr(m_wordStarts[i]).starts_with(word)) {
            return Fit::Starts;
        }
    }
    return name(place).find(word) == std::string_view::npos ? Fit::None : Fit::Inside;
}

/// A name fits as well as its worst word.
SystemSearch::Fit SystemSearch::fit(std::size_t place,
                                    const std::vector<std::string_view>& words) const {
    Fit worst = Fit::Starts;
    for (const std::string_view word : words) {
        worst = std::min(worst, fit(place, word));
        if (worst == Fit::None) {
            break;
        }
    }
    return worst;
}

void SystemSearch::find(std::string_view typed) {
    const std::string letters = toSmallLetters(typed);
    const std::vector<std::string_view> words = wordsOf(letters);
    if (wordsOf(m_typed).empty() || !letters.starts_with(m_typed)) {
        m_found.resize(m_ends.size());
        std::iota(m_found.begin(), m_found.end(), 0);
    }
    m_typed = letters;
    m_matches.clear();
    std::vector<std::size_t> inside;
    std::erase_if(m_found, [&](std::size_t place) {
        const Fit found = words.empty() ? Fit::None : fit(place, words);
        if (found != Fit::None) {
            (found == Fit::Starts ? m_matches : inside).push_back(place);
        }
        return found == Fit::None;
    });
    m_matches.insert(m_matches.end(), inside.begin(), inside.end());
}

}  // namespace fleetwright
