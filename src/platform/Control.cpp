#include "Control.h"

#include <utility>

namespace fleetwright {

Control::Control(Container* container, ControlDesign design)
    : m_container(container), m_design(std::move(design)) {
    if (m_container != nullptr) {
        m_container->m_controls.push_back(this);
    }
}

Control::~Control() {
    if (m_container != nullptr) {
        std::erase(m_container->m_controls, this);
    }
}

void Control::setPlace(const Place& place) {
    if (m_design.place != place) {
        m_design.place = place;
        Changed.raise();
    }
}

void Control::setVisible(bool isVisible) {
    if (m_design.isVisible != isVisible) {
        m_design.isVisible = isVisible;
        Changed.raise();
    }
}

void Control::setEnabled(bool isEnabled) {
    if (m_design.isEnabled != isEnabled) {
        m_design.isEnabled = isEnabled;
        Changed.raise();
    }
}

bool Control::takesActs() const {
    return isVisible() && isEnabled() && (m_container == nullptr || m_container->takesActs());
}

}  // namespace fleetwright
