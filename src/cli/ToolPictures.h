#pragma once

#include "Pages.h"
#include "PictureFiles.h"

#include <filesystem>
#include <memory>

namespace fleetwright {

/// Picture files as the tool reads and makes them: plain GIF files and bitmaps by itself, all
/// others with the module, which is loaded when it is first needed. Any number of threads may use
/// it. Whatever needs the module throws FileError if that cannot be loaded.
class ToolPictures : public PictureFiles, public PictureEncoder {
public:
    explicit ToolPictures(std::filesystem::path programFolder)
        : m_programFolder(std::move(programFolder)) {}

    Raster load(const std::filesystem::path& file) override;
    Raster builtIn(const std::string& name) override;
    std::string encode(const Raster& picture, const std::string& format) override;
    /// A document of such pages.
    std::unique_ptr<Pages> newPages(Paper paper);

private:
    std::filesystem::path m_programFolder;
};

}  // namespace fleetwright
