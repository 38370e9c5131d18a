#include "SheetPanel.h"

#include <utility>

namespace fleetwright {

SheetPanel::SheetPanel(const PanelContext& context, MenuEntry& mnuDesign,
                       const ListView& lvCurrentWeapons, std::function<SheetShip()> figures)
    : Panel(context), m_design(mnuDesign), m_aboard(lvCurrentWeapons),
      m_figures(std::move(figures)) {}

void SheetPanel::send(void (SheetOutput::*way)(const SheetOutput::Source&) const) {
    window().acts.whenIdle([this, way] {
        if (const SheetOutput* const sheets = services().sheets()) {
            (sheets->*way)(
                [this, sheets] { return sheets->onBestMap(m_figures(), m_aboard.rows()); });
        }
    });
}

}  // namespace fleetwright
