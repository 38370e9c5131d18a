#pragma once

#include "PictureFiles.h"

namespace fleetwright {

class DrawingPack;
class PictureReader;

/// Reads pictures for whoever asks for their drawings and hardly ever for their pixels: files that
/// have drawings are decoded when somebody looks at a pixel.
class DrawnPictureFiles : public PictureFiles {
public:
    /// Both outlive this and all pictures that it reads.
    DrawnPictureFiles(PictureReader& reader, const DrawingPack& drawings)
        : m_reader(reader), m_drawings(drawings) {}

    /// Throws FileError also for a pack that is damaged.
    Raster load(const std::filesystem::path& file) override;
    Raster builtIn(const std::string& name) override;

private:
    PictureReader& m_reader;
    const DrawingPack& m_drawings;
};

}  // namespace fleetwright
