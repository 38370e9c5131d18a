#include "CatalogueChanges.h"

#include "CatalogueFile.h"
#include "text.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

namespace fleetwright {

namespace {

using Systems = std::vector<const CatalogueLine*>;

/// The systems whose names the other catalogue does not have. Of several with one name the first
/// one counts, as on a ship.
Systems systemsOnlyIn(const CatalogueText& catalogue, const CatalogueText& other) {
    std::set<std::string_view> known;
    for (const CatalogueLine& line : other.lines()) {
        if (!line.isCategory()) {
            known.insert(line.name);
        }
    }
    Systems systems;
    for (const CatalogueLine& line : catalogue.lines()) {
        if (!line.isCategory() && known.insert(line.name).second) {
            systems.push_back(&line);
        }
    }
    return systems;
}

/// What a system is besides its name.
using Likeness = std::vector<std::string>;

Likeness essenceOf(const CatalogueLine& line) {
    return {std::string(line.massform), std::string(line.costform), toCapitals(line.categoryKey),
            std::string(line.arclist)};
}

Likeness wholeOf(const CatalogueLine& line) {
    Likeness all = essenceOf(line);
    all.emplace_back(line.icon);
    all.emplace_back(line.rules);
    return all;
}

std::map<Likeness, Systems> byLikeness(const Systems& systems,
                                       Likeness likenessOf(const CatalogueLine&)) {
    std::map<Likeness, Systems> groups;
    for (const CatalogueLine* const line : systems) {
        groups[likenessOf(*line)].push_back(line);
    }
    return groups;
}

/// Notes those pairs of a gone and a new system that have a likeness for themselves.
void noteRenamed(const Systems& gone, const Systems& added,
                 Likeness likenessOf(const CatalogueLine&),
                 std::map<const CatalogueLine*, const CatalogueLine*>& renamed) {
    const auto ofAdded = byLikeness(added, likenessOf);
    for (const auto& [likeness, systems] : byLikeness(gone, likenessOf)) {
        const auto alike = ofAdded.find(likeness);
        if (systems.size() == 1 && alike != ofAdded.end() && alike->second.size() == 1) {
            renamed.emplace(systems.front(), alike->second.front());
        }
    }
}

}  // namespace

const CatalogueChanges::Gone* CatalogueChanges::find(std::string_view name) const {
    const auto found = std::ranges::find(gone, name, &Gone::name);
    return found == gone.end() ? nullptr : &*found;
}

CatalogueChanges changesOf(const CatalogueText& before, const CatalogueText& after) {
    const Systems gone = systemsOnlyIn(before, after), added = systemsOnlyIn(after, before);
    std::map<const CatalogueLine*, const CatalogueLine*> renamed;
    noteRenamed(gone, added, wholeOf, renamed);
    Systems goneElse, addedElse;
    std::ranges::copy_if(gone, std::back_inserter(goneElse),
                         [&](const CatalogueLine* line) { return !renamed.contains(line); });
    std::ranges::copy_if(added, std::back_inserter(addedElse), [&](const CatalogueLine* line) {
        return std::ranges::none_of(renamed, [&](const auto& pair) { return pair.second == line; });
    });
    noteRenamed(goneElse, addedElse, essenceOf, renamed);

    CatalogueChanges changes;
    for (const CatalogueLine* const line : gone) {
        CatalogueChanges::Gone& each = changes.gone.emplace_back();
        each.name = line->name;
        if (const auto found = renamed.find(line); found != renamed.end()) {
            each.renamed = std::string(found->second->name);
        }
    }
    for (const CatalogueLine* const line : added) {
        changes.added.emplace_back(line->name);
    }
    return changes;
}

}  // namespace fleetwright
