#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fleetwright {

/// What can be put aside.
enum class RecoveryKind { Ship, Fleet };

/// What the name of a design put aside says of it, so that nobody has to read the file:
/// "Provost, mass 24, 2026-05-01 17.03.59 #12". Older ones are "Provost 2026-05-01 17.03.59", and
/// a user may have saved a design there under any name. Those of fleets have "ships" for "mass".
struct RecoveryName {
    std::string ship;                  ///< or fleet; in any other name all of it
    std::optional<std::int32_t> mass;  ///< or how many ships the fleet has
    std::string time;                  ///< as it stands there; empty in any other name
    std::uint64_t number = 0;  ///< counts up in its folder, from 1; 0 in older and other names
    RecoveryKind kind = RecoveryKind::Ship;

    /// What such a name says.
    static RecoveryName of(std::string_view text, RecoveryKind kind = RecoveryKind::Ship);

    /// The name. What some file system does not take is "_" there, and a long ship's name is cut.
    std::string text() const;

    /// Whether this one was put aside later, as far as names tell; no clock is asked.
    bool isNewerThan(const RecoveryName& other) const;
};

}  // namespace fleetwright
