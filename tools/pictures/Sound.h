#pragma once

#include <filesystem>
#include <string>

namespace fleetwright {

/// Makes the bytes of a wave file, mono with 16 bits, from the description of a sound.
///
/// A description has one line for each voice, a tone that slides and fades, and the voices sound
/// together:
///
///     voice start 0.00 length 0.40 from 1400 to 220 fade 7 warmth 0.3 loudness 0.5
///
/// Start and length are in seconds, from and to in hertz; a larger fade is a quicker one; warmth
/// is the part of overtones, 0 for a pure tone. A voice from 0 hertz is noise. Lines that begin
/// with "#" are comments.
/// Throws FileError for a description that cannot be read.
std::string waveFile(const std::filesystem::path& description);

}  // namespace fleetwright
