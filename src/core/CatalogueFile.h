#pragma once

// The catalogue file `weaps.dat`: every system that a ship can carry, one record a line. Its format
// is described in docs/catalogue.md.

#include <array>
#include <concepts>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fleetwright {

/// Keys of the top-level nodes under which all categories and systems stand, in their order.
inline constexpr std::array<std::string_view, 7> catalogueRoots = {
    "BEAM", "DEFENSE", "HEAVY", "SYSTEMS", "HANGAR", "SPECIAL", "ALIEN"};

/// Whether a line of the catalogue file is passed over: an empty line or a comment.
bool isCatalogueComment(std::string_view line);

/// With this a comment begins that says, in the line behind a system's record, how the system is
/// played.
inline constexpr std::string_view rulesMark = "#>";

/// A record of the catalogue file: its line, cut into seven fields. A line with too few of them
/// repeats its last piece.
struct CatalogueLine {
    int number = 0;          ///< of the line in the file, from 1
    std::string_view whole;  ///< the line before it was cut
    std::string_view name;
    std::string_view massform;     ///< mass formula
    std::string_view costform;     ///< cost formula
    std::string_view parentKey;    ///< of a category record
    std::string_view categoryKey;  ///< a category's own key, or the key that a system stands under
    std::string_view arclist;      ///< arc letters in order of preference
    std::string_view icon;         ///< file name of the picture: all the rest of the line
    std::string_view rules = {};   ///< what a player has to know of it at the table, or nothing

    bool isCategory() const { return name == "CATEGORY"; }
};

/// The text of a catalogue, cut into its records. It never changes, so that all who look at the
/// same catalogue, in whatever thread, share one.
class CatalogueText {
public:
    CatalogueText(std::string text);
    CatalogueText(const CatalogueText&) = delete;
    CatalogueText& operator=(const CatalogueText&) = delete;
    ~CatalogueText() = default;

    const std::string& text() const { return m_text; }
    /// The records in the order of the file. Their texts live as long as this object.
    const std::vector<CatalogueLine>& lines() const { return m_lines; }
    /// The numbers of the rules lines that stand behind no record of a system.
    const std::vector<int>& strayRules() const { return m_strayRules; }

private:
    void takeRules(std::string_view line, int number);

    std::string m_text;
    std::vector<CatalogueLine> m_lines;
    std::vector<int> m_strayRules;
};

/// A catalogue file by its path. Whoever asks gets what is in it at that moment, but it is only
/// read again when it has changed. Copies share what was read, in all threads.
class CatalogueFile {
public:
    /// A file of which all see what it held when the first one could read it, whatever becomes of
    /// it.
    static CatalogueFile readOnce(const std::filesystem::path& path);

    /// The same of a text that was read already.
    static CatalogueFile holding(std::shared_ptr<const CatalogueText> catalogue);

    template <typename Path>
        requires std::convertible_to<const Path&, std::filesystem::path>
    CatalogueFile(const Path& path) : m_cache(make(path)) {}

    const std::filesystem::path& path() const;
    /// Throws FileError if the file cannot be read.
    std::shared_ptr<const CatalogueText> read() const;

private:
    struct Cache;
    static std::shared_ptr<Cache> make(std::filesystem::path path);

    std::shared_ptr<Cache> m_cache;
};

}  // namespace fleetwright
