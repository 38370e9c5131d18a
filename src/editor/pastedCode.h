#pragma once

#include <string>

namespace fleetwright {

class Clipboard;
class DesignCodeError;

/// The code in the text on the clipboard, or that of the ship file which this text is. Throws
/// DesignCodeError if there is neither, or if the code is damaged.
std::string pastedCode(Clipboard& clipboard);

/// What is said of a paste that failed.
std::string nothingPasted(const DesignCodeError& error);

}  // namespace fleetwright
