#include "GuidePanel.h"

#include "Desktop.h"
#include "paths.h"

#include <system_error>

namespace fleetwright {

void GuidePanel::mnuGuide_Click() {
    const std::filesystem::path& page = services().guide;
    std::error_code unknown;
    if (!std::filesystem::exists(page, unknown)) {
        window().say("The guide is missing: " + pathText(page));
        return;
    }
    const bool isOpened = services().desktop.openDocument(page);
    // A browser that does not come says nothing itself.
    window().say(
        (isOpened ? "The guide opens in the browser: " : "No browser opens the guide, which is ") +
        pathText(page));
}

void GuidePanel::mnuWhatsThis_Click() {
    services().desktop.askWhatsThis();
}

}  // namespace fleetwright
