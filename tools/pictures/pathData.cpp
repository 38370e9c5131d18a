#include "pathData.h"

#include <cmath>

namespace fleetwright {

namespace {

std::string pointData(const QPainterPath::Element& point) {
    return shortNumber(point.x) + ' ' + shortNumber(point.y);
}

/// The elements of a path from one place up to another, which begin at a point of their own and go
/// on from there without a gap.
std::string lineData(const QPainterPath& path, int begin, int end) {
    const bool isClosed =
        end - begin > 2 && QPointF(path.elementAt(begin)) == QPointF(path.elementAt(end - 1));
    std::string data = 'M' + pointData(path.elementAt(begin));
    for (int i = begin + 1; i < end; ++i) {
        const QPainterPath::Element& element = path.elementAt(i);
        if (element.isCurveTo()) {
            data += 'C' + pointData(element) + ' ' + pointData(path.elementAt(i + 1)) + ' ' +
                    pointData(path.elementAt(i + 2));
            i += 2;
        } else if (!isClosed || i + 1 < end) {  // else it only goes back to the start
            data += 'L' + pointData(element);
        }
    }
    return isClosed ? data + 'Z' : data;
}

}  // namespace

std::string shortNumber(double number) {
    constexpr int inWhole = 100;
    const long long hundredths = std::llround(number * inWhole);
    std::string text = std::to_string(std::abs(hundredths) / inWhole);
    if (const long long rest = std::abs(hundredths) % inWhole; rest != 0) {
        text += '.' + std::to_string(rest / 10);
        text += rest % 10 == 0 ? "" : std::to_string(rest % 10);
    }
    return hundredths < 0 ? '-' + text : text;
}

std::string pathData(const QPainterPath& path) {
    std::string data;
    int begin = 0;
    for (int i = 1; i <= path.elementCount(); ++i) {
        if (i < path.elementCount() && !path.elementAt(i).isMoveTo()) {
            continue;
        }
        if (i - begin > 1) {  // a start without a line is nothing
            data += lineData(path, begin, i);
        }
        begin = i;
    }
    return data;
}

}  // namespace fleetwright
