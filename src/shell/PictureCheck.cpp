#include "PictureCheck.h"

#include "CatalogueFile.h"
#include "Error.h"
#include "PictureFiles.h"
#include "SheetPictures.h"
#include "readFile.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Whether the end of a GIF file is missing.
bool isCutShort(std::string_view bytes) {
    constexpr char trailer = 0x3B;
    return bytes.starts_with("GIF") && !bytes.ends_with(trailer);
}

bool isPicture(const fs::path& file) {
    constexpr std::array<std::string_view, 5> extensions = {".GIF", ".BMP", ".JPG", ".JPEG",
                                                            ".PNG"};
    const std::string extension = toCapitals(file.extension().string());
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

}  // namespace

PictureCheck::PictureCheck(const fs::path& folder, PictureFiles& pictures, Depth depth)
    : m_folder(folder), m_pictures(pictures), m_depth(depth) {
    std::error_code error;
    constexpr auto options = fs::directory_options::skip_permission_denied;
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(folder, options, error)) {
        if (entry.is_regular_file(error)) {
            const std::string name = entry.path().lexically_relative(folder).generic_string();
            m_entries[toCapitals(name)] = {.file = entry.path()};
        }
    }
}

PictureCheck::Entry* PictureCheck::find(std::string_view name) {
    const auto found = m_entries.find(toCapitals(name));
    if (found == m_entries.end()) {
        return nullptr;
    }
    found->second.isUsed = true;
    return &found->second;
}

/// Throws FileError.
Raster PictureCheck::read(const fs::path& file) const {
    if (m_depth == All && isCutShort(readBytes(file))) {
        throw FileError(file, "is cut short");
    }
    return m_pictures.load(file);
}

bool PictureCheck::isReadable(const fs::path& file) const {
    try {
        read(file);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

/// What is wrong with the picture of a system; nothing if it is as it should be.
std::optional<std::string> PictureCheck::systemPictureFault(const fs::path& file) const {
    try {
        const Raster picture = read(file);
        if (picture.width() == systemPictureSize && picture.height() == systemPictureSize) {
            return std::nullopt;
        }
        const std::string side = std::to_string(systemPictureSize);
        return "is " + std::to_string(picture.width()) + " by " + std::to_string(picture.height()) +
               " pixels, not " + side + " by " + side;
    } catch (const FileError&) {
        return "cannot be read";
    }
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
        const Entry* const entry = find(icon);
        const auto fault = entry == nullptr ? "is missing" : systemPictureFault(entry->file);
        if (fault) {
            faults.push_back({line.number, "picture " + quote(icon) + " " + *fault});
        }
    }
    return faults;
}

std::vector<PictureFault> PictureCheck::checkRest() {
    std::vector<PictureFault> faults;
    for (const std::string& name : sheetPictures()) {
        const Entry* const entry = find(name);
        if (entry == nullptr) {
            faults.push_back({m_folder / name, {0, "is missing; sheets need it"}});
        } else if (!isReadable(entry->file)) {
            faults.push_back({entry->file, {0, "cannot be read"}});
        }
    }
    for (const auto& [name, entry] : m_entries) {
        if (!entry.isUsed && isPicture(entry.file)) {
            faults.push_back({entry.file, {0, "nothing uses this picture"}});
        }
    }
    return faults;
}

}  // namespace fleetwright
