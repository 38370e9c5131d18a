#include "Artwork.h"
#include "Catalogue.h"
#include "Error.h"
#include "PictureSet.h"
#include "drawing.h"
#include "pictureFiles.h"

#include <algorithm>
#include <array>

namespace fleetwright {

namespace {

constexpr std::string_view categoryPrefix = "cat-";

/// The part of a name behind its last hyphen, or nothing.
std::string ending(const std::string& name) {
    const std::size_t hyphen = name.rfind('-');
    return hyphen == std::string::npos ? "" : name.substr(hyphen + 1);
}

void dropEnding(std::string& name) {
    name.erase(name.rfind('-'));
}

PictureFile drawCategory(const Artwork& artwork, const std::string& name) {
    return inkPicture({artwork.svg("categories/" + name), artwork.svg("category-frame")},
                      systemSize);
}

PictureFile drawSystem(const Artwork& artwork, const PictureName& name) {
    const Variant variant = {{"class", name.weaponClass}, {"arc", name.arc}};
    std::vector<QByteArray> layers = {artwork.svg("systems/" + name.source, variant)};
    if (!name.arc.empty()) {
        layers.push_back(artwork.svg("arc-mark", variant));
    }
    return inkPicture(layers, systemSize);
}

}  // namespace

PictureName readPictureName(const std::string& fileName) {
    constexpr std::array<std::string_view, 8> arcs = {"f", "p", "s", "a", "fp", "fs", "fps", "all"};
    PictureName name;
    name.source = fileName.substr(0, fileName.rfind('.'));
    if (std::find(arcs.begin(), arcs.end(), ending(name.source)) != arcs.end()) {
        name.arc = ending(name.source);
        dropEnding(name.source);
    }
    const std::string last = ending(name.source);
    if (last.size() == 1 && last >= "1" && last <= "4") {
        name.weaponClass = last;
        dropEnding(name.source);
    }
    return name;
}

PictureSet cataloguePictures(const Artwork& artwork, const Catalogue& catalogue) {
    PictureSet pictures;
    for (const WeapRec& record : catalogue.records()) {
        const std::string file(record.icon);
        if (file.starts_with(categoryPrefix)) {
            const std::string name = file.substr(0, file.rfind('.'));
            pictures[file] = drawCategory(artwork, name.substr(categoryPrefix.size()));
        } else {
            pictures[file] = drawSystem(artwork, readPictureName(file));
        }
    }
    return pictures;
}

}  // namespace fleetwright
