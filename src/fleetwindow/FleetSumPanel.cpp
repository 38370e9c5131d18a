#include "FleetSumPanel.h"

#include "fleetWords.h"
#include "text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

std::string counted(std::int64_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

}  // namespace

void FleetSumPanel::show() {
    lblSum.setCaption(totals());
    const std::string warning = warnings();
    lblWarning.setCaption(warning);
    lblWarning.setToolTip(warning);
}

void FleetSumPanel::place(int left, int top, int width) {
    lblSum.setPlace({left, top, width, 255});
    lblWarning.setPlace({left, top + 285, width, 255});
}

std::string FleetSumPanel::totals() const {
    const FleetSum& sum = window().sum;
    std::string text = counted(sum.ships, "ship", "ships") + ", mass " + std::to_string(sum.mass) +
                       ", damage points " + std::to_string(sum.damagePoints) + ", points " +
                       std::to_string(sum.points);
    if (sum.pointsLeft) {
        text += " of " + std::to_string(*fleet().pointsLimit);
        text += *sum.pointsLeft < 0 ? "" : ", " + std::to_string(*sum.pointsLeft) + " left";
    }
    const std::size_t unread = window().unread();
    return unread == 0 ? text : text + "; " + std::to_string(unread) + " still to be read";
}

/// Each thing that is wrong, limits first.
std::string FleetSumPanel::warnings() const {
    const FleetSum& sum = window().sum;
    std::vector<std::string> found;
    for (const LimitWords& limit : limitWords(fleet(), sum)) {
        if (limit.isBroken) {
            found.push_back(limit.text);
        }
    }
    if (sum.notLoaded > 0) {
        found.push_back(counted(static_cast<std::int64_t>(sum.notLoaded), "design does not load",
                                "designs do not load"));
    }
    if (sum.changed > 0) {
        found.push_back(counted(static_cast<std::int64_t>(sum.changed), "design has changed",
                                "designs have changed") +
                        " since the fleet was saved");
    }
    if (!fleet().catalogue.empty() && fleet().catalogue != services().catalogue()) {
        found.emplace_back("the catalogue has changed since the fleet was saved");
    }
    std::string text;
    for (const std::string& each : found) {
        text += (text.empty() ? "" : "; ") + each;
    }
    return asSentence(text);
}

}  // namespace fleetwright
