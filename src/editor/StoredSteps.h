#pragma once

#include "DesignMoment.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class ShipClass;

/// The steps of one design, as they are put aside with it. docs/file-formats.md describes the text.
struct StoredSteps {
    /// How many are put aside to each side of now.
    static constexpr std::size_t most = 1000;

    DesignMoment now;
    std::vector<std::string> steps;  ///< deltas
    std::size_t at = 0;              ///< how many of them have led to now

    /// The moment in front of all steps.
    DesignMoment first() const;

    std::string text() const;
    /// The steps that such a text tells of a design of this ship's catalogue. Nothing if it is
    /// damaged, tells of another catalogue, or leads to a design that cannot be or has figures that
    /// the rules would not give. The ship works those out, and is the same afterwards.
    static std::optional<StoredSteps> of(std::string_view text, ShipClass& ship);

    /// Goes to the moment, the one that is now or another one, of which `isIt` says that it is the
    /// one. False, and nothing has changed, if there is none.
    template <typename Is>
    bool goTo(const Is& isIt);

private:
    bool go(bool isForth, DesignMoment& moment, std::size_t& place) const;
};

template <typename Is>
bool StoredSteps::goTo(const Is& isIt) {
    for (const bool isForth : {false, true}) {
        DesignMoment moment = now;
        std::size_t place = at;
        do {
            if (isIt(moment)) {
                now = std::move(moment);
                at = place;
                return true;
            }
        } while (go(isForth, moment, place));
    }
    return false;
}

}  // namespace fleetwright
