#include "ShipScreens.h"

namespace fleetwright {

std::unique_ptr<ShipOnScreen> ShipScreens::take() {
    const std::lock_guard lock(m_mutex);
    if (m_unused.empty()) {
        return std::make_unique<ShipOnScreen>(m_appFolder, m_catalogueFile);
    }
    std::unique_ptr<ShipOnScreen> screen = std::move(m_unused.back());
    m_unused.pop_back();
    return screen;
}

void ShipScreens::giveBack(std::unique_ptr<ShipOnScreen> screen) {
    const std::lock_guard lock(m_mutex);
    m_unused.push_back(std::move(screen));
}

}  // namespace fleetwright
