#pragma once

#include "Frame.h"
#include "OptionButton.h"
#include "Panel.h"
#include "controlArray.h"

#include <array>

namespace fleetwright {

/// The hull of the ship and what drives it: hull type, streamlining, armor, FTL drive and thrust,
/// one group of option buttons each. A base has no streamlining, no drive and no thrust.
class HullPanel : public Panel {
public:
    explicit HullPanel(const PanelContext& context) : Panel(context) {}

    /// Sets the button for each of the ship's codes on, and opens the groups that its hull has. A
    /// code without a button sets none.
    void show();

    // The hull.
    Frame fraHull{form(),
                  {.name = "fraHull", .place = {105, 1470, 3552, 2295}, .caption = "Hull Type"}};
    OptionButton optWarship{
        fraHull,
        {.name = "optWarship", .place = {105, 210, 1404, 300}, .caption = "Warship", .isOn = true},
        [this] { optWarship_Click(); }};
    OptionButton optMerchant{
        fraHull,
        {.name = "optMerchant", .place = {105, 525, 1404, 300}, .caption = "Merchant"},
        [this] { optMerchant_Click(); }};
    OptionButton optQship{fraHull,
                          {.name = "optQship", .place = {105, 840, 1404, 300}, .caption = "Q-Ship"},
                          [this] { optQship_Click(); }};
    OptionButton optStarBase{
        fraHull,
        {.name = "optStarBase", .place = {105, 1155, 1404, 300}, .caption = "Star Base"},
        [this] { optStarBase_Click(); }};
    OptionButton optSpaceStation{
        fraHull,
        {.name = "optSpaceStation", .place = {105, 1470, 1404, 300}, .caption = "Space Station"},
        [this] { optSpaceStation_Click(); }};
    OptionButton optQstation{
        fraHull,
        {.name = "optQstation", .place = {105, 1785, 1404, 300}, .caption = "Q-Space Station"},
        [this] { optQstation_Click(); }};

    Frame fraStreamling{
        fraHull,
        {.name = "fraStreamling", .place = {1620, 105, 1845, 1155}, .caption = "Streamlining"}};
    OptionButton optNoStreamline{fraStreamling,
                                 {.name = "optNoStreamline",
                                  .place = {105, 210, 1605, 204},
                                  .caption = "Unstreamlined",
                                  .isOn = true},
                                 [this] { optNoStreamline_Click(); }};
    OptionButton optPartStreamline{fraStreamling,
                                   {.name = "optPartStreamline",
                                    .place = {105, 525, 1572, 204},
                                    .caption = "Partial Streamling"},
                                   [this] { optPartStreamline_Click(); }};
    OptionButton optFullStreamling{fraStreamling,
                                   {.name = "optFullStreamling",
                                    .place = {105, 840, 1572, 204},
                                    .caption = "Full Streamlining"},
                                   [this] { optFullStreamling_Click(); }};

    Frame fraArmor{fraHull,
                   {.name = "fraArmor", .place = {1620, 1365, 1845, 720}, .caption = "Armor"}};
    std::array<OptionButton, 3> optNoArmor = controlArray<OptionButton, 3>([this](int index) {
        return OptionButton(fraArmor,
                            {.name = "optNoArmor" + std::to_string(index),
                             .place = {96 + 576 * index, 210, 492, 375},
                             .caption = index == 0 ? "None" : "Lvl " + std::to_string(index),
                             .isOn = index == 0,
                             .isGraphical = true},
                            [this, index] { optNoArmor_Click(index); });
    });

    // The drives.
    Frame fraFTL{form(), {.name = "fraFTL", .place = {105, 3885, 2310, 945}, .caption = "FTL"}};
    OptionButton optNone{
        fraFTL,
        {.name = "optNone", .place = {105, 210, 645, 645}, .caption = "None", .isGraphical = true},
        [this] { optNone_Click(); }};
    OptionButton optNormal{fraFTL,
                           {.name = "optNormal",
                            .place = {840, 210, 645, 645},
                            .picture = "ftl",
                            .toolTip = "Normal drive",
                            .accessibleName = "Normal FTL drive",
                            .isOn = true,
                            .isGraphical = true},
                           [this] { optNormal_Click(); }};
    OptionButton optTug{fraFTL,
                        {.name = "optTug",
                         .place = {1575, 210, 645, 645},
                         .picture = "ftltug",
                         .toolTip = "Tug drive",
                         .accessibleName = "Tug FTL drive",
                         .isGraphical = true},
                        [this] { optTug_Click(); }};

    Frame fraThrust{form(),
                    {.name = "fraThrust", .place = {105, 4935, 2325, 2430}, .caption = "Thrust"}};
    std::array<OptionButton, 9> optThrust = controlArray<OptionButton, 9>([this](int index) {
        const std::string number = std::to_string(index);
        return OptionButton(fraThrust,
                            {.name = "optThrust" + number,
                             .place = {105 + 735 * (index % 3), 210 + 735 * (index / 3), 645, 645},
                             .picture = "thrust" + number,
                             .toolTip = "Thrust " + number,
                             .accessibleName = "Thrust " + number,
                             .isOn = index == 2,
                             .isGraphical = true},
                            [this, index] { optThrust_Click(index); });
    });

private:
    void optWarship_Click() { chooseShipHull(Warship); }
    void optMerchant_Click() { chooseShipHull(Merchant); }
    void optQship_Click() { chooseShipHull(QShip); }
    void optStarBase_Click() { chooseBaseHull(Starbase); }
    void optSpaceStation_Click() { chooseBaseHull(SpaceStation); }
    void optQstation_Click() { chooseBaseHull(QSpaceStation); }
    void optNoStreamline_Click() { streamline(0); }
    void optPartStreamline_Click() { streamline(1); }
    void optFullStreamling_Click() { streamline(2); }
    void optNoArmor_Click(int Index);
    void optNone_Click() { drive(NoDrive); }
    void optNormal_Click() { drive(NormalDrive); }
    void optTug_Click() { drive(TugDrive); }
    void optThrust_Click(int Index);

    void chooseShipHull(HullType hullType);
    void chooseBaseHull(HullType hullType);
    void streamline(std::int16_t level);
    void drive(FtlDrive ftl);
    void EnableStreamlineGroup(bool isEnabled);
    void EnableFTLGroup(bool isEnabled);
    void EnableThrustGroup(bool isEnabled);
};

}  // namespace fleetwright
