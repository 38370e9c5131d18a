#include "commands.h"

#include "CatalogueCheck.h"
#include "Error.h"
#include "ShipFileCheck.h"
#include "ShipOnScreen.h"
#include "TextFile.h"
#include "capitals.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// The files of a folder with this extension, by name without regard to case.
std::vector<fs::path> listFolder(const fs::path& folder, std::string_view extension) {
    std::vector<fs::path> files;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (toCapitals(entry.path().extension().string()) == extension) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end(), [](const fs::path& a, const fs::path& b) {
        const std::string left = toCapitals(a.filename().string());
        const std::string right = toCapitals(b.filename().string());
        return left != right ? left < right : a < b;
    });
    return files;
}

/// All files of the application folder that the program reads.
std::vector<std::string> deliveredFiles(const fs::path& appFolder) {
    std::vector<std::string> files = {(appFolder / "weaps.dat").string()};
    for (const fs::path& ship : listFolder(appFolder / "ships", ".SHP")) {
        files.push_back(ship.string());
    }
    return files;
}

std::vector<Fault> checkShip(const fs::path& appFolder, const std::string& file) {
    const std::string text = readTextFile(nativePath(file));
    ShipOnScreen screen(appFolder);
    screen.load(file);
    return checkShipFile(text, screen.ship());
}

std::vector<Fault> checkFile(const fs::path& appFolder, const std::string& file) {
    try {
        const std::string extension = toCapitals(nativePath(file).extension().string());
        if (extension == ".SHP") {
            return checkShip(appFolder, file);
        }
        if (extension == ".DAT") {
            return checkCatalogue(readTextFile(nativePath(file)));
        }
        return {{0, "neither a catalogue (.dat) nor a ship file (.shp)"}};
    } catch (const FileError& error) {
        const bool isOwn = error.file() == nativePath(file);
        return {{0, (isOwn ? "" : error.file().string() + " ") + error.what()}};
    }
}

}  // namespace

int runCheck(const Options& options) {
    const std::vector<std::string> files =
        options.files.empty() ? deliveredFiles(options.appFolder) : options.files;
    int status = Done;
    for (const std::string& file : files) {
        for (const Fault& fault : checkFile(options.appFolder, file)) {
            std::printf("%s\n", complaint(file, fault).c_str());
            status = SomeRefused;
        }
    }
    return status;
}

}  // namespace fleetwright
