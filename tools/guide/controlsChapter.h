#pragma once

#include <string>

namespace fleetwright {

/// What stands in the windows, as tables in Markdown: a section for each part of a window.
std::string controlsChapter();

}  // namespace fleetwright
