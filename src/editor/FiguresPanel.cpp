#include "FiguresPanel.h"

#include "ShipFileCheck.h"
#include "explainShip.h"
#include "text.h"

#include <array>

namespace fleetwright {

namespace {

/// What the figure of this number is made of, and what is wrong with it.
std::string explainFigure(ShipClass& ship, std::size_t figure) {
    constexpr std::size_t massLeft = 2;
    const std::string sum = textOf(explainShip(ship)[figure]);
    const std::string fault = figure == massLeft ? asSentence(overloadText(ship)) : "";
    return (fault.empty() ? "" : fault + "\n\n") + sum.substr(0, sum.find_last_not_of('\n') + 1);
}

}  // namespace

FiguresPanel::FiguresPanel(const PanelContext& context, Control& lblMassLeft) : Panel(context) {
    const std::array<Control*, 3> explained = {&txtCost, &txtDP, &lblMassLeft};
    for (std::size_t i = 0; i < explained.size(); ++i) {
        explained[i]->askToolTip = [this, i] {
            const auto& current = window().g_Ship;
            return current ? explainFigure(*current, i) : std::string();
        };
    }
}

Label FiguresPanel::label(const std::string& name, const std::string& caption, int top, int left,
                          int width) {
    return Label(fraInfo, {.name = name, .place = {left, top, width, 288}, .caption = caption});
}

TextBox FiguresPanel::box(const std::string& name, const std::string& spoken, int top,
                          bool isLocked) {
    return TextBox(fraInfo, {.name = name,
                             .place = {1365, top, 1455, 288},
                             .accessibleName = spoken,
                             .isFlat = true,
                             .isLocked = isLocked});
}

void FiguresPanel::show() {
    txtCost.setText(std::to_string(ship().g_lCost));
    txtDP.setText(std::to_string(ship().g_iDP));
    txtDamRows.setText(std::to_string(ship().g_iDamRows));
    txtDCP.setText(std::to_string(ship().g_iDCP));
    txtFireCon.setText(std::to_string(ship().g_iFCS));
    txtRelSize.setText(std::string(ship().relSize()));
    txtClass.setText(std::string(ship().Class()));
}

}  // namespace fleetwright
