#pragma once

#include "PageDocument.h"
#include "PictureReader.h"

#include <filesystem>
#include <future>

namespace fleetwright {

struct Pictures;

/// Picture files as the tool reads and makes them: it reads GIF files and makes bitmaps by itself,
/// all else with the module, which is loaded when it is first needed. Any number of threads may use
/// it. Whatever needs the module throws FileError if that cannot be loaded.
class ToolPictures : public PictureReader, public PictureEncoder {
public:
    explicit ToolPictures(std::filesystem::path programFolder)
        : m_programFolder(std::move(programFolder)) {}

    Raster decode(const std::string& bytes, const std::string& format) override;
    Raster builtIn(const std::string& name) override;
    std::string encode(const Raster& picture, const std::string& format) override;
    /// Begins to load the module while the caller does something else. Called before other threads
    /// come in; whoever needs the module waits for the end of it.
    void prepare();
    /// What a page shows but its text, in a square of so many millimetres, in so many pixels each
    /// way.
    Raster pixels(const Page& page, double millimetres, int pixels);

private:
    /// What knows of picture files and documents; it is loaded for as long as the program lives.
    const Pictures& module() const;

    std::filesystem::path m_programFolder;
    std::shared_future<void> m_preparing;
};

}  // namespace fleetwright
