// Makes every picture and the sound of the program from their sources.

#include "Artwork.h"
#include "Catalogue.h"
#include "Error.h"
#include "PictureSet.h"
#include "Sound.h"
#include "drawingPack.h"
#include "pages.h"
#include "pictureFiles.h"

#include <cstdio>
#include <fstream>

namespace {

using namespace fleetwright;
namespace fs = std::filesystem;

void writeFile(const fs::path& file, const std::string& bytes) {
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
    stream.close();
    if (!stream) {
        throw FileError(file, "cannot be written");
    }
}

/// Writes a set as the whole content of a folder.
void writeSet(const fs::path& folder, const PictureSet& pictures) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    for (const auto& [name, file] : pictures) {
        writeFile(folder / name, file.bytes);
    }
}

/// The list by which the resource compiler builds the window's pictures into the program.
std::string resourceList(const PictureSet& pictures) {
    std::string list = "<RCC><qresource prefix=\"/pictures\">\n";
    for (const auto& [name, file] : pictures) {
        list += "<file>" + name + "</file>\n";
    }
    return list + "</qresource></RCC>\n";
}

void writeContactSheets(const fs::path& folder, const Artwork& artwork,
                        const std::map<std::string, PictureSet>& sets) {
    fs::create_directories(folder);
    for (const auto& [name, pictures] : sets) {
        const fs::path file = folder / (name + ".png");
        writeFile(file, imageFile(contactSheet(pictures, artwork.lettering()), "PNG"));
        std::printf("%s\n", file.string().c_str());
    }
}

void run(char** arguments) {
    const Artwork artwork(arguments[1], arguments[3]);
    Catalogue catalogue;
    catalogue.loadWeaps(arguments[2]);
    const fs::path out = arguments[4];
    PictureSet systems = cataloguePictures(artwork, catalogue);
    const PictureSet sheet = sheetPictureFiles(artwork);
    const PictureSet window = windowPictures(artwork);
    const PictureSet outlines = outlinePictures(artwork);
    if (arguments[5] != nullptr) {
        const fs::path sheets = arguments[5];
        writeContactSheets(
            sheets, artwork,
            {{"systems", systems}, {"sheet", sheet}, {"window", window}, {"outlines", outlines}});
        writeFile(sheets / "map-marks.png", imageFile(marksPicture(artwork), "PNG"));
        return;
    }
    systems.insert(sheet.begin(), sheet.end());
    writeSet(out / "images", systems);
    writeSet(out / "window", window);
    writeSet(out / "shipimages", outlines);
    writeFile(out / "window" / "window.qrc", resourceList(window));
    writeFile(out / "fleetwright.ico", programIconFile(window));
    writeFile(out / "drawings.dat", drawingPack({systems, window, outlines}));
    writeFile(out / "blaster.wav", waveFile(artwork.file("blaster.txt")));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5 && argc != 6) {
        std::fprintf(stderr, "Usage: render-pictures ARTWORK CATALOGUE VERSION OUT [SHEETS]\n"
                             "Makes the pictures in the folder OUT or, with SHEETS, contact "
                             "sheets of them in that folder.\n");
        return 2;
    }
    try {
        run(argv);
    } catch (const FileError& error) {
        std::fprintf(stderr, "%s\n", complaint(error).c_str());
        return 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "render-pictures: %s\n", error.what());
        return 1;
    }
    return 0;
}
