#pragma once

#include "ListView.h"
#include "PagePrinter.h"
#include "Raster.h"
#include "SSDMaps.h"
#include "SheetKeys.h"
#include "TemporaryFile.h"
#include "drawSSD.h"
#include "sheetDocument.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace fleetwright {

class Desktop;
class PictureEncoder;

/// A sheet that is to leave the program.
struct OutgoingSheet {
    std::string name;  ///< of the ship or picture; its file is to be called so
    PagePrinter::Layout pages;
    Raster bitmap;                 ///< for a picture file; empty if there is none
    std::string whyNoBitmap = {};  ///< then
    std::string shipFile;          ///< the text of the ship file that such a file carries, if any
    std::string_view called = "sheet";
};

/// Shows sheets as pages, prints them and saves them as files. What fails is said in one message
/// box, what was done on the status line.
class SheetOutput {
public:
    /// What that takes of the world around. All of it outlives this.
    struct Services {
        std::filesystem::path appFolder;
        Desktop& desktop;
        PagePrinter& printer;
        PictureEncoder& encoder;
        std::function<std::string(const PageDocument&)> svgFile;
        SheetSources sources;
        const SSDMaps& g_colSSDMaps;
        const std::int16_t& g_iLargestSSD;
        std::function<std::unique_ptr<ShipClass>()> newShip;
        std::function<void(const std::string&)> say;
    };
    using Rows = std::vector<ListView::Row>;
    /// Makes the sheet that is to leave. It may throw Error.
    using Source = std::function<OutgoingSheet()>;

    explicit SheetOutput(Services services) : m_services(std::move(services)) {}

    /// The same for a window that says itself what was done.
    SheetOutput saying(std::function<void(const std::string&)> say) const;

    void preview(const Source& sheet) const;
    void print(const Source& sheet) const;
    /// Lets the user choose a file, whose ending says the format.
    void exportFile(const Source& sheet) const;

    /// The same as acts of a window that shows the sheet, and says itself what was done.
    SheetActs acts(const Source& sheet, const std::function<void(const std::string&)>& say) const;
    /// A sheet that is made at once, of the ship as it is. If that fails, the acts say so.
    static Source madeAtOnce(const Source& sheet);

    /// The sheet of a ship with these systems aboard on a map; its bitmap has been drawn already.
    /// Throws Error.
    OutgoingSheet onMap(const SheetShip& ship, const Rows& aboard, const SSDMap& map,
                        Raster bitmap) const;
    /// The same on the map that fits the ship best. Only a ship that the window of bitmaps serves
    /// has one. Throws Error, also if there is no map with room for the ship.
    OutgoingSheet onBestMap(const SheetShip& ship, const Rows& aboard) const;
    /// The sheet of the ship that a picture file carries, on the map that the picture was drawn on.
    /// Where it carries none, or one that comes out otherwise on all maps, the picture itself, as
    /// large as the page lets it be. Throws Error.
    OutgoingSheet ofPicture(const std::filesystem::path& file, const Raster& picture) const;

private:
    void attempt(const std::function<void()>& task) const;
    void finish(const Printout& printout, const OutgoingSheet& sheet) const;
    void save(const std::filesystem::path& file, const FileContents& contents) const;
    void write(const OutgoingSheet& sheet, const std::string& ending, const FileOut& out) const;
    /// The map on which the ship's bitmap is this picture; null if it is on none.
    SSDMaps::Map mapOf(const Raster& picture, const SheetShip& ship, const Rows& aboard) const;
    Raster bitmapOn(const SSDMap& map, const SheetShip& ship, const Rows& aboard) const;

    Services m_services;
};

}  // namespace fleetwright
