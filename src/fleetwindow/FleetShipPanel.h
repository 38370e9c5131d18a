#pragma once

#include "FleetField.h"
#include "Frame.h"
#include "Label.h"
#include "TextBox.h"
#include "UpDown.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// The ship that is selected in the list: how many there are of it, what they are called, and
/// notes.
class FleetShipPanel : public FleetPart {
public:
    FleetShipPanel(const FleetContext& context,
                   std::function<std::optional<std::size_t>()> selected);

    void show();
    void place(const Place& frame);

    Frame fraShip{form(), {.name = "fraShip", .place = {}, .caption = "Selected ship"}};
    Label lblCount{fraShip,
                   {.name = "lblCount", .place = {120, 345, 570, 255}, .caption = "Count"}};
    TextBox txtCount{fraShip,
                     {.name = "txtCount",
                      .place = {720, 300, 750, 330},
                      .toolTip = "How many ships of this design the fleet has",
                      .accessibleName = "Count",
                      .isUndoneByForm = true}};
    UpDown updwnCount{
        fraShip,
        {.name = "updwnCount",
         .place = {1485, 270, 240, 390},
         .toolTip = "One ship more or less",
         .accessibleName = "Count"},
        {.upClick = [this] { step(+1); }, .downClick = [this] { step(-1); }, .change = {}}};
    Label lblNames{
        fraShip,
        {.name = "lblNames", .place = {120, 720, 1800, 255}, .caption = "Own names, one a line"}};
    TextBox txtNames{fraShip,
                     {.name = "txtNames",
                      .place = {},
                      .toolTip = "What the ships of this design are called, one name a line",
                      .accessibleName = "Own names",
                      .isMultiline = true,
                      .isUndoneByForm = true}};
    Label lblShipNotes{fraShip,
                       {.name = "lblShipNotes", .place = {0, 720, 1200, 255}, .caption = "Notes"}};
    TextBox txtShipNotes{fraShip,
                         {.name = "txtShipNotes",
                          .place = {},
                          .accessibleName = "Notes on the selected ship",
                          .isMultiline = true,
                          .isUndoneByForm = true}};

private:
    const FleetShip* ship() const;
    FleetShip& shipIn(Fleet& fleet) const { return fleet.ships[*m_selected()]; }
    FleetField::Rules rules(const std::string& name,
                            std::function<std::string(const FleetShip&)> read,
                            std::function<void(FleetShip&, const std::string&)> write) const;
    void setCount(FleetShip& ship, std::int32_t count);
    void step(int by);

    std::function<std::optional<std::size_t>()> m_selected;
    FleetField m_count, m_names, m_notes;
    FleetShip m_counted;                   ///< as the last count has left it
    std::vector<std::string> m_keptNames;  ///< those that it had, and has again with that count
};

}  // namespace fleetwright
