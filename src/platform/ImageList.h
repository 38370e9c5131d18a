#pragma once

#include "Control.h"
#include "Raster.h"

#include <map>
#include <stdexcept>

namespace fleetwright {

/// Pictures by key. A key that stands already, or that is asked for and not there, is a
/// std::logic_error.
class ImageList : public Control {
public:
    using Control::Control;

    void add(const std::string& key, Raster&& picture) {
        if (!m_pictures.try_emplace(key, std::move(picture)).second) {
            throw std::logic_error("double picture key \"" + key + '"');
        }
        Changed.raise();
    }

    const Raster& picture(const std::string& key) const { return m_pictures.at(key); }
    bool contains(const std::string& key) const { return m_pictures.contains(key); }

private:
    std::map<std::string, Raster> m_pictures;
};

}  // namespace fleetwright
