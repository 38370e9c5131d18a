#include "SharePanel.h"

#include "Clipboard.h"
#include "ShipFileLine.h"
#include "designCode.h"

#include <utility>

namespace fleetwright {

namespace {

/// The code in a text, or that of the ship file which the text is. Throws DesignCodeError if there
/// is neither, or if the code is damaged.
std::string pastedCode(const std::string& text) {
    if (hasDesignCode(text)) {
        return designCode(shipInCode(text));
    }
    if (!valueIn(text, ShipKey::ShipName) || !valueIn(text, ShipKey::Mass)) {
        throw DesignCodeError("there is neither a design code nor a ship file on the clipboard");
    }
    return designCode(text);
}

}  // namespace

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
        m_openCode(pastedCode(services().clipboard->text()));
    } catch (const DesignCodeError& error) {
        window().say(std::string("Nothing was pasted: ") + error.what());
    }
}

}  // namespace fleetwright
