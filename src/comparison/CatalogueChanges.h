#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class CatalogueText;

/// Which systems another catalogue does not have any more, and which it has besides. What of those
/// that stay is other shows on the ships.
struct CatalogueChanges {
    struct Gone {
        std::string name;
        /// The new system with the same formulas, category and arcs; picture and rules count only
        /// where several have these. Nothing where there is none, or still more than one: then
        /// nobody can say. It is a guess, and to be shown as one.
        std::optional<std::string> renamed = {};
    };

    std::vector<Gone> gone;          ///< in the order of the former catalogue
    std::vector<std::string> added;  ///< in the order of the new one

    /// What is gone by this name; null if nothing is.
    const Gone* find(std::string_view name) const;
};

CatalogueChanges changesOf(const CatalogueText& before, const CatalogueText& after);

}  // namespace fleetwright
