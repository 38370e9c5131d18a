#pragma once

#include <filesystem>

namespace fleetwright {

struct Globals;
class Sounds;

/// Plays a wave file to its end, if sounds are wanted and the machine has a device for them. Never
/// fails.
void playSound(const std::filesystem::path& file, Sounds& sounds, const Globals& globals);

}  // namespace fleetwright
