#include "ToolPictures.h"

#include "Error.h"
#include "bmpFile.h"
#include "modules.h"
#include "picturesModule.h"

namespace fleetwright {

namespace {

/// What knows of picture files and documents; it is loaded for as long as the program lives.
/// Throws FileError.
const Pictures& loadPictures(const std::filesystem::path& programFolder) {
    const std::filesystem::path module = programFolder / picturesModule;
    const auto create = moduleFunction<CreatePictures>(loadModule(module), "createPictures");
    if (create == nullptr) {
        throw FileError(module, "cannot be loaded");
    }
    return *create();
}

}  // namespace

Raster ToolPictures::decode(const std::string& bytes, const std::string& format) {
    return loadPictures(m_programFolder).files.decode(bytes, format);
}

Raster ToolPictures::builtIn(const std::string& name) {
    return loadPictures(m_programFolder).files.builtIn(name);
}

std::string ToolPictures::encode(const Raster& picture, const std::string& format) {
    if (format == "bmp" && !picture.isEmpty()) {
        return bmpFile(picture);
    }
    return loadPictures(m_programFolder).encoder.encode(picture, format);
}

void ToolPictures::prepareForPdf() {
    m_preparing = std::async(std::launch::async, [this] {
        try {
            loadPictures(m_programFolder).prepareForPdf();
        } catch (const Error&) {
            // The one who makes the file finds it, too.
        }
    });
}

std::string ToolPictures::pdf(const PageDocument& document) {
    return loadPictures(m_programFolder).pdf(document);
}

}  // namespace fleetwright
