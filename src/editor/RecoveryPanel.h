#pragma once

#include "Panel.h"
#include "Timer.h"

namespace fleetwright {

/// Puts designs aside, so that a crash costs two seconds of work at the most and no ship goes
/// without trace.
class RecoveryPanel : public Panel {
public:
    explicit RecoveryPanel(const PanelContext& context) : Panel(context) {}

    /// Something may have changed: looks at it in two seconds, if not sooner.
    void noteChange();
    /// From here on nothing of the design can be lost: it is new, or in its file.
    void noteSafe();
    /// The design at hand is about to go. What has changed since it was safe is kept for good; if
    /// that is not possible, the user says whether it may go all the same. False if it may not.
    bool giveUpDesign();
    /// Says which designs earlier runs have left behind.
    void showRecovered();

    /// Two seconds after a change it puts the design aside.
    Timer tmrRecovery{form(), "tmrRecovery", 2000, false, [this] { tmrRecovery_Timer(); }};

private:
    void tmrRecovery_Timer();
    bool isSafe() const;

    std::string m_asideFile;  ///< the design as it was put aside last
    std::string m_safeFile;   ///< the design as it was when nothing of it could be lost
};

}  // namespace fleetwright
