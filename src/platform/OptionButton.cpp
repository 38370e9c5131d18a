#include "OptionButton.h"

namespace fleetwright {

void OptionButton::setOn() {
    if (isOn()) {
        return;
    }
    for (Control* const control : container()->controls()) {
        auto* const sibling = dynamic_cast<OptionButton*>(control);
        if (sibling != nullptr && sibling->isOn()) {
            sibling->changeableDesign().isOn = false;
            sibling->Changed.raise();
        }
    }
    changeableDesign().isOn = true;
    Changed.raise();
    raise(onClick);
}

}  // namespace fleetwright
