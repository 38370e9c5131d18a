#include "Desktop.h"

#include "Error.h"
#include "saveFile.h"

namespace fleetwright {

std::vector<std::string> Desktop::chooseFilesToOpen(const FileDialog& dialog) {
    const std::optional<std::string> file = chooseFileToOpen(dialog);
    return file ? std::vector{*file} : std::vector<std::string>();
}

void showFileError(Desktop& desktop, const FileError& error) {
    desktop.showMessage(complaint(error), "", Buttons::Ok, Icon::Critical);
}

bool maySave(Desktop& desktop, const std::filesystem::path& file) {
    const std::string notice = otherNamesNotice(file);
    return notice.empty() || desktop.showMessage(notice + ".\n\nSave it?", "Other Names",
                                                 Buttons::YesNo, Icon::Information) != Answer::No;
}

}  // namespace fleetwright
