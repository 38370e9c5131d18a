#include "PictureReader.h"

#include "Error.h"
#include "gifPicture.h"
#include "readFile.h"
#include "wholeFiles.h"

#include <string_view>

namespace fleetwright {

namespace {

struct Format {
    std::string_view name;
    std::string_view beginning;
    bool (*isWhole)(std::string_view bytes) = nullptr;
};

/// The decoder is not left to guess: of all that it may know, these are meant. The last ones are
/// bare pixels, which need no tool to make.
constexpr Format formats[] = {
    {.name = "gif", .beginning = "GIF"},
    {.name = "bmp", .beginning = "BM", .isWhole = isWholeBmp},
    {.name = "jpg", .beginning = "\xFF\xD8\xFF", .isWhole = isWholeJpeg},
    {.name = "png", .beginning = "\x89PNG"},
    {.name = "ppm", .beginning = "P3"},
    {.name = "ppm", .beginning = "P6"},
};

}  // namespace

Raster PictureReader::read(const std::string& bytes) {
    for (const Format& format : formats) {
        if (!bytes.starts_with(format.beginning)) {
            continue;
        }
        if (format.name == "gif") {
            return gifPicture(bytes);
        }
        if (format.isWhole != nullptr && !format.isWhole(bytes)) {
            throw Error("is cut short");
        }
        return decode(bytes, std::string(format.name));
    }
    throw Error("is no GIF, BMP, JPEG or PNG picture");
}

Raster PictureReader::load(const std::filesystem::path& file) {
    const std::string bytes = readBytes(file);
    try {
        return read(bytes);
    } catch (const FileError&) {
        throw;  // of what decodes
    } catch (const Error& error) {
        throw FileError(file, error.what());
    }
}

}  // namespace fleetwright
