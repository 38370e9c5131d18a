#pragma once

#include "PictureSet.h"

#include <QImage>

namespace fleetwright {

class Lettering;

/// All pictures of a set on one page, each with its name, at 100 and at 400 percent.
QImage contactSheet(const PictureSet& pictures, const Lettering& lettering);

}  // namespace fleetwright
