#pragma once

#include <string>
#include <string_view>

namespace fleetwright {

/// `text` in capitals: the letters of ASCII and of Windows-1252, whatever the process's locale.
/// Those are the letters that the program's text formats were written in; others stay.
std::string toCapitals(std::string_view text);

}  // namespace fleetwright
