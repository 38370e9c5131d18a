#include "commands.h"

#include "Error.h"
#include "KeptSheetParts.h"
#include "KeptSvgParts.h"
#include "ResultFiles.h"
#include "SheetSupplies.h"
#include "ShipOnScreen.h"
#include "carriedShips.h"
#include "designCode.h"
#include "documentDate.h"
#include "drawnSheet.h"
#include "pageOptions.h"
#include "paths.h"
#include "pdfFile.h"
#include "readShip.h"
#include "saveResult.h"
#include "sheetDocument.h"
#include "svgFile.h"
#include "text.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

namespace fs = std::filesystem;

/// Where sheets go: a file each in a folder, one file for one ship, one document for all of them.
enum class SheetOut { Folder, File, Document };

/// The format that the ending of a sheet's file means, or nothing.
std::optional<std::string> sheetFormat(std::string_view file) {
    for (const char* const format : {"bmp", "png", "svg", "pdf"}) {
        if (toCapitals(file).ends_with('.' + toCapitals(format))) {
            return format;
        }
    }
    return std::nullopt;
}

/// What `-o` names, or the current folder without it.
SheetOut sheetOut(const Options& options) {
    const std::string output = options.value(outOption.name);
    if (isOutFolder(nativePath(output))) {
        return SheetOut::Folder;
    }
    const std::optional<std::string> format = sheetFormat(output);
    if (!format) {
        throw UsageError("-o: a sheet is a .bmp, .png, .svg or .pdf file: " + shownText(output));
    }
    if (format == "pdf") {
        return SheetOut::Document;
    }
    if (options.words.size() > 1) {
        throw UsageError("-o: several sheets need a folder or a .pdf file");
    }
    return SheetOut::File;
}

void checkSheet(const Options& options) {
    sheetOut(options);
}

SheetSupplies::Kind kindOf(const Options& options) {
    const std::string format = sheetOut(options) == SheetOut::Folder
                                   ? options.value("--format")
                                   : sheetFormat(options.value(outOption.name)).value_or("bmp");
    const bool isOfLines = format == "pdf" || format == "svg";
    return isOfLines ? SheetSupplies::Kind::Lines : SheetSupplies::Kind::Pixels;
}

void checkFormat(std::string_view, const std::string& format) {
    if (sheetFormat('.' + format) != format) {
        throw UsageError("--format is bmp, png, svg or pdf");
    }
}

SheetOptions sheetOptionsOf(const Options& options, KeptSheetParts& kept) {
    SheetOptions asked = sheetOptionsOf(options);
    asked.kept = &kept;
    return asked;
}

/// The name of a ship's sheet, without its ending: that of its file. A code has none, and its sheet
/// gets the ship's.
fs::path sheetName(const std::string& fileOrCode) {
    if (!isDesignCode(fileOrCode)) {
        return nativePath(fileOrCode).stem();
    }
    try {
        return nativePath(
            fileNameOf(valueIn(readShip(fileOrCode).text, ShipKey::ShipName).value_or("")));
    } catch (const FileError&) {
        return "Unnamed";  // it does not load either
    }
}

/// Where the sheet of each ship goes.
class SheetFiles {
public:
    explicit SheetFiles(const Options& options) : m_out(nativePath(options.value(outOption.name))) {
        if (sheetOut(options) == SheetOut::File) {
            m_files.push_back({m_out});
            return;
        }
        if (!m_out.empty()) {
            makeFolder(m_out);
        }
        ResultFiles taken;
        for (const std::string& ship : options.words) {
            const fs::path file = m_out / sheetName(ship).concat('.' + options.value("--format"));
            m_files.push_back({file, taken.takenBy(file, ship) != nullptr});
        }
    }

    /// The file of a ship. Throws Error if it is that of a ship before it.
    const fs::path& of(std::size_t index) const {
        const auto& [file, isTaken] = m_files[index];
        if (isTaken) {
            throw Error("another ship's sheet goes to " + shownText(pathText(file)));
        }
        return file;
    }

private:
    struct SheetFile {
        fs::path file;
        bool isTaken = false;  ///< by a ship before
    };

    fs::path m_out;
    std::vector<SheetFile> m_files;
};

std::string formatOf(const fs::path& file) {
    return sheetFormat(pathText(file)).value_or("bmp");
}

