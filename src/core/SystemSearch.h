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
/// what that has found; any other takes one pass over the names.
class SystemSearch {
public:
    explicit SystemSearch(const std::vector<std::string_view>& names);

    /// Looks for a text, words with blanks between. No words find nothing.
    void find(std::string_view typed);
    /// The places of the names that were found, best first.
    const std::vector<std::size_t>& matches() const { return m_matches; }

private:
    enum class Fit { None, Inside, Starts };

    std::string_view name(std::size_t place) const;
    Fit fit(std::size_t place, std::string_view word) const;
    Fit fit(std::size_t place, const std::vector<std::string_view>& words) const;

    std::string m_names;                      ///< all of them in small letters
    std::vector<std::uint32_t> m_wordStarts;  ///< where words begin in that
    std::vector<std::uint32_t> m_ends;        ///< of each name
    std::vector<std::uint32_t> m_wordEnds;    ///< behind the last of its words in m_wordStarts
    std::string m_typed;
    std::vector<std::size_t> m_found;  ///< the places of what matches, in their order
    std::vector<std::size_t> m_matches;
};

}  // namespace fleetwright
