#include "gradientBands.h"

#include <QLinearGradient>
#include <QRadialGradient>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace fleetwright {

namespace {

/// A part of a gradient, from where the one before ends: 0 is its start, 1 its end.
struct Step {
    double end = 0;
    QColor colour;
};
constexpr double never = 2;  // a step that does not end

QColor between(const QColor& from, const QColor& to, double part) {
    const auto mean = [part](int one, int other) {
        return static_cast<int>(std::lround(one + (other - one) * part));
    };
    return {mean(from.red(), to.red()), mean(from.green(), to.green()),
            mean(from.blue(), to.blue()), mean(from.alpha(), to.alpha())};
}

/// How far two colours lie apart in the part that differs most.
int distance(const QColor& one, const QColor& other) {
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue()), std::abs(one.alpha() - other.alpha())});
}

std::vector<Step> stepsOf(const QGradientStops& stops) {
    constexpr int hardlySeen = 12;  // of 255
    std::vector<Step> steps = {{stops.front().first, stops.front().second}};
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const auto& [begin, from] = stops[i - 1];
        const auto& [end, to] = stops[i];
        const int count = distance(from, to) / hardlySeen + 1;
        for (int step = 0; step < count; ++step) {
            steps.push_back({begin + (end - begin) * (step + 1) / count,
                             between(from, to, (step + .5) / count)});
        }
    }
    steps.push_back({never, stops.back().second});
    return steps;
}

/// Where a gradient has not come to this part yet.
QPainterPath areaBefore(const QGradient& gradient, double part) {
    QPainterPath area;
    if (gradient.type() == QGradient::RadialGradient) {
        const auto& radial = static_cast<const QRadialGradient&>(gradient);
        const double radius = radial.radius() * part;
        area.addEllipse(radial.center(), radius, radius);
        return area;
    }
    constexpr double far = 100;  // lengths of the gradient
    const auto& linear = static_cast<const QLinearGradient&>(gradient);
    const QPointF along = linear.finalStop() - linear.start();
    const QPointF across(-along.y(), along.x());
    const QPointF begin = linear.start() - along * far;
    const QPointF end = linear.start() + along * part;
    area.addPolygon(QPolygonF(
        {begin - across * far, begin + across * far, end + across * far, end - across * far}));
    area.closeSubpath();
    return area;
}

}  // namespace

std::vector<ColourBand> gradientBands(const QPainterPath& area, const QGradient& gradient,
                                      const QTransform& transform) {
    const QGradientStops stops = gradient.stops();
    const bool isOpaque = std::ranges::all_of(
        stops, [](const QGradientStop& stop) { return stop.second.alpha() == 255; });
    std::vector<ColourBand> bands;
    QPainterPath done, doneBefore;
    for (const Step& step : stepsOf(stops)) {
        if (step.end <= 0) {
            continue;
        }
        ColourBand band = {area, step.colour};
        QPainterPath before = area;
        if (step.end < never) {
            before = transform.map(areaBefore(gradient, step.end));
            band.area = area.contains(before) ? before : area.intersected(before);
        }
        // Bands that one can see through must not lie over each other. All others do, each over the
        // next one, so that there is no gap.
        const QPainterPath& hole = isOpaque ? doneBefore : done;
        if (band.area == before && area.contains(hole)) {
            band.area.addPath(hole);
        } else {
            band.area = band.area.subtracted(hole);
        }
        bands.push_back(band);
        doneBefore = done;
        done = before;
    }
    if (isOpaque) {
        std::ranges::reverse(bands);
    }
    std::erase_if(bands, [](const ColourBand& band) {
        return band.area.isEmpty() || band.colour.alpha() == 0;
    });
    return bands;
}

}  // namespace fleetwright
