#include "Control.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace fleetwright {

Control::Control(Container* container, ControlDesign design)
    : m_container(container), m_design(std::move(design)) {
    if (m_container != nullptr) {
        m_container->m_controls.push_back(this);
    }
}

/// The controls of a form go in the opposite order.
Control::~Control() {
    if (m_container == nullptr) {
        return;
    }
    std::vector<Control*>& all = m_container->m_controls;
    if (const auto found = std::find(all.rbegin(), all.rend(), this); found != all.rend()) {
        all.erase(std::next(found).base());
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

void Control::setToolTip(const std::string& toolTip) {
    if (m_design.toolTip != toolTip) {
        m_design.toolTip = toolTip;
        Changed.raise();
    }
}

bool Control::takesActs() const {
    return isVisible() && isEnabled() && (m_container == nullptr || m_container->takesActs());
}

}  // namespace fleetwright
