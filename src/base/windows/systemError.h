#pragma once

// Errors of Windows' own calls, in the words that all of the program uses.

#include <system_error>

namespace fleetwright {

/// The last error of this thread, as one of the generic ones: so its text is in the language of the
/// program, and comparing it with `std::errc` works. Only a file that another program has open
/// has words of its own; it is `permission_denied`, too.
std::error_code systemError();

}  // namespace fleetwright
