#pragma once

#include "PageDocument.h"

#include <memory>
#include <string_view>

namespace fleetwright {

class FreeRoom;

/// The side of a module of a QR code on paper, in millimetres: any phone reads it from a print or
/// a copy, and any program from 150 dots to the inch.
inline constexpr double qrModule = 0.5;

/// A design code as a QR code: its modules, one unit each, as one area, with the white around them
/// that readers need. Null if it is too long for one that people care to scan.
std::shared_ptr<const Drawing> designQr(std::string_view code);

/// The same of the code of a ship file; null for no file, too.
std::shared_ptr<const Drawing> shipQr(std::string_view shipFile);

/// Puts it on a page, with a word about it, where there is room; whether there was.
bool putShipQr(Page& page, const std::shared_ptr<const Drawing>& code, const FreeRoom& room);

}  // namespace fleetwright
