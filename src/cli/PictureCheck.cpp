#include "PictureCheck.h"

#include "Catalogue.h"
#include "SheetPictures.h"
#include "TextFile.h"
#include "capitals.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <iterator>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

int readGif(GifFileType* gif, GifByteType* bytes, int count) {
    auto& rest = *static_cast<std::string_view*>(gif->UserData);
    const std::size_t taken = std::min(rest.size(), static_cast<std::size_t>(count));
    std::memcpy(bytes, rest.data(), taken);
    rest.remove_prefix(taken);
    return static_cast<int>(taken);
}

/// Decodes a GIF file whole; nothing if that fails.
std::optional<PictureSize> gifSize(std::string_view bytes) {
    GifFileType* const gif = DGifOpen(&bytes, readGif, nullptr);
    if (gif == nullptr) {
        return std::nullopt;
    }
    std::optional<PictureSize> size;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount > 0) {
        size = {gif->SWidth, gif->SHeight};
    }
    DGifCloseFile(gif, nullptr);
    return size;
}

/// The size of a picture, or nothing if it cannot be read. Of BMP and JPEG files, which the
/// catalogue may name but is not meant to, only the first bytes are looked at.
std::optional<PictureSize> pictureSize(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    if (bytes.starts_with("BM") || bytes.starts_with("\xFF\xD8")) {
        return PictureSize();
    }
    return gifSize(bytes);
}

bool isPicture(const fs::path& file) {
    constexpr std::array<std::string_view, 5> extensions = {".GIF", ".BMP", ".JPG", ".JPEG",
                                                            ".PNG"};
    const std::string extension = toCapitals(file.extension().string());
    return std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

/// What is wrong with the picture of a system; nothing if it is as it should be.
std::optional<std::string> systemPictureFault(const fs::path& file) {
    constexpr int side = systemPictureSize;
    const auto size = pictureSize(file);
    if (!size) {
        return "cannot be read";
    }
    if (size->width != 0 && (size->width != side || size->height != side)) {
        return "is " + std::to_string(size->width) + " by " + std::to_string(size->height) +
               " pixels, not 32 by 32";
    }
    return std::nullopt;
}

}  // namespace

PictureCheck::PictureCheck(const fs::path& folder) : m_folder(folder) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (entry.is_regular_file(error)) {
            m_entries[toCapitals(entry.path().filename().string())] = {.file = entry.path()};
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

std::vector<Fault> PictureCheck::checkCatalogue(std::string_view text) {
    std::vector<Fault> faults;
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        const std::string icon(cutCatalogueLine(line).icon);
        if (isCatalogueComment(line) || icon.empty()) {
            continue;
        }
        const Entry* const entry = find(icon);
        const auto fault = entry == nullptr ? "is missing" : systemPictureFault(entry->file);
        if (fault) {
            faults.push_back({lines.lineNumber(), "picture \"" + icon + "\" " + *fault});
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
        } else if (!pictureSize(entry->file)) {
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
