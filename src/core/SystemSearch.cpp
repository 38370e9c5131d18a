#include "SystemSearch.h"

#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace {

bool isWordLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

/// Letters of other scripts are bytes of their own, of which none parts words.
bool partsWords(char c) {
    return static_cast<unsigned char>(c) < 0x80 && !isWordLetter(c);
}

/// Letters and digits have a bit each, and all else has one together.
std::uint64_t bitOf(char c) {
    constexpr int digits = 26, others = 36;
    const int bit = !isWordLetter(c) ? others : c >= 'a' ? c - 'a' : c - '0' + digits;
    return std::uint64_t{1} << bit;
}

bool beginsWord(std::string_view name, std::size_t at) {
    return at == 0 || partsWords(name[at - 1]);
}

}  // namespace

SystemSearch::SystemSearch(const std::vector<std::string_view>& names) {
    for (const std::string_view name : names) {
        const std::string letters = toSmallLetters(name);
        Name next = {.end = 0, .holds = 0, .begins = 0};
        for (std::size_t at = 0; at < letters.size(); ++at) {
            next.holds |= bitOf(letters[at]);
            next.begins |= beginsWord(letters, at) ? bitOf(letters[at]) : 0;
        }
        m_letters += letters;
        next.end = static_cast<std::uint32_t>(m_letters.size());
        m_names.push_back(next);
    }
}

std::vector<SystemSearch::Word> SystemSearch::wordsOf(std::string_view text) {
    std::vector<Word> words;
    while (!(text = trimmed(text)).empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        Word word = {text.substr(0, end), 0, end == 1 && isWordLetter(text.front())};
        for (const char letter : word.text) {
            word.letters |= bitOf(letter);
        }
        words.push_back(word);
        text.remove_prefix(end);
    }
    return words;
}

std::string_view SystemSearch::name(std::size_t place) const {
    const std::size_t start = place == 0 ? 0 : m_names[place - 1].end;
    return std::string_view(m_letters).substr(start, m_names[place].end - start);
}

SystemSearch::Fit SystemSearch::fit(std::size_t place, const Word& word) const {
    const Name& letters = m_names[place];
    if ((word.letters & ~letters.holds) != 0) {
        return Fit::None;
    }
    if (word.isLetter) {
        return (word.letters & letters.begins) != 0 ? Fit::Starts : Fit::Inside;
    }
    const std::string_view whole = name(place);
    Fit best = Fit::None;
    for (std::size_t at = whole.find(word.text); at != std::string_view::npos && best < Fit::Starts;
         at = whole.find(word.text, at + 1)) {
        best = beginsWord(whole, at) ? Fit::Starts : Fit::Inside;
    }
    return best;
}

/// A name fits as well as its worst word.
SystemSearch::Fit SystemSearch::fit(std::size_t place, const std::vector<Word>& words) const {
    Fit worst = Fit::Starts;
    for (const Word& word : words) {
        worst = std::min(worst, fit(place, word));
        if (worst == Fit::None) {
            break;
        }
    }
    return worst;
}

/// Looks among what the last search has found, which this one goes on with. No name fits better
/// than it did then.
SystemSearch::Search SystemSearch::search(const std::string& typed,
                                          const std::vector<Word>& words) const {
    Search next = {.typed = typed};
    std::vector<std::size_t> inside;
    const auto look = [&](std::size_t place) {
        const Fit found = fit(place, words);
        if (found != Fit::None) {
            (found == Fit::Starts ? next.matches : inside).push_back(place);
        }
    };
    const Search& last = m_searches.back();
    if (words.empty()) {
        return next;
    }
    if (wordsOf(last.typed).empty()) {
        for (std::size_t place = 0; place < m_names.size(); ++place) {
            look(place);
        }
    } else {
        std::for_each(last.matches.begin(), last.matches.end(), look);
    }
    // Those that did begin words, and those that did not.
    std::inplace_merge(inside.begin(), std::is_sorted_until(inside.begin(), inside.end()),
                       inside.end());
    next.matches.insert(next.matches.end(), inside.begin(), inside.end());
    return next;
}

void SystemSearch::find(std::string_view typed) {
    const std::string letters = toSmallLetters(typed);
    while (!letters.starts_with(m_searches.back().typed)) {
        m_searches.pop_back();
    }
    if (m_searches.back().typed != letters) {
        m_searches.push_back(search(letters, wordsOf(letters)));
    }
}

}  // namespace fleetwright
