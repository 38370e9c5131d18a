#pragma once

#include "FleetField.h"
#include "Frame.h"
#include "Label.h"
#include "TextBox.h"

namespace fleetwright {

/// What a limit can be.
inline constexpr NumberRange limitRange = {0, 2'000'000'000};

/// What a fleet is called, whose it is, what it may cost, and what there is to say about it.
class FleetHeadPanel : public FleetPart {
public:
    explicit FleetHeadPanel(const FleetContext& context);

    void show();
    /// The place of the notes, which changes with the window's size.
    void place(const Place& notes);

    Label lblFleetName{form(),
                       {.name = "lblFleetName", .place = {150, 165, 600, 255}, .caption = "Fleet"}};
    TextBox txtFleetName{form(),
                         {.name = "txtFleetName",
                          .place = {780, 120, 3300, 330},
                          .accessibleName = "Name of the fleet",
                          .isUndoneByForm = true}};
    Label lblPlayer{form(),
                    {.name = "lblPlayer", .place = {4275, 165, 660, 255}, .caption = "Player"}};
    TextBox txtPlayer{form(),
                      {.name = "txtPlayer",
                       .place = {4965, 120, 2400, 330},
                       .accessibleName = "Player",
                       .isUndoneByForm = true}};
    Label lblPointsLimit{
        form(),
        {.name = "lblPointsLimit", .place = {7560, 165, 1140, 255}, .caption = "Points limit"}};
    TextBox txtPointsLimit{form(),
                           {.name = "txtPointsLimit",
                            .place = {8730, 120, 1020, 330},
                            .toolTip = "How many points the fleet may cost; empty if any number",
                            .accessibleName = "Points limit",
                            .isUndoneByForm = true}};
    Frame fraFleetNotes{form(),
                        {.name = "fraFleetNotes", .place = {}, .caption = "Notes on the fleet"}};
    TextBox txtFleetNotes{fraFleetNotes,
                          {.name = "txtFleetNotes",
                           .place = {},
                           .accessibleName = "Notes on the fleet",
                           .isMultiline = true,
                           .isUndoneByForm = true}};

private:
    FleetField m_name, m_player, m_limit, m_notes;
};

}  // namespace fleetwright
