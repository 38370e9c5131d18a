#include "readQr.h"

#include "pathSteps.h"

#include <zbar.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace fleetwright {

namespace {

/// A page as a scanner sees it, from a place on: how much of each of its dots is ink.
class ScannedPage {
public:
    explicit ScannedPage(const Box& place)
        : m_x(std::floor(place.x * perMillimetre)), m_y(std::floor(place.y * perMillimetre)),
          m_side(static_cast<unsigned>(std::ceil(place.width * perMillimetre)) + 2),
          m_ink(std::size_t(m_side) * m_side) {}

    void addInk(const Box& box) {
        const double left = box.x * perMillimetre - m_x, top = box.y * perMillimetre - m_y;
        const double right = left + box.width * perMillimetre;
        const double bottom = top + box.height * perMillimetre;
        for (double y = std::floor(top); y < bottom; ++y) {
            for (double x = std::floor(left); x < right; ++x) {
                m_ink[static_cast<std::size_t>(y) * m_side + static_cast<std::size_t>(x)] +=
                    (std::min(right, x + 1) - std::max(left, x)) *
                    (std::min(bottom, y + 1) - std::max(top, y));
            }
        }
    }

    std::string read() const {
        std::vector<unsigned char> grey;
        for (const double ink : m_ink) {
            grey.push_back(static_cast<unsigned char>(std::lround(255 * (1 - std::min(ink, 1.0)))));
        }
        zbar::ImageScanner scanner;
        scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
        scanner.set_config(zbar::ZBAR_QRCODE, zbar::ZBAR_CFG_ENABLE, 1);
        zbar::Image image(m_side, m_side, "Y800", grey.data(), grey.size());
        scanner.scan(image);
        std::string text;
        for (auto symbol = image.symbol_begin(); symbol != image.symbol_end(); ++symbol) {
            text += symbol->get_data();
        }
        return text;
    }

private:
    static constexpr double perMillimetre = 150 / 25.4;

    double m_x, m_y;
    unsigned m_side;
    std::vector<double> m_ink;
};

}  // namespace

std::string readQr(const Drawing& drawing, const Box& place) {
    ScannedPage page(place);
    const double scale = place.width / drawing.width;
    for (const DrawnShape& shape : drawing.shapes) {
        std::string_view path = shape.path;
        Box box;  // each of its parts is one
        while (const auto step = takePathStep(path)) {
            const double x = place.x + step->points[0].x * scale;
            const double y = place.y + step->points[0].y * scale;
            if (step->command == 'M') {
                box = {x, y, 0, 0};
            } else if (step->command == 'L') {
                box.width = std::max(box.width, x - box.x);
                box.height = std::max(box.height, y - box.y);
            } else {
                page.addInk(box);
            }
        }
    }
    return page.read();
}

}  // namespace fleetwright
