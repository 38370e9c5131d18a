#pragma once

#include "Drawing.h"
#include "Fault.h"
#include "InputFile.h"
#include "Raster.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace fleetwright {

class FaultError;
class PackReader;

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

    /// The picture in these bytes, if that is known without decoding them: if the build has made a
    /// file of exactly them. Throws as `of` does.
    struct Picture {
        int width = 0;   ///< pixels
        int height = 0;  ///< pixels
        Raster::Key key{};
    };
    std::optional<Picture> pictureIn(std::string_view fileBytes) const;

    /// The first thing that is wrong with the pack, all of which is read. Throws FileError for one
    /// that cannot be read.
    std::optional<Fault> fault() const;

private:
    /// A drawing, and where in the file it stands.
    struct Entry {
        Picture picture;
        std::size_t place = 0;
        std::size_t length = 0;                  ///< bytes
        std::shared_ptr<const Drawing> drawing;  ///< once it has been read
    };

    void readIndex() const;
    void readEntry(PackReader& reader) const;
    [[noreturn]] void fail(const FaultError& error) const;
    void readDrawing(Entry& entry) const;

    std::filesystem::path m_file;
    mutable std::mutex m_mutex;  // of what follows
    mutable bool m_isRead = false;
    mutable std::optional<InputFile> m_pack;  // of which only what is asked for is read
    mutable std::vector<Entry> m_entries;     // in the order of their keys
    mutable std::vector<std::pair<Raster::Key, std::size_t>> m_files;  // of entries, in order
};

}  // namespace fleetwright
