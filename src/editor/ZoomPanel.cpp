#include "ZoomPanel.h"

namespace fleetwright {

void ZoomPanel::zoomTo(Zoom zoom) {
    const std::string percent = std::to_string(zoom.percent()) + " %";
    const bool isAtEnd = zoom == form().zoom() && zoom != Zoom();
    form().setZoom(zoom);
    window().say(isAtEnd ? percent + " is as far as it goes" : "Shown at " + percent);
}

}  // namespace fleetwright
