#include "SheetOutput.h"

#include "Desktop.h"
#include "Error.h"
#include "PictureFiles.h"
#include "RasterSheet.h"
#include "SheetImages.h"
#include "ShipClass.h"
#include "bestMap.h"
#include "carriedShips.h"
#include "documentDate.h"
#include "paths.h"
#include "saveFile.h"
#include "text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

constexpr const char* pdfEnding = ".pdf";
constexpr const char* svgEnding = ".svg";
constexpr const char* pngEnding = ".png";

/// The dialog in which a sheet gets its file.
FileDialog sheetDialog(const OutgoingSheet& sheet, const fs::path& folder) {
    FileDialog dialog{.filter =
                          "All Files (*.*)|*.*|PDF Files (*.pdf)|*.pdf|SVG Files (*.svg)|*.svg",
                      .filterIndex = 2,
                      .initialFolder = folder,
                      .fileName = fileNameOf(sheet.name) + pdfEnding,
                      .endings = {pdfEnding, pdfEnding, svgEnding, pngEnding}};
    if (!sheet.bitmap.isEmpty()) {
        dialog.filter += "|PNG Files (*.png)|*.png";
    }
    return dialog;
}

/// The ending of a file's name that says a format of sheets; empty if it says none.
std::string endingOf(const std::string& file) {
    const std::string name = toSmallLetters(file);
    for (const char* const ending : {pdfEnding, svgEnding, pngEnding}) {
        if (name.ends_with(ending)) {
            return ending;
        }
    }
    return {};
}

/// A picture in the middle of a page, as large as its margins let it be.
PageDocument pictureDocument(const std::string& name, const std::shared_ptr<const Raster>& picture,
                             const PageSize& paper) {
    const double scale = std::min((paper.width - 2 * paperMargin) / picture->width(),
                                  (paper.height - 2 * paperMargin) / picture->height());
    const double width = picture->width() * scale, height = picture->height() * scale;
    const Box place{(paper.width - width) / 2, (paper.height - height) / 2, width, height};
    PageDocument document;
    document.size = paper;
    document.title = name;
    document.pages.push_back({{PagePicture{nullptr, picture, place, place}}});
    return document;
}

/// The systems aboard as the main window lists them.
SheetOutput::Rows rowsOf(const ShipClass& ship) {
    SheetOutput::Rows rows;
    for (const WeapRec& system : ship.systemsAboard()) {
        const std::string name(system.name);
        rows.push_back({.key = name, .text = name, .subItem = std::to_string(system.amount)});
    }
    return rows;
}

}  // namespace

void SheetOutput::attempt(const std::function<void()>& task) const {
    std::string fault;
    try {
        task();
        return;
    } catch (const FileError& error) {
        fault = complaint(error);
    } catch (const std::exception& error) {
        fault = error.what();
    }
    m_services.desktop.showMessage(fault, "Sheet", Buttons::Ok, Icon::Critical);
}

SheetOutput SheetOutput::saying(std::function<void(const std::string&)> say) const {
    Services services = m_services;
    services.say = std::move(say);
    return SheetOutput(std::move(services));
}

void SheetOutput::preview(const Source& source) const {
    attempt([&] {
        const OutgoingSheet sheet = source();
        finish(m_services.printer.preview(sheet.pages), sheet);
    });
}

void SheetOutput::print(const Source& source) const {
    attempt([&] {
        const OutgoingSheet sheet = source();
        finish(m_services.printer.print(sheet.pages), sheet);
    });
}

/// A sheet that is printed into a file becomes the file that an export makes, ship included.
void SheetOutput::finish(const Printout& printout, const OutgoingSheet& sheet) const {
    switch (printout.way) {
    case Printout::Way::Nowhere:
        break;
    case Printout::Way::Paper:
        m_services.say("The " + std::string(sheet.called) + " is on its way to the printer");
        break;
    case Printout::Way::File:
        save(printout.file, [&](const FileOut& out) {
            m_services.printer.writePdf(sheet.pages(printout.paper), out);
        });
        break;
    }
}

void SheetOutput::save(const fs::path& file, const FileContents& contents) const {
    if (maySave(m_services.desktop, file)) {
        saveFile(file, contents);
        m_services.say("Saved " + shownText(pathText(file)));
    }
}

void SheetOutput::exportFile(const Source& source) const {
    attempt([&] {
        const OutgoingSheet sheet = source();
        const std::optional<std::string> name =
            m_services.desktop.chooseFileToSave(sheetDialog(sheet, m_services.appFolder / "ssds"));
        if (!name) {
            return;
        }
        const bool saysFormat = !endingOf(*name).empty();
        const fs::path file = nativePath(saysFormat ? *name : *name + pdfEnding);
        save(file, [&](const FileOut& out) { write(sheet, endingOf(pathText(file)), out); });
    });
}

