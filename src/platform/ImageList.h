#pragma once

#include "Control.h"
#include "Error.h"
#include "Raster.h"

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace fleetwright {

/// Pictures by key. A key that stands already, or that is asked for and not there, is a
/// std::logic_error.
class ImageList : public Control {
public:
    using Control::Control;
    using Read = std::function<Raster()>;

    void add(const std::string& key, Raster&& picture) { put(key, {std::move(picture), {}}); }
    /// A picture that is read when it is first asked for, and kept from then on.
    void add(const std::string& key, Read read) { put(key, {{}, std::move(read)}); }

    /// Throws what the reading of the picture does, which is then tried anew the next time.
    const Raster& picture(const std::string& key) const {
        Entry& entry = m_pictures.at(key);
        if (entry.read) {
            entry.picture = entry.read();
            entry.read = nullptr;
        }
        return entry.picture;
    }
    /// The same for whoever only shows it: an empty picture where it cannot be read.
    Raster pictureIfAny(const std::string& key) const {
        try {
            return picture(key);
        } catch (const Error&) {
            return {};
        }
    }
    bool contains(const std::string& key) const { return m_pictures.contains(key); }

private:
    struct Entry {
        Raster picture;
        Read read;  // until it has been
    };

    void put(const std::string& key, Entry&& entry) {
        if (!m_pictures.try_emplace(key, std::move(entry)).second) {
            throw std::logic_error("double picture key \"" + key + '"');
        }
        Changed.raise();
    }

    mutable std::map<std::string, Entry> m_pictures;
};

}  // namespace fleetwright
