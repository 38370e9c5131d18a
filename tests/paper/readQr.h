#pragma once

#include "Drawing.h"

#include <string>

namespace fleetwright {

/// What a reader finds in the QR code that a drawing shows at this place of a page, in millimetres,
/// when the page is scanned at 150 dots to the inch. Empty if it finds none.
std::string readQr(const Drawing& drawing, const Box& place);

}  // namespace fleetwright