/// The sheet of a ship of the command line, for pages.
VectorSheet sheetFor(const Options& options, ShipOnScreen& screen, const SheetTools& tools) {
    VectorSheet sheet = recordedSheet(screen, tools, options.value("--map"));
    sheet.date = documentDate(nativePath(screen.ship().origin));
    return sheet;
}

int drawFiles(const Options& options, const SheetTools& tools) {
    const SheetFiles files(options);
    KeptSheetParts kept;
    KeptSvgParts parts;
    const SheetOptions pages = sheetOptionsOf(options, kept);
    const auto bytesOf = [&](ShipOnScreen& screen, const std::string& format) {
        if (format == "svg" || format == "pdf") {
            std::vector<VectorSheet> sheets;
            sheets.push_back(sheetFor(options, screen, tools));
            const PageDocument document = sheetDocument(sheets, pages);
            return format == "svg" ? svgFile(document, tools.encoder, &parts) : pdfFile(document);
        }
        const Raster sheet = drawnSheet(screen, tools, options.value("--map"));
        std::string bytes = tools.encoder.encode(sheet, format);
        return format == "png" ? withShip(bytes, screen.ship().shipFile()) : std::move(bytes);
    };
    return forEachShip(options, RefusedLines::AsComplaints,
                       [&](std::size_t index, ShipOnScreen& screen) {
                           const fs::path& file = files.of(index);
                           saveResult(file, bytesOf(screen, formatOf(file)));
                           return std::string();
                       });
}

int drawDocument(const Options& options, const SheetTools& tools) {
    std::vector<std::optional<VectorSheet>> drawn(options.words.size());
    const int status = forEachShip(options, RefusedLines::AsComplaints,
                                   [&](std::size_t index, ShipOnScreen& screen) {
                                       drawn[index] = sheetFor(options, screen, tools);
                                       return std::string();
                                   });
    std::vector<VectorSheet> sheets;
    for (std::optional<VectorSheet>& sheet : drawn) {
        if (sheet) {
            sheets.push_back(std::move(*sheet));
        }
    }
    if (!sheets.empty()) {
        KeptSheetParts kept;
        saveResult(nativePath(options.value(outOption.name)),
                   pdfFile(sheetDocument(sheets, sheetOptionsOf(options, kept))));
    }
    return status;
}

int runSheet(const Options& options) {
    const bool isDocument = sheetOut(options) == SheetOut::Document;
    int status = Done;
    SheetSupplies supplies(options, options.words.size(), kindOf(options), status);
    const int drawn =
        isDocument ? drawDocument(options, supplies.tools) : drawFiles(options, supplies.tools);
    return std::max(status, drawn);
}

}  // namespace

constexpr OptionRow sheetOptions[] = {
    {.name = "--map",
     .value = "NAME",
     .help = "The map to draw on, by default the one that fits best"},
    outOption,
    {.name = "--format",
     .value = "bmp|png|svg|pdf",
     .help = "What a folder gets of each ship",
     .byDefault = "bmp",
     .check = checkFormat},
    paperOption,
    perPageOption,
    plainOption,
};

extern const CommandRow sheetCommand = {
    .name = "sheet",
    .words = "SHIP... [--map NAME] [-o OUT]",
    .least = 1,
    .most = CommandRow::any,
    .options = sheetOptions,
    .help = "Draw the sheets of ships: OUT is a .bmp, .png, .svg or .pdf file, or a folder",
    .details =
        "The sheet is drawn on the outline of the map NAME, or else of the one that fits the ship "
        "best. A folder is made if it is not there, and gets a file each, a .bmp or what --format "
        "says, named after the ship file or, for a code, after the ship. Maps that cannot be used "
        "are named as errors. A .bmp or .png file is a picture of pixels; no ship above mass 100 "
        "gets one without --map. An .svg or .pdf file has lines and text, sharp at any size, and "
        "says what is aboard and how it is played. A .pdf takes any number of ships; the marks "
        "between small ones that share a page show where to cut. They share one only if all of "
        "their text has room there, four of them mostly with --plain. Its date is that of the ship "
        "file, or SOURCE_DATE_EPOCH of the environment; a code has none. All but a .bmp "
        "carry their ship: other commands take them in the place of its file. The pictures must "
        "have been unpacked.",
    .check = checkSheet,
    .run = runSheet,
};

}  // namespace fleetwright
