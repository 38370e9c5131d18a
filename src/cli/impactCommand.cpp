#include "commands.h"

#include "CatalogueCheck.h"
#include "ShipOnScreen.h"
#include "comparisonJson.h"
#include "comparisonTexts.h"
#include "console.h"
#include "figuresJson.h"
#include "paths.h"
#include "text.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

/// A ship with the former catalogue and with the new one.
struct Impact {
    std::string file;
    std::string shipName;
    std::optional<Fault> fault = {};  ///< why it does not load any more
    std::array<std::int32_t, 2> cost = {};
    std::array<std::int32_t, 2> massLeft = {};
    std::vector<ComparedLine> changes = {};

    bool isAffected() const { return fault || !changes.empty(); }
};

Impact impactOf(const std::string& file, ShipClass& before, ShipOnScreen& screen) {
    Impact impact{.file = file, .shipName = before.g_sShipName};
    impact.fault = screen.load(file);
    if (!impact.fault) {
        ShipClass& after = screen.ship();
        impact.cost = {before.g_lCost, after.g_lCost};
        impact.massLeft = {before.g_iMassLeft, after.g_iMassLeft};
        impact.changes = impactOn(profileOf(before), profileOf(after));
    }
    return impact;
}

std::string textOf(const Impact& impact, const CatalogueChanges& catalogue) {
    return shownText(impact.file) + ": " + shownText(impact.shipName) + '\n' +
           (impact.fault ? "    does not load any more: " + impact.fault->text + '\n'
                         : impactText(impact.changes, catalogue));
}

Json renamedOf(const CatalogueChanges::Gone& gone) {
    return gone.renamed ? Json(*gone.renamed) : Json(nullptr);
}

Json jsonOf(const Options& options, const CatalogueChanges& catalogue) {
    Json gone = Json::array();
    for (const CatalogueChanges::Gone& each : catalogue.gone) {
        gone.push_back({{"name", each.name}, {"renamed", renamedOf(each)}});
    }
    return {{"old", options.words[0]},
            {"new", options.words[1]},
            {"gone", std::move(gone)},
            {"added", catalogue.added}};
}

Json changesOf(const Impact& impact, ComparedLine::About about, const CatalogueChanges& catalogue) {
    Json array = Json::array();
    for (const ComparedLine& line : impact.changes) {
        if (line.about != about) {
            continue;
        }
        Json change = {{"name", line.key},
                       {"before", cellJson(line.cells.front(), about)},
                       {"after", cellJson(line.cells.back(), about)}};
        if (const CatalogueChanges::Gone* const gone = catalogue.find(line.key);
            gone != nullptr && about == ComparedLine::About::System) {
            change["renamed"] = renamedOf(*gone);
        }
        array.push_back(std::move(change));
    }
    return array;
}

Json jsonOf(const Impact& impact, const CatalogueChanges& catalogue) {
    Json json = {{"file", impact.file},
                 {"shipName", impact.shipName},
                 {"affected", impact.isAffected()},
                 {"fault", impact.fault ? Json(impact.fault->text) : Json(nullptr)}};
    if (!impact.fault) {
        json["cost"] = impact.cost;
        json["massLeft"] = impact.massLeft;
        json["noLongerFits"] = impact.massLeft[0] >= 0 && impact.massLeft[1] < 0;
        json["figures"] = changesOf(impact, ComparedLine::About::Figure, catalogue);
        json["fire"] = changesOf(impact, ComparedLine::About::Fire, catalogue);
        json["systems"] = changesOf(impact, ComparedLine::About::System, catalogue);
    }
    return json;
}

/// Whether a catalogue can be designed with. What is wrong with it is said: with a formula or a
/// parent in pieces, all that is compared would be wrong.
bool isSound(const CatalogueText& catalogue, const std::string& file) {
    const std::vector<Fault> faults = checkCatalogue(catalogue, CatalogueCheck::Start);
    for (const Fault& fault : faults) {
        complain(complaint(file, fault));
    }
    return faults.empty();
}

int runImpact(const Options& options) {
    const auto before = CatalogueFile::readOnce(nativePath(options.words[0]));
    const auto after = CatalogueFile::readOnce(nativePath(options.words[1]));
    const bool isBeforeSound = isSound(*before.read(), options.words[0]);
    if (!isSound(*after.read(), options.words[1]) || !isBeforeSound) {
        return SomeRefused;
    }
    const CatalogueChanges catalogue = changesOf(*before.read(), *after.read());
    const bool isJson = options.has("--json");
    printResults(isJson ? jsonText(jsonOf(options, catalogue)) + '\n' : textOf(catalogue));
    const auto ships = std::span(options.words).subspan(2);
    std::atomic<std::size_t> unaffected = 0;
    const auto work = [&](std::size_t index, ShipOnScreen& screen) {
        refuseFleet(ships[index]);
        ShipOnScreen screenAfter(options.appFolder, after);
        const Impact impact = impactOf(ships[index], screen.ship(), screenAfter);
        unaffected += impact.isAffected() ? 0 : 1;
        return isJson                ? jsonText(jsonOf(impact, catalogue)) + '\n'
               : impact.isAffected() ? textOf(impact, catalogue)
                                     : std::string();
    };
    const int status = forEachShip(options, ships, before, RefusedLines::AsComplaints, work);
    if (!isJson && unaffected != 0) {
        printResults(std::to_string(unaffected) +
                     (unaffected == 1 ? " ship is not affected.\n" : " ships are not affected.\n"));
    }
    return status;
}

}  // namespace

extern const CommandRow impactCommand = {
    .name = "impact",
    .words = "OLD NEW SHIP... [--json]",
    .least = 3,
    .most = CommandRow::any,
    .options = {&jsonOption, 1},
    .help = "Say what a change of the catalogue does to designs",
    .details = "OLD and NEW are catalogues (.dat). Named are systems that are gone or new, and for "
               "each ship all that is other with NEW: figures, what its weapons cover, systems "
               "with their mass and cost, what the ship loses, and whether it no longer fits. A "
               "system that is gone may only have another name: one with the same mass, cost, "
               "category and arcs is named, with a question mark. Catalogues that the program "
               "would not start with are refused. "
               "With --json, one object for the catalogues and one for each ship, a line each.",
    .run = runImpact,
};

}  // namespace fleetwright
