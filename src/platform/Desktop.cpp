#include "Desktop.h"

#include "Error.h"

namespace fleetwright {

void showFileError(Desktop& desktop, const FileError& error) {
    desktop.showMessage(complaint(error), "", Buttons::Ok, Icon::Critical);
}

}  // namespace fleetwright
