#pragma once

#include "Raster.h"
#include "Scale.h"

#include <QIcon>
#include <QPalette>

#include <functional>
#include <string>

namespace fleetwright {

/// A picture of a window, at any zoom and resolution: from its drawing where its pixels would not
/// do, and then in the colour of that role and without its paper, if it is drawn in ink. `read`
/// decodes it when it is first painted; where that throws an Error, nothing is.
QIcon pictureIcon(std::function<Raster()> read, const Scale& scale, QPalette::ColorRole role);

/// The same of a face that the program carries in itself.
QIcon faceIcon(const std::string& name, const Scale& scale);

}  // namespace fleetwright
