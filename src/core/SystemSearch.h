#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// Finds systems by words of their names, in any case. Each word that is typed has to be in a name;
/// names of which it begins words come before those that only hold it somewhere, and among equals
/// the order is that of the names. A text that goes on with the last one is looked for only among
/// what that has found, one that goes back to an earlier beginning has been looked for already, and
/// any other takes one pass over the names.
class SystemSearch {
public:
    explicit SystemSearch(const std::vector<std::string_view>& names);

    /// Looks for a text, words with blanks between. No words find nothing.
    void find(std::string_view typed);
    /// The places of the names that were found, best first.
    const std::vector<std::size_t>& matches() const { return m_searches.back().matches; }

private:
    enum class Fit { None, Inside, Starts };

    /// Letters as bits: what a name lacks of a word need not be looked for in it.
    struct Name {
        std::uint32_t end;     ///< in m_letters
        std::uint64_t holds;   ///< these letters
        std::uint64_t begins;  ///< words with these
    };
    struct Word {
        std::string_view text;
        std::uint64_t letters;
        bool isLetter;  ///< one that has a bit of its own
    };
    struct Search {
        std::string typed;
        std::vector<std::size_t> matches = {};
    };

    static std::vector<Word> wordsOf(std::string_view text);
    std::string_view name(std::size_t place) const;
    Fit fit(std::size_t place, const Word& word) const;
    Fit fit(std::size_t place, const std::vector<Word>& words) const;
    Search search(const std::string& typed, const std::vector<Word>& words) const;

    std::string m_letters;  ///< all names, in small letters
    std::vector<Name> m_names;
    std::vector<Search> m_searches = {{.typed = {}}};  ///< each goes on with the one before
};

}  // namespace fleetwright
