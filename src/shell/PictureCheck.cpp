#include "PictureCheck.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "PictureFiles.h"
#include "SheetPictures.h"
#include "paths.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <map>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

bool isPicture(const fs::path& file) {
    constexpr std::array<std::string_view, 5> extensions = {".GIF", ".BMP", ".JPG", ".JPEG",
                                                            ".PNG"};
    const std::string extension = toCapitals(file.extension().string());
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

/// The name of a file below a folder, in capitals.
std::string nameBelow(const fs::path& folder, const fs::path& file) {
    return toCapitals(file.lexically_relative(folder).generic_string());
}

/// All files below a folder, by their names in capitals.
std::map<std::string, fs::path> pictureFilesIn(const fs::path& folder) {
    std::map<std::string, fs::path> files;
    for (const fs::path& file : filesBelow(folder)) {
        files[nameBelow(folder, file)] = file;
    }
    return files;
}

}  // namespace

PictureCheck::PictureCheck(const fs::path& folder, PictureFiles& pictures, Depth depth)
    : m_folder(folder), m_pictures(pictures), m_depth(depth) {}

void PictureCheck::noteUse(const fs::path& file) {
    if (m_depth == All) {
        m_used.insert(nameBelow(m_folder, file));
    }
}

/// What keeps a picture from being read; nothing if it can be. Throws FileError for another file.
std::optional<std::string> PictureCheck::readingFault(const fs::path& file, Raster& picture) const {
    try {
        picture = m_pictures.load(file);
        return std::nullopt;
    } catch (const FileError& error) {
        if (error.file() != file) {
            throw;
        }
        return error.what();
    }
}

/// What is wrong with the picture of a system; nothing if it is as it should be.
std::optional<std::string> PictureCheck::systemPictureFault(std::string_view name) {
    fs::path file;
    try {
        file = fileBelow(m_folder, name);
    } catch (const FileError& error) {
        return error.what();
    }
    noteUse(file);
    Raster picture;
    if (auto fault = readingFault(file, picture)) {
        std::error_code unknown;
        return fs::exists(file, unknown) ? fault : "is missing";
    }
    if (picture.width() == systemPictureSize && picture.height() == systemPictureSize) {
        return std::nullopt;
    }
    const std::string side = std::to_string(systemPictureSize);
    return "is " + std::to_string(picture.width()) + " by " + std::to_string(picture.height()) +
           " pixels, not " + side + " by " + side;
}

std::vector<Fault> PictureCheck::checkCatalogue(const CatalogueText& catalogue) {
    std::vector<Fault> faults;
    for (const CatalogueLine& line : catalogue.lines()) {
        const std::string icon(line.icon);
        if (icon.empty()) {
            // The rest of the check says so itself; the start cannot do without.
            if (m_depth == Start) {
                faults.push_back({line.number, "no picture"});
            }
            continue;
        }
        if (const auto fault = systemPictureFault(icon)) {
            faults.push_back({line.number, "picture " + quote(icon) + " " + *fault});
        }
    }
    return faults;
}

std::vector<PictureFault> PictureCheck::checkRest() {
    std::vector<PictureFault> faults;
    const std::map<std::string, fs::path> files = pictureFilesIn(m_folder);
    for (const std::string& name : sheetPictures()) {
        const auto found = files.find(toCapitals(name));
        if (found == files.end()) {
            faults.push_back({m_folder / name, {0, "is missing; sheets need it"}});
            continue;
        }
        noteUse(found->second);
        Raster ignored;
        if (const auto fault = readingFault(found->second, ignored)) {
            faults.push_back({found->second, {0, *fault}});
        }
    }
    for (const auto& [name, file] : files) {
        if (!m_used.contains(name) && isPicture(file)) {
            faults.push_back({file, {0, "nothing uses this picture"}});
        }
    }
    return faults;
}

}  // namespace fleetwright
