#pragma once

#include <filesystem>

namespace fleetwright {

/// The sound devices of the machine.
class Sounds {
public:
    virtual ~Sounds() = default;

    /// Whether there is at least one device that plays.
    virtual bool hasDevice() = 0;
    /// Plays a wave file and returns when it has ended. Windows go on painting and answering
    /// meanwhile. Throws FileError for a file that cannot be read; one that is no sound is silence.
    virtual void play(const std::filesystem::path& file) = 0;
};

}  // namespace fleetwright
