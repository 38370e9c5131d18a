#pragma once

#include "FleetPart.h"
#include "Label.h"

#include <string>

namespace fleetwright {

/// What the fleet comes to, and what is wrong with it.
class FleetSumPanel : public FleetPart {
public:
    explicit FleetSumPanel(const FleetContext& context) : FleetPart(context) {}

    void show();
    void place(int left, int top, int width);

    /// How much room it takes, in twips.
    static constexpr int height = 570;

    Label lblSum{form(), {.name = "lblSum", .place = {}, .accessibleDescription = "Totals"}};
    Label lblWarning{form(),
                     {.name = "lblWarning",
                      .place = {},
                      .accessibleDescription = "What is wrong with the fleet",
                      .isAlarming = true}};

private:
    std::string totals() const;
    std::string warnings() const;
};

}  // namespace fleetwright
