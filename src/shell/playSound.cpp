#include "playSound.h"

#include "Globals.h"
#include "Sounds.h"

#include <exception>

namespace fleetwright {

void playSound(const std::filesystem::path& file, Sounds& sounds, const Globals& globals) {
    try {
        // The switch first: asking for devices is not quick.
        if (globals.g_bSounds && sounds.hasDevice()) {
            sounds.play(file);
        }
    } catch (const std::exception&) {
        // Nobody misses a sound so much as to be told.
    }
}

}  // namespace fleetwright
