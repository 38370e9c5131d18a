#include "widgetTools.h"

#include <algorithm>
#include <cmath>

namespace fleetwright {

namespace {

/// How far to the right a control may reach, in twips: to its neighbour or to the edge.
int freeRight(const Control& control) {
    constexpr int gap = 45;
    const Place& place = control.place();
    int right = control.container()->place().width - gap;
    for (const Control* const other : control.container()->controls()) {
        const Place& next = other->place();
        const bool isBeside = next.left > place.left + place.width / 2 &&
                              next.top < place.top + place.height &&
                              next.top + next.height > place.top;
        if (isBeside) {
            right = std::min(right, next.left - gap);
        }
    }
    return right;
}

}  // namespace

void fitText(QWidget* widget, const Control& control, const Scale& scale) {
    const int needed = widget->sizeHint().width();
    if (needed > widget->width()) {
        const int room = scale.pixels(freeRight(control) - control.place().left);
        widget->resize(std::min(needed, room), widget->height());
    }
    // What still does not fit is set in narrower letters. They begin in proportion and become
    // narrower a little at a time, since how wide a text becomes is not quite in proportion. Each
    // width is one more font to be found, which takes long.
    constexpr int narrowest = 60, step = 10;
    int stretch =
        std::max(100 * widget->width() / std::max(needed, 1) / step * step, narrowest) + step;
    QFont font = widget->font();
    while (stretch > narrowest && widget->sizeHint().width() > widget->width()) {
        stretch -= step;
        font.setStretch(stretch);
        widget->setFont(font);
    }
}

}  // namespace fleetwright
