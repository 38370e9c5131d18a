#include "Menu.h"

namespace fleetwright {

void MenuEntry::setCaption(const std::string& caption) {
    if (caption != design().caption) {
        changeableDesign().caption = caption;
        Changed.raise();
    }
}

void MenuEntry::setObject(const std::string& verb, const std::string& object) {
    setCaption(object.empty() ? verb : verb + ' ' + object);
    setEnabled(!object.empty());
}

void MenuEntry::setChecked(bool isChecked) {
    if (isChecked != design().isOn) {
        changeableDesign().isOn = isChecked;
        Changed.raise();
    }
}

void MenuEntry::choose() {
    if (isEnabled() && isVisible()) {
        raise(onClick);
    }
}

}  // namespace fleetwright
