#pragma once

#include "CommandRow.h"

#include <string>

namespace fleetwright {

/// What the tool says of itself: its commands and all options.
std::string helpText(CommandRows commands);

/// What it says of one command.
std::string helpText(const CommandRow& command);

}  // namespace fleetwright
