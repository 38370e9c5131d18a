#pragma once

// The systems that a ship can carry, and how many of each it does.

#include "CatalogueFile.h"

#include <cstddef>
#include <cstdint>
#include <forward_list>
#include <memory>
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

/// The records of a catalogue file. Each ship has its own.
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

    /// Takes the records that the file has now, none of them aboard. Throws FileError. What
    /// `strTok` has left on this thread becomes the rest of the last line.
    void loadWeaps(const CatalogueFile& file);

    /// The records in the order of the file.
    std::vector<WeapRec>& records() { return m_records; }
    const std::vector<WeapRec>& records() const { return m_records; }

    /// What they were taken from.
    const std::shared_ptr<const CatalogueText>& text() const { return m_text; }

    /// What the catalogue tells players of a record, which is one of `records`; or nothing.
    std::string_view rulesOf(std::size_t index) const { return m_text->lines()[index].rules; }

    /// Index of the last record named `cloakName`; 0 if there is none.
    std::int32_t cloakIndex() const { return m_cloakIndex; }

    /// Keeps a text for as long as the catalogue lives.
    std::string_view keep(std::string_view text) { return m_keptTexts.emplace_front(text); }

private:
    std::shared_ptr<const CatalogueText> m_text;
    std::forward_list<std::string> m_keptTexts;
    std::vector<WeapRec> m_records;
    std::int32_t m_cloakIndex = 0;
};

}  // namespace fleetwright
