#include "keepOrLose.h"

#include "Desktop.h"
#include "Error.h"

#include <string>

namespace fleetwright {

bool keepOrLose(RecoveryFolder& folder, const RecoveryFolder::Aside& work, Desktop& desktop) {
    try {
        folder.keep(work);
        return true;
    } catch (const FileError& error) {
        const std::string what = work.kind == RecoveryKind::Fleet ? "fleet" : "design";
        return desktop.showMessage("The " + what + " is not saved and cannot be put aside: " +
                                       complaint(error) + "\nLose it?",
                                   "", Buttons::YesNo, Icon::Critical) == Answer::Yes;
    }
}

}  // namespace fleetwright
