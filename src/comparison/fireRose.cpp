#include "fireRose.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

// In pixels of a picture that is large enough for whole numbers.
constexpr int side = 1000, centre = side / 2, largestRadius = 400, bowHeight = 70;
constexpr double pen = 12;
// The ground has to come out on paper, where a rose is 28 mm wide.
constexpr double groundPen = 8;
constexpr std::uint32_t black = 0x000000, groundGrey = 0x888888;

/// A place so far from the middle at this angle, in quarter turns clockwise from the bow.
std::string placeAt(double radius, double quarters, double aside = 0) {
    const double angle = quarters * std::numbers::pi / 2;
    const double x = std::sin(angle), y = -std::cos(angle);
    const auto text = [](double along) { return std::to_string(std::lround(centre + along)); };
    return text(radius * x - aside * y) + ' ' + text(radius * y + aside * x);
}

/// From one quarter of the circle to the next, around the direction.
std::string arcOf(double radius, std::size_t direction) {
    constexpr double kappa = 0.5522847498;  // of the curve that is nearest to a quarter circle
    const double from = double(direction) - 0.5, to = from + 1;
    return 'C' + placeAt(radius, from, kappa * radius) + ' ' +
           placeAt(radius, to, -kappa * radius) + ' ' + placeAt(radius, to);
}

std::string sectorOf(double radius, std::size_t direction) {
    return 'M' + std::to_string(centre) + ' ' + std::to_string(centre) + 'L' +
           placeAt(radius, double(direction) - 0.5) + arcOf(radius, direction) + 'Z';
}

std::int64_t measureOf(const FirePower::Sector& sector, RoseOf measure) {
    return measure == RoseOf::Weapons ? sector.weapons : sector.points;
}

/// The circle, its quarters and the mark of the bow.
DrawnShape groundOf() {
    DrawnShape ground;
    for (std::size_t direction = 0; direction < FirePower::names.size(); ++direction) {
        ground.path += sectorOf(largestRadius, direction);
    }
    ground.stroke = groundGrey;
    ground.strokeWidth = groundPen;
    ground.join = DrawnShape::Join::Round;
    return ground;
}

DrawnShape bow() {
    DrawnShape mark;
    const double foot = largestRadius + pen, width = bowHeight / 2.0;
    mark.path = 'M' + placeAt(foot + bowHeight, 0) + 'L' + placeAt(foot, 0, width) + 'L' +
                placeAt(foot, 0, -width) + 'Z';
    mark.fill = black;
    return mark;
}

}  // namespace

std::int64_t fullSectorOf(std::initializer_list<const FirePower*> ships, RoseOf measure) {
    std::int64_t most = 1;
    for (const FirePower* const ship : ships) {
        for (const FirePower::Sector& sector : ship->sectors) {
            most = std::max(most, measureOf(sector, measure));
        }
    }
    return most;
}

double sectorReach(std::int64_t value, std::int64_t full) {
    return double(largestRadius) / side * std::sqrt(double(value) / double(full));
}

Drawing fireRose(const FirePower& power, RoseOf measure, std::int64_t full, std::uint32_t fill) {
    static const std::vector<DrawnShape> common = {groundOf(), bow()};
    Drawing drawing{.width = side, .height = side, .ink = {0, 0, side, side}, .shapes = common};
    for (std::size_t direction = 0; direction < power.sectors.size(); ++direction) {
        const std::int64_t value = measureOf(power.sectors[direction], measure);
        if (value > 0) {
            DrawnShape sector;
            sector.path = sectorOf(side * sectorReach(value, full), direction);
            sector.fill = fill;
            sector.stroke = black;
            sector.strokeWidth = pen;
            sector.join = DrawnShape::Join::Round;
            drawing.shapes.push_back(std::move(sector));
        }
    }
    return drawing;
}

}  // namespace fleetwright
