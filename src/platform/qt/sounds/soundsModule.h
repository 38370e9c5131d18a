#pragma once

#include "Sounds.h"

namespace fleetwright {

/// The one function of the module "sounds.dll", by its name "createSounds": the sound devices of
/// the machine, which live as long as the program.
using CreateSounds = Sounds* (*)();

inline constexpr const char* soundsModule = "sounds.dll";

}  // namespace fleetwright
