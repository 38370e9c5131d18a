#include "Artwork.h"
#include "Catalogue.h"
#include "DrawingRecorder.h"
#include "HullRules.h"
#include "PictureSet.h"
#include "SheetPictures.h"
#include "drawing.h"
#include "pictureFiles.h"

#include <QPainter>

#include <functional>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

constexpr QSize buttonSize(systemPictureSize, systemPictureSize);

/// The roots of the catalogue as they stand in the names of files.
std::vector<std::string> rootNames() {
    std::vector<std::string> names;
    names.reserve(catalogueRoots.size());
    for (const std::string_view root : catalogueRoots) {
        names.push_back(QString::fromUtf8(root.data(), std::ssize(root)).toLower().toStdString());
    }
    return names;
}

/// A button's picture on the common tile, so that it shows on dark windows too, and the same for
/// screens of twice the resolution.
void addButton(PictureSet& pictures, const Artwork& artwork, const std::string& name,
               const QByteArray& svg) {
    for (const int scale : {1, 2}) {
        const QByteArray tile = artwork.svg("window/tile");
        QImage image = drawColours(tile, buttonSize * scale);
        QPainter painter(&image);
        painter.drawImage(0, 0, drawColours(svg, buttonSize * scale));
        painter.end();
        pictures[name + (scale == 1 ? ".png" : "@2x.png")] = {
            imageFile(image, "PNG"), recordDrawing({tile, svg}, image.size())};
    }
}

void addButtons(PictureSet& pictures, const Artwork& artwork) {
    for (const std::string& name : rootNames()) {
        addButton(pictures, artwork, "button-" + name, artwork.svg("roots/" + name));
    }
    for (const std::string name : {"button-expand-all", "button-collapse-all"}) {
        addButton(pictures, artwork, name, artwork.svg("window/" + name));
    }
    for (int thrust = 0; thrust <= mostThrust; ++thrust) {
        const std::string number = std::to_string(thrust);
        addButton(pictures, artwork, "thrust" + number,
                  artwork.svg("sheet/thrust", {{"thrust", number}}));
    }
    addButton(pictures, artwork, "ftl", artwork.svg("sheet/drive", {{"drive", "normal"}}));
    addButton(pictures, artwork, "ftltug", artwork.svg("sheet/drive", {{"drive", "tug"}}));
}

PictureFile iconFile(const QByteArray& svg, int side) {
    const QSize size(side, side);
    return {imageFile(drawColours(svg, size), "PNG"), recordDrawing({svg}, size)};
}

void addIcons(PictureSet& pictures, const Artwork& artwork) {
    // What fills a large icon is mud in a small one, so there are two drawings.
    constexpr int largestSmall = 32;
    const QByteArray small = artwork.svg("window/icon-small");
    const QByteArray large = artwork.svg("window/icon");
    for (const int side : {16, 24, 32, 48, 64, 256}) {
        pictures["icon-" + std::to_string(side) + ".png"] =
            iconFile(side <= largestSmall ? small : large, side);
    }
    pictures["icon.svg"] = {large.toStdString()};
    pictures["tray.png"] = iconFile(small, 16);
    pictures["tray@2x.png"] = iconFile(small, 32);
}

/// A picture of the start, with the function that makes a file of an image.
PictureFile drawSplash(const Artwork& artwork, const std::string& name, QSize size,
                       const std::function<std::string(const QImage&)>& fileOf) {
    const QByteArray svg = artwork.svg("window/" + name);
    const QImage image = drawColours(svg, size).convertToFormat(QImage::Format_RGB32);
    return {fileOf(inFewColours(image)), recordDrawing({svg}, size)};
}

}  // namespace

PictureSet windowPictures(const Artwork& artwork) {
    PictureSet pictures;
    for (const std::string& name : rootNames()) {
        pictures["root-" + name + ".gif"] = inkPicture({artwork.svg("roots/" + name)}, buttonSize);
    }
    pictures["root-blank.gif"] = inkPicture({}, buttonSize);
    addButtons(pictures, artwork);
    addIcons(pictures, artwork);
    pictures["splash-1.gif"] = drawSplash(artwork, "splash-1", {348, 288}, gifFile);
    pictures["splash-2.bmp"] = drawSplash(artwork, "splash-2", {351, 291}, [](const QImage& image) {
        return imageFile(image, "BMP");
    });
    return pictures;
}

}  // namespace fleetwright
