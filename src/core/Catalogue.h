#pragma once

// The catalogue file `weaps.dat`: every system that a ship can carry, one record a line. Its
// format is described in docs/catalogue.md.

#include <array>
#include <cstdint>
#include <filesystem>
#include <forward_list>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// One catalogue record, which is also the weapon line of a ship. Its texts live as long as the
/// catalogue, and so as long as the ship.
struct WeapRec {
    std::string_view name;
    std::string_view massform;  ///< mass formula
    std::string_view costform;  ///< cost formula
    std::string_view arclist;   ///< arc letters in order of preference
    std::string_view icon;      ///< file name of the picture
    std::int32_t amount = 0;    ///< how many of this system the ship carries
};

/// Keys of the top-level nodes under which all categories and systems stand, in their order.
inline constexpr std::array<std::string_view, 7> catalogueRoots = {
    "BEAM", "DEFENSE", "HEAVY", "SYSTEMS", "HANGAR", "SPECIAL", "ALIEN"};

/// The seven fields of a catalogue line, as they stand in it.
struct CatalogueLine {
    std::string_view name;
    std::string_view massform;
    std::string_view costform;
    std::string_view parentKey;    ///< of a category record
    std::string_view categoryKey;  ///< a category's own key, or the key that a system stands under
    std::string_view arclist;
    std::string_view icon;  ///< all the rest of the line

    bool isCategory() const { return name == "CATEGORY"; }
};

/// Whether a line of the catalogue file is passed over: an empty line or a comment.
bool isCatalogueComment(std::string_view line);

/// Cuts a line into its fields. A line with too few of them repeats its last piece.
CatalogueLine cutCatalogueLine(std::string_view line);

/// The records of a catalogue file and the text that they point into. Each ship has its own.
class Catalogue {
public:
    /// The record that the cloak rule is about.
    static constexpr std::string_view cloakName = "Cloaking Field";
    /// The record that sheets count as a further damage control party.
    static constexpr std::string_view partyName = "Damage Control Party";

    Catalogue() = default;
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;
    ~Catalogue() = default;

    /// Reads the file. Throws FileError.
    void loadWeaps(const std::filesystem::path& file);

    /// The records in the order of the file.
    std::vector<WeapRec>& records() { return m_records; }
    const std::vector<WeapRec>& records() const { return m_records; }

    /// Index of the last record named `cloakName`; 0 if there is none.
    std::int32_t cloakIndex() const { return m_cloakIndex; }

    /// Keeps a text for as long as the catalogue lives.
    std::string_view keep(std::string_view text) { return m_keptTexts.emplace_front(text); }

private:
    std::string m_text;
    std::forward_list<std::string> m_keptTexts;
    std::vector<WeapRec> m_records;
    std::int32_t m_cloakIndex = 0;
};

}  // namespace fleetwright
