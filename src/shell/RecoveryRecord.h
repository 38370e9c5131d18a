#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace fleetwright {

/// What runs of the program know for certain of the designs in a folder: which of them they have
/// made, and which of those the user has been shown. Designs are known by the names of their files,
/// without ending, and by their contents: one that somebody has copied or written over is nobody's.
///
/// Nothing that a record says becomes wrong by itself, so several of them add up to one.
class RecoveryRecord {
public:
    /// The record that such a text is. A text that is not as a run has written it says nothing.
    static RecoveryRecord of(std::string_view text);
    std::string text() const;

    /// A run is about to make this design.
    void noteMade(const std::string& name, const std::string& run, std::string_view shipFile);
    /// The user has been shown the design of this name.
    void noteSeen(const std::string& name);
    void forget(const std::string& name) { m_designs.erase(name); }
    /// Forgets all but these.
    void keepOnly(const std::set<std::string>& names);
    void add(const RecoveryRecord& other);

    bool isEmpty() const { return m_designs.empty(); }
    bool isMade(const std::string& name) const;
    bool isMade(const std::string& name, std::string_view shipFile) const;
    bool isSeen(const std::string& name) const;
    /// The runs that have made what this name is of.
    std::set<std::string> makersOf(const std::string& name) const;
    /// The names under which this was made, whatever else was made under them.
    std::set<std::string> namesOf(std::string_view shipFile) const;
    /// Whether this is the beginning of what a run was about to make last, cut at the end of a
    /// line.
    bool isCut(std::string_view shipFile) const;

private:
    struct Design {
        std::set<std::pair<std::string, std::string>> made;  ///< run, fingerprint
        bool isSeen = false;
    };

    std::map<std::string, Design> m_designs;
    std::set<std::string> m_cuts;  ///< fingerprints
};

}  // namespace fleetwright
