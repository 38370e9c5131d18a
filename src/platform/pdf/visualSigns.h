#pragma once

#include "pageFonts.h"

#include <string_view>
#include <vector>

namespace fleetwright {

/// What is drawn of a line of text, from left to right: as `pageSigns`, but with the scripts that
/// are written from the right turned round, and their letters joined.
std::vector<PageSign> visualSigns(std::string_view text, PageFont font);

}  // namespace fleetwright
