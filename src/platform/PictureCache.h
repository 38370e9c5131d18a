#pragma once

#include "FileStamp.h"
#include "PictureFiles.h"

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace fleetwright {

/// Keeps decoded pictures, so that a file is decoded once per process, and again only when it has
/// changed. What it hands out shares its pixels (`Raster::shared`). Any number of threads may use
/// it, if the decoder behind it can work on several files at a time. A picture that cannot be
/// decoded is tried anew each time.
class PictureCache : public PictureFiles {
public:
    /// `files` decodes; it outlives the cache.
    explicit PictureCache(PictureFiles& files) : m_files(files) {}
    PictureCache(const PictureCache&) = delete;
    PictureCache& operator=(const PictureCache&) = delete;
    ~PictureCache() override = default;

    Raster load(const std::filesystem::path& file) override;
    Raster builtIn(const std::string& name) override;

private:
    struct Entry {
        std::mutex mutex;  // held while decoding, so that nobody else does it as well
        bool isDecoded = false;
        std::optional<FileStamp> stamp;
        Raster picture;
    };
    using Entries = std::map<std::string, std::shared_ptr<Entry>>;

    std::shared_ptr<Entry> entry(Entries& entries, const std::string& key);

    PictureFiles& m_files;
    std::mutex m_mutex;  // of the two maps
    Entries m_loaded;
    Entries m_builtIn;
};

}  // namespace fleetwright
