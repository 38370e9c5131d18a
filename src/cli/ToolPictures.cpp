#include "ToolPictures.h"

#include "Error.h"
#include "bmpFile.h"
#include "modules.h"
#include "picturesModule.h"

#include <system_error>

namespace fleetwright {

namespace {

const Pictures& loadPictures(const std::filesystem::path& programFolder) {
    const std::filesystem::path module = programFolder / picturesModule;
    const auto create = moduleFunction<CreatePictures>(loadModule(module), "createPictures");
    if (create == nullptr) {
        throw FileError(module, "cannot be loaded");
    }
    return *create();
}

}  // namespace

const Pictures& ToolPictures::module() const {
    // What is half prepared would be found by all that asks for it in the meantime.
    if (m_preparing.valid()) {
        m_preparing.wait();
    }
    return loadPictures(m_programFolder);
}

Raster ToolPictures::decode(const std::string& bytes, const std::string& format) {
    return module().files.decode(bytes, format);
}

Raster ToolPictures::builtIn(const std::string& name) {
    return module().files.builtIn(name);
}

std::string ToolPictures::encode(const Raster& picture, const std::string& format) {
    if (format == "bmp" && !picture.isEmpty()) {
        return bmpFile(picture);
    }
    return module().encoder.encode(picture, format);
}

void ToolPictures::prepare() {
    const auto load = [folder = m_programFolder] {
        try {
            loadPictures(folder);
        } catch (const Error&) {
            // Whoever needs it finds that, too.
        }
    };
    try {
        m_preparing = std::async(std::launch::async, load);
    } catch (const std::system_error&) {
        // No further thread is granted: whoever needs the module first loads it.
    }
}

Raster ToolPictures::pixels(const Page& page, double millimetres, int pixels) {
    return module().pixels(page, millimetres, pixels);
}

}  // namespace fleetwright
