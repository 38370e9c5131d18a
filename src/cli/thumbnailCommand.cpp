#include "commands.h"

#include "Error.h"
#include "FaultError.h"
#include "SheetSupplies.h"
#include "ShipFileLine.h"
#include "ShipOnScreen.h"
#include "ToolPictures.h"
#include "console.h"
#include "designCode.h"
#include "drawnSheet.h"
#include "fleetFile.h"
#include "fleetPaths.h"
#include "paths.h"
#include "readFile.h"
#include "readShip.h"
#include "saveResult.h"
#include "text.h"
#include "thumbnailPage.h"
#include "wholeNumber.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

void checkSize(std::string_view, const std::string& number) {
    constexpr std::int32_t least = 16, most = 2048;
    try {
        if (const std::int32_t side = wholeNumber(number); side >= least && side <= most) {
            return;
        }
    } catch (const Error&) {
        // It is said below.
    }
    throw UsageError("--size is a whole number from 16 to 2048");
}

/// A file manager shows files that nobody has asked for, from wherever they come.
void checkIsSmall(const fs::path& file) {
    constexpr std::uintmax_t most = 1 << 20;
    std::error_code isNone;
    if (const std::uintmax_t size = fs::file_size(file, isNone); !isNone && size > most) {
        throw FileError(file, "is too large for a thumbnail");
    }
}

/// Others use the ending of ship files, too, and nearly any text loads. Throws FileError for one
/// in which nothing is about a ship, or which takes long.
void checkIsShip(const std::string& fileOrCode) {
    constexpr std::size_t most = 1 << 16;
    const fs::path file = nativePath(fileOrCode);
    if (!isDesignCode(fileOrCode)) {
        checkIsSmall(file);
    }
    const ShipText ship = readShip(fileOrCode);
    if (ship.text.size() > most) {
        throw FileError(file, "is too large for a thumbnail");
    }
    LineReader lines(ship.text);
    for (std::string_view line; lines.next(line);) {
        std::string cuttable(line);
        if (!line.empty() && cutShipFileLine(cuttable).key != ShipKey::Unknown) {
            return;
        }
    }
    throw FileError(file, "is no ship file");
}

/// Draws what files show.
class Thumbnails {
public:
    explicit Thumbnails(const Options& options)
        : m_pictures(options.programFolder), m_screen(options.appFolder) {
        m_pictures.prepare();
        try {
            int ignored = Done;
            m_supplies.emplace(options, mostInThumbnail, SheetSupplies::Kind::Lines, ignored);
        } catch (const FileError&) {
            // There are no pictures.
        }
    }

    std::string pngOf(const std::string& fileOrCode, int side) {
        const Page page = thumbnailPage(isDesignCode(fileOrCode) ? std::vector{shipIn(fileOrCode)}
                                                                 : shipsIn(fileOrCode));
        return m_pictures.encode(m_pictures.pixels(page, thumbnailSide, side), "png");
    }

private:
    std::vector<SheetRecord> shipsIn(const std::string& file) {
        const fs::path path = nativePath(file);
        checkIsSmall(path);
        const std::string text = toUtf8(readBytes(path));
        return isFleet(text) ? shipsOf(parseFleet(text).fleet, path.parent_path())
                             : std::vector{shipIn(file)};
    }

    SheetRecord shipIn(const std::string& file) {
        checkIsShip(file);
        if (const std::optional<Fault> fault = m_screen.load(file)) {
            throw FaultError(*fault);
        }
        try {
            if (m_supplies) {
                return recordedSheet(m_screen, m_supplies->tools, "").record;
            }
        } catch (const Error&) {
            // No map has room for it.
        }
        return trackRecord(m_screen.ship().g_iDP, m_screen.ship().g_iDamRows);
    }

    /// The first ones that can be drawn, of the first ones there are.
    std::vector<SheetRecord> shipsOf(const Fleet& fleet, const fs::path& folder) {
        constexpr std::size_t tries = 2 * mostInThumbnail;
        std::vector<SheetRecord> ships;
        for (std::size_t ship = 0; ship < std::min(fleet.ships.size(), tries); ++ship) {
            try {
                ships.push_back(shipIn(shipPath(folder, fleet.ships[ship])));
            } catch (const Error&) {
                continue;
            }
            if (ships.size() == mostInThumbnail) {
                break;
            }
        }
        if (ships.empty()) {
            throw Error("has no ship that can be drawn");
        }
        return ships;
    }

    ToolPictures m_pictures;
    std::optional<SheetSupplies> m_supplies;
    ShipOnScreen m_screen;
};

int runThumbnail(const Options& options) {
    const std::string& file = options.words.front();
    try {
        const std::string png =
            Thumbnails(options).pngOf(file, wholeNumber(options.value("--size")));
        saveResultOf(std::span(&file, 1), nativePath(options.words.back()), png);
        return Done;
    } catch (const FaultError& error) {
        complain(complaint(file, error.fault()));
    } catch (const Error& error) {
        complain(complaint(nativePath(file), error));
    }
    return SomeRefused;
}

}  // namespace

constexpr OptionRow thumbnailOptions[] = {
    {.name = "--size",
     .value = "N",
     .help = "pixels of each side",
     .byDefault = "256",
     .check = checkSize},
};

extern const CommandRow thumbnailCommand = {
    .name = "thumbnail",
    .words = "FILE OUT [--size N]",
    .least = 2,
    .most = 2,
    .options = thumbnailOptions,
    .help = "Draw a ship, or the first ships of a fleet, as a small PNG file for file managers",
    .details = "It is the drawing of the sheet without its text, or the damage track where no map "
               "has room for the ship or the pictures have not been unpacked. Files above 1 MiB "
               "are refused.",
    .run = runThumbnail,
};

}  // namespace fleetwright
