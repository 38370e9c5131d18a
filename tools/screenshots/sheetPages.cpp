#include "sheetPages.h"

#include "DrawingPack.h"
#include "Error.h"
#include "QtPictureFiles.h"
#include "SSDMaps.h"
#include "ShipOnScreen.h"
#include "bestMap.h"
#include "drawPage.h"
#include "drawPageShapes.h"
#include "drawnSheet.h"
#include "frmMain.h"
#include "paths.h"
#include "saveFile.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

void save(const QImage& image, const fs::path& file) {
    const QImage smallest =
        image.allGray() ? image.convertToFormat(QImage::Format_Grayscale8) : image;
    if (!smallest.save(QString::fromStdString(file.string()))) {
        throw FileError(file, "cannot be saved");
    }
}

QImage pageImage(const PageDocument& document, const Page& page) {
    constexpr double pixelsToMillimetre = 100 / 25.4;
    QImage image(static_cast<int>(std::lround(document.size.width * pixelsToMillimetre)),
                 static_cast<int>(std::lround(document.size.height * pixelsToMillimetre)),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsToMillimetre / pageUnits, pixelsToMillimetre / pageUnits);
    drawPage(painter, page);
    return image;
}

/// All pages side by side, smaller.
QImage contactSheet(const std::vector<QImage>& pages) {
    constexpr int columns = 8, width = 300, gap = 12;
    const int height = width * pages.front().height() / pages.front().width();
    const int rows = (static_cast<int>(pages.size()) + columns - 1) / columns;
    QImage sheet(columns * (width + gap) + gap, rows * (height + gap) + gap, QImage::Format_RGB32);
    sheet.fill(Qt::darkGray);
    QPainter painter(&sheet);
    for (int i = 0; i < static_cast<int>(pages.size()); ++i) {
        painter.drawImage(gap + i % columns * (width + gap), gap + i / columns * (height + gap),
                          pages[static_cast<std::size_t>(i)].scaled(
                              width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    return sheet;
}

/// The name of the map that fits a ship best; empty if there is none.
std::string mapFor(const SSDMaps& maps, const ShipOnScreen& screen, const ShipClass& ship) {
    SheetLists lists;
    lists.fillShipWeap(screen.window().aboard.lvCurrentWeapons.rows());
    const SSDMaps::Map best = bestMap(maps, ship, lists.lstShipWeap);
    return best ? best->sDisplayName : "";
}

}  // namespace

void drawSheets(const fs::path& appFolder, const fs::path& ships, const fs::path& output) {
    fs::create_directories(output / "sheets");
    fs::create_directories(output / "pages");
    QtPictureFiles files;
    const LoadedMaps maps = loadMaps(appFolder);
    const DrawingPack drawings(drawingsFile(appFolder));
    const SheetTools tools{
        appFolder, picturesReadOnce(appFolder, files), outlinesReadOnce(files), files, drawings,
        maps};
    std::vector<QImage> pages;
    for (const fs::path& ship : listFolder(ships, ".shp")) {
        ShipOnScreen screen(appFolder);
        if (screen.load(ship.string())) {
            throw FileError(ship, "does not load");
        }
        const std::string map = mapFor(maps.maps, screen, screen.ship());
        if (map.empty()) {
            continue;
        }
        try {
            const std::string name = ship.stem().string();
            const Raster sheet = drawnSheet(screen, tools, map);
            saveFile(output / "sheets" / (name + ".png"), files.encode(sheet, "png"));
            const PageDocument document = sheetDocument({recordedSheet(screen, tools, map)}, {});
            for (std::size_t i = 0; i < document.pages.size(); ++i) {
                pages.push_back(pageImage(document, document.pages[i]));
                const std::string number = i == 0 ? "" : "-" + std::to_string(i + 1);
                save(pages.back(), output / "pages" / (name + number + ".png"));
            }
        } catch (const FileError&) {
            throw;
        } catch (const Error& error) {
            throw FileError(ship, error.what());
        }
    }
    if (!pages.empty()) {
        save(contactSheet(pages), output / "sheet-pages.png");
    }
}

}  // namespace fleetwright
