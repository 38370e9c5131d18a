#include "SharePanel.h"

#include "Clipboard.h"
#include "designCode.h"
#include "pastedCode.h"

#include <utility>

namespace fleetwright {

SharePanel::SharePanel(const PanelContext& context, MenuEntry& mnuDesign,
                       std::function<void(const std::string& code)> openCode)
    : Panel(context), m_design(mnuDesign), m_openCode(std::move(openCode)) {}

void SharePanel::mnuCopyDesign_Click() {
    window().acts.whenIdle([this] {
        try {
            const std::string code = designCode(ship().shipFile());
            services().clipboard->setText(code);
            window().say("Copied: " + std::to_string(code.size()) +
                         " letters to paste into a message, or here (Ctrl+V)");
        } catch (const DesignCodeError& error) {
            window().say(std::string("Nothing was copied: ") + error.what());
        }
    });
}

void SharePanel::mnuPasteDesign_Click() {
    try {
        m_openCode(pastedCode(*services().clipboard));
    } catch (const DesignCodeError& error) {
        window().say(nothingPasted(error));
    }
}

}  // namespace fleetwright