SheetActs SheetOutput::acts(const Source& sheet,
                            const std::function<void(const std::string&)>& say) const {
    return {.print = [this, sheet, say] { saying(say).print(sheet); },
            .exportFile = [this, sheet, say] { saying(say).exportFile(sheet); }};
}

SheetOutput::Source SheetOutput::madeAtOnce(const Source& sheet) {
    try {
        return [made = sheet()] { return made; };
    } catch (const Error& error) {
        return [fault = faultOf({}, error)]() -> OutgoingSheet { throw Error(fault); };
    }
}

void SheetOutput::write(const OutgoingSheet& sheet, const std::string& ending,
                        const FileOut& out) const {
    if (ending == svgEnding) {
        out(m_services.svgFile(sheet.pages(paperA4)));
    } else if (ending == pdfEnding) {
        m_services.printer.writePdf(sheet.pages(paperA4), out);
    } else if (sheet.bitmap.isEmpty()) {
        throw Error(sheet.whyNoBitmap + "; a .pdf or .svg can be made");
    } else {
        const std::string png = m_services.encoder.encode(sheet.bitmap, "png");
        out(sheet.shipFile.empty() ? png : withShip(png, sheet.shipFile));
    }
}

OutgoingSheet SheetOutput::onMap(const SheetShip& ship, const Rows& aboard, const SSDMap& map,
                                 Raster bitmap) const {
    VectorSheet sheet = vectorSheet(ship, aboard, map, m_services.sources);
    if (ship.ship.g_bSaved) {
        sheet.date = documentDate(nativePath(ship.ship.origin));
    }
    return {.name = ship.txtShipName,
            .pages =
                [sheet](const PageSize& paper) { return sheetDocument({sheet}, {.paper = paper}); },
            .bitmap = std::move(bitmap),
            .shipFile = sheet.shipFile};
}

OutgoingSheet SheetOutput::onBestMap(const SheetShip& ship, const Rows& aboard) const {
    const SSDMaps::Map map = bestMapOrWhyNone(m_services.g_colSSDMaps, ship.ship, aboard);
    if (getsSheet(ship.ship.mass(), m_services.g_iLargestSSD)) {
        return onMap(ship, aboard, *map, bitmapOn(*map, ship, aboard));
    }
    OutgoingSheet sheet = onMap(ship, aboard, *map, {});
    sheet.whyNoBitmap = m_services.g_iLargestSSD == 0
                            ? "There was no map for a bitmap when the program started"
                            : "The ship is too heavy for a bitmap";
    return sheet;
}

Raster SheetOutput::bitmapOn(const SSDMap& map, const SheetShip& ship, const Rows& aboard) const {
    SheetLists lists;
    lists.fillShipWeap(aboard);
    lists.fillPoints(map);
    Raster bitmap = m_services.sources.outlines(map);
    RasterSheet sheet(bitmap);
    drawSSD(sheet, m_services.sources.images, map, lists, ship);
    return bitmap;
}

SSDMaps::Map SheetOutput::mapOf(const Raster& picture, const SheetShip& ship,
                                const Rows& aboard) const {
    const auto isDrawnOn = [&](const SSDMaps::Map& map) {
        try {
            return map && bitmapOn(*map, ship, aboard) == picture;
        } catch (const Error&) {
            return false;
        }
    };
    SheetLists lists;
    lists.fillShipWeap(aboard);
    if (SSDMaps::Map best = bestMap(m_services.g_colSSDMaps, ship.ship, lists.lstShipWeap);
        isDrawnOn(best)) {
        return best;
    }
    const std::vector<SSDMaps::Map>& maps = m_services.g_colSSDMaps.all();
    const auto found = std::ranges::find_if(maps, isDrawnOn);
    return found == maps.end() ? nullptr : *found;
}

OutgoingSheet SheetOutput::ofPicture(const fs::path& file, const Raster& picture) const {
    const std::unique_ptr<ShipClass> ship = m_services.newShip();
    if (ship->loadShip(pathText(file)) && ship->refusedLines().empty()) {
        ship->weapChange();  // a ship without systems has no figures yet
        const Rows aboard = rowsOf(*ship);
        if (const SSDMaps::Map map = mapOf(picture, sheetShipOf(*ship), aboard)) {
            return onMap(sheetShipOf(*ship), aboard, *map, picture);
        }
    }
    const std::string name = pathText(file.stem());
    return {.name = name,
            .pages = [name, shared = std::make_shared<const Raster>(picture)](
                         const PageSize& paper) { return pictureDocument(name, shared, paper); },
            .bitmap = picture,
            .shipFile = {}};
}

}  // namespace fleetwright
