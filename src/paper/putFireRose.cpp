#include "putFireRose.h"

#include "FirePower.h"
#include "FreeRoom.h"
#include "fireRose.h"
#include "pageTexts.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace fleetwright {

namespace {

constexpr double roseSide = 28;

/// The numbers, inside of their sectors, or beyond them if they are small.
void putNumbers(Page& page, const FirePower& power, std::int64_t full, const Box& rose) {
    constexpr double size = 3.3, digitHeight = 0.73 * size, inside = 0.2, beyond = 0.08;
    constexpr std::pair<double, double> directions[] = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
    for (std::size_t i = 0; i < power.sectors.size(); ++i) {
        const std::int64_t weapons = power.sectors[i].weapons;
        if (weapons > 0) {
            const auto [right, down] = directions[i];
            const double reach = sectorReach(weapons, full);
            const double out = roseSide * (reach > inside + beyond ? inside : reach + beyond);
            page.items.emplace_back(
                PageText{.text = std::to_string(weapons),
                         .x = rose.x + roseSide / 2 + right * out,
                         .y = rose.y + (roseSide + digitHeight) / 2 + down * out,
                         .size = size,
                         .font = PageFont::Bold,
                         .anchor = PageText::Anchor::Middle});
        }
    }
}

}  // namespace

void putFireRose(Page& page, const FirePower& power, FreeRoom& room) {
    constexpr double gap = 2;
    constexpr std::uint32_t paleGrey = 0xCCCCCC;  // for numbers upon it
    const bool isArmed = std::ranges::any_of(
        power.sectors, [](const FirePower::Sector& sector) { return sector.weapons > 0; });
    const std::optional<Box> free =
        isArmed ? room.find(roseSide, roseSide + captionRoom) : std::nullopt;
    if (!free) {
        return;
    }
    room.take({free->x - gap, free->y - gap, free->width + 2 * gap, free->height + 2 * gap});
    const std::int64_t full = fullSectorOf({&power}, RoseOf::Weapons);
    const auto rose =
        std::make_shared<const Drawing>(fireRose(power, RoseOf::Weapons, full, paleGrey));
    putCaptioned(page, rose, {free->x, free->y, roseSide, roseSide}, "WEAPONS BY ARC");
    putNumbers(page, power, full, *free);
}

}  // namespace fleetwright
