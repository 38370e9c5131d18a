#pragma once

#include "DesignMoment.h"

#include <string>
#include <string_view>

namespace fleetwright {

/// What has changed of a design from one moment to another, and nothing else, as a few bytes. They
/// lead back as well as forth. The file of the ship and whether it is saved are none of it.
///
/// docs/file-formats.md says what the bytes mean.
std::string deltaBetween(const DesignMoment& before, const DesignMoment& after);

enum class Way { Back, Forth };

/// Takes the moment at one end of a delta to that at the other. False if the bytes are none for
/// this moment; then there is no telling what it is.
bool applyDelta(std::string_view delta, Way way, DesignMoment& moment);

}  // namespace fleetwright
