#pragma once

#include "FleetPart.h"
#include "RecoveryFolder.h"
#include "Timer.h"

#include <filesystem>
#include <optional>
#include <string>

namespace fleetwright {

/// Puts the fleet aside, so that a crash costs two seconds of work at the most and no fleet goes
/// without trace. The main window offers what was put aside.
class FleetRecoveryPanel : public FleetPart {
public:
    explicit FleetRecoveryPanel(const FleetContext& context) : FleetPart(context) {}

    /// Something may have changed: looks at it in two seconds, if not sooner.
    void noteChange();
    /// The fleet at hand is in its file.
    void noteSafe();
    /// The user opens this file, which may be a fleet put aside.
    void noteOpened(const std::filesystem::path& file);
    /// The fleet at hand is about to go. One that is not saved is kept for good, if the user lets
    /// it go; `asks` says whether that is a question. False if it may not go.
    bool giveUpFleet(bool asks);

    /// Two seconds after a change it puts the fleet aside.
    Timer tmrFleetRecovery{form(), "tmrFleetRecovery", 2000, false,
                           [this] { tmrFleetRecovery_Timer(); }};

private:
    void tmrFleetRecovery_Timer();
    RecoveryFolder::Aside aside() const;

    std::optional<RecoveryFolder::Aside> m_aside;  ///< the fleet as it was put aside last
    std::string m_complaint;                       ///< when that failed last
};

}  // namespace fleetwright
