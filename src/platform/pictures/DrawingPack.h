#pragma once

#include "Drawing.h"
#include "Fault.h"
#include "Raster.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

/// Where the drawings of the delivered pictures are.
inline std::filesystem::path drawingsFile(const std::filesystem::path& appFolder) {
    return appFolder / "drawings.dat";
}

/// The drawings of the delivered pictures, in one file (see docs/file-formats.md). Its index is
/// read when the first picture is asked for, and a drawing when its picture is.
class DrawingPack : public Drawings {
public:
    /// A pack that is not there has no drawings.
    explicit DrawingPack(std::filesystem::path file) : m_file(std::move(file)) {}

    /// Throws FileError for a pack that cannot be read or is damaged, as far as it is looked at.
    std::shared_ptr<const Drawing> of(const Raster& picture) const override;

    /// The first thing that is wrong with the pack, all of which is read. Throws FileError for one
    /// that cannot be read.
    std::optional<Fault> fault() const;

private:
    /// A drawing, and where in the text it stands.
    struct Entry {
        Raster::Key key{};
        int width = 0;   ///< pixels
        int height = 0;  ///< pixels
        std::size_t place = 0;
        std::size_t length = 0;                  ///< bytes
        std::shared_ptr<const Drawing> drawing;  ///< once it has been read
    };

    void readIndex() const;
    void readDrawing(Entry& entry) const;

    std::filesystem::path m_file;
    mutable std::mutex m_mutex;  // of what follows
    mutable bool m_isRead = false;
    mutable std::string m_text;
    mutable std::vector<Entry> m_entries;  // in the order of their keys
};

}  // namespace fleetwright
