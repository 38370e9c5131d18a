#pragma once

#include "Button.h"
#include "ComboBox.h"
#include "FleetPart.h"
#include "Frame.h"
#include "ListView.h"
#include "OptionButton.h"
#include "TextBox.h"

namespace fleetwright {

/// What of single kinds of ships the fleet may have at most, and what is left of that.
class FleetLimitsPanel : public FleetPart {
public:
    explicit FleetLimitsPanel(const FleetContext& context);

    void show();
    void place(const Place& frame);

    Frame fraLimits{form(), {.name = "fraLimits", .place = {}, .caption = "Limits by class"}};
    TextBox txtMost{fraLimits,
                    {.name = "txtMost",
                     .place = {120, 300, 750, 330},
                     .toolTip = "At most so many",
                     .accessibleName = "At most",
                     .isUndoneByForm = true}};
    ComboBox cboKind{fraLimits,
                     {.name = "cboKind",
                      .place = {},
                      .toolTip = "The class, the hull or the size that the limit is about",
                      .accessibleName = "Kind of ship"}};
    OptionButton optShips{
        fraLimits,
        {.name = "optShips", .place = {120, 690, 780, 300}, .caption = "Ships", .isOn = true},
        {}};
    OptionButton optPoints{
        fraLimits, {.name = "optPoints", .place = {930, 690, 840, 300}, .caption = "Points"}, {}};
    Button cmdSetLimit{fraLimits,
                       {.name = "cmdSetLimit",
                        .place = {0, 660, 840, 345},
                        .caption = "&Set",
                        .toolTip = "Sets this limit"},
                       [this] { set(); }};
    Button cmdRemoveLimit{fraLimits,
                          {.name = "cmdRemoveLimit",
                           .place = {0, 660, 960, 345},
                           .caption = "Dro&p",
                           .toolTip = "Takes the selected limit away (Delete in the list)"},
                          [this] { remove(); }};
    ListView lvLimits{fraLimits,
                      {.name = "lvLimits",
                       .place = {},
                       .accessibleName = "Limits by class",
                       .accessibleDescription = "Delete takes a limit away"}};

private:
    void set();
    void remove();
    void takeSelected();
};

}  // namespace fleetwright
