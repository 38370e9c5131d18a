#pragma once

#include "ShipOnScreen.h"

#include <filesystem>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace fleetwright {

/// Screens for many ships, each of which is used again by the next one. Any number of threads may
/// lend them, each gets its own.
class ShipScreens {
public:
    /// With that folder's catalogue, which is to be one that is read once.
    ShipScreens(std::filesystem::path appFolder, CatalogueFile catalogueFile)
        : m_appFolder(std::move(appFolder)), m_catalogueFile(std::move(catalogueFile)) {}

    /// What `work` returns, to which a screen is lent.
    template <typename Work>
    auto lend(Work work) {
        std::unique_ptr<ShipOnScreen> screen = take();
        auto result = work(*screen);
        giveBack(std::move(screen));
        return result;
    }

private:
    std::unique_ptr<ShipOnScreen> take();
    void giveBack(std::unique_ptr<ShipOnScreen> screen);

    std::filesystem::path m_appFolder;
    CatalogueFile m_catalogueFile;
    std::mutex m_mutex;  // of what follows
    std::vector<std::unique_ptr<ShipOnScreen>> m_unused;
};

}  // namespace fleetwright
