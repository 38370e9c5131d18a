#pragma once

namespace fleetwright {

/// Makes the application object that Qt's fonts want, where the process has none: one without a
/// display, a desktop or the system's fonts, which stays until the end of the process. Any thread
/// may call it.
void needQuietApplication();

}  // namespace fleetwright
