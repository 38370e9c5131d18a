#include "Desktop.h"

#include "Error.h"
#include "saveFile.h"

namespace fleetwright {

void showFileError(Desktop& desktop, const FileError& error) {
    desktop.showMessage(complaint(error), "", Buttons::Ok, Icon::Critical);
}

bool maySave(Desktop& desktop, const std::filesystem::path& file) {
    const std::string notice = otherNamesNotice(file);
    return notice.empty() || desktop.showMessage(notice + ".\n\nSave it?", "Other Names",
                                                 Buttons::YesNo, Icon::Information) != Answer::No;
}

}  // namespace fleetwright
