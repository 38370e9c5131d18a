#pragma once

#include "RecoveryFolder.h"

namespace fleetwright {

class Desktop;

/// Puts work that is about to go, unsaved, aside for good. If that is not possible, the user says
/// whether it may go all the same; false if it may not.
bool keepOrLose(RecoveryFolder& folder, const RecoveryFolder::Aside& work, Desktop& desktop);

}  // namespace fleetwright
