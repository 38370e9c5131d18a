#include "PictureCache.h"

#include "paths.h"

namespace fleetwright {

std::shared_ptr<PictureCache::Entry> PictureCache::entry(Entries& entries, const std::string& key) {
    const std::lock_guard lock(m_mutex);
    std::shared_ptr<Entry>& entry = entries[key];
    if (!entry) {
        entry = std::make_shared<Entry>();
    }
    return entry;
}

Raster PictureCache::load(const std::filesystem::path& file) {
    const std::shared_ptr<Entry> known = entry(m_loaded, pathText(file));
    const std::lock_guard lock(known->mutex);
    // Taken before the decoding, so that a change in the meantime is seen the next time.
    const std::optional<FileStamp> stamp = fileStamp(file);
    if (!known->isDecoded || known->stamp != stamp) {
        known->picture = m_files.load(file).shared();
        known->stamp = stamp;
        known->isDecoded = true;
    }
    return known->picture;
}

Raster PictureCache::builtIn(const std::string& name) {
    const std::shared_ptr<Entry> known = entry(m_builtIn, name);
    const std::lock_guard lock(known->mutex);
    if (!known->isDecoded) {
        known->picture = m_files.builtIn(name).shared();
        known->isDecoded = true;
    }
    return known->picture;
}

}  // namespace fleetwright
