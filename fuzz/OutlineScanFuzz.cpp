// The scan of outlines. An input is a picture: two bytes for its width, then runs of pixels.

#include "OutlineScan.h"
#include "SSDMap.h"
#include "TemporaryFolder.h"
#include "checkMapPlaces.h"
#include "require.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

constexpr const char* name = "input.gif";

constexpr std::array<int, 16> runLengths = {1,  1,  2,  3,  5,  8,  15,  31,
                                            32, 33, 63, 64, 79, 80, 143, 300};

/// All marks, paper, ink, and colours that nearly are one of them.
constexpr std::array<std::uint32_t, 16> colours = {
    Raster::white, Black,    Red,      Green,    Yellow,   Blue,     Magenta,  Cyan,
    0x0000FE,      0xFF0100, 0xFEFE00, 0x010101, 0xFFFFFE, 0x80FF80, 0xFF00FE, 0x7F7F7F};

/// A byte is a colour and the length of its run.
Raster pictureOf(const std::uint8_t* data, std::size_t size) {
    constexpr int mostColumns = 400;
    constexpr std::size_t mostRows = 64;
    if (size < 2) {
        return {};
    }
    const int width = 1 + (data[0] | data[1] << 8) % mostColumns;
    std::vector<std::uint32_t> pixels;
    const auto most = static_cast<std::size_t>(width) * mostRows;
    for (std::size_t i = 2; i < size && pixels.size() < most; ++i) {
        pixels.insert(pixels.end(), static_cast<std::size_t>(runLengths[data[i] >> 4]),
                      colours[data[i] & 15]);
    }
    pixels.resize(std::min(pixels.size(), most));
    const int rows = (static_cast<int>(pixels.size()) + width - 1) / width;
    Raster picture(width, rows);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const int place = static_cast<int>(i);
        picture.pixel(place % width, place / width) = pixels[i];
    }
    return picture;
}

char arcOf(const Raster& picture, int x, int y) {
    if (x + 1 < picture.width()) {
        switch (picture.pixel(x + 1, y)) {
        case Red:
            return 'F';
        case Blue:
            return 'P';
        case Green:
            return 'S';
        case Cyan:
            return 'A';
        case Magenta:
            return 'B';
        default:
            break;
        }
    }
    if (y <= picture.height() / 3) {
        return 'F';
    }
    if (x <= picture.width() / 3) {
        return 'P';
    }
    if (x >= picture.width() / 3 * 2) {
        return 'S';
    }
    return y >= picture.height() / 3 * 2 ? 'A' : 'B';
}

/// What the marks of a picture say, pixel by pixel and without any haste.
struct PlainScan {
    std::string text = std::string("IMAGE: ") + name + "\r\n";
    std::vector<std::pair<int, int>> passed;  // the place after each pixel
    int marks = 0;

    explicit PlainScan(const Raster& picture) {
        int run = -1;  // below 0 where nothing is measured
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const std::uint32_t colour = picture.pixel(x, y);
                if (run >= 0 && colour == Black) {
                    ++run;
                } else if (run >= 0) {
                    endRun(run);
                    run = -1;
                }
                takeMark(picture, x, y);
                run = colour == Magenta ? 1 : run;
                x += colour == Yellow ? 1 : 0;
                passed.emplace_back(x, y);
            }
        }
    }

private:
    void endRun(int length) {
        if (length == 64 || length == 80 || length == 144) {
            text += std::string("SIZE: ") +
                    (length == 64   ? "18"
                     : length == 80 ? "36"
                                    : "100") +
                    "\r\n";
        }
    }

    void takeMark(const Raster& picture, int x, int y) {
        const char* key = nullptr;
        switch (picture.pixel(x, y)) {
        case Red:
            key = "FIRECON";
            break;
        case Green:
            key = "THRUST";
            break;
        case Yellow:
            key = "WEAP";
            break;
        case Blue:
            key = "DCP";
            break;
        case Magenta:
            key = "DAMROW";
            break;
        case Cyan:
            key = "FTL";
            break;
        default:
            return;
        }
        ++marks;
        text += std::string(key) + ": (" + std::to_string(x) + ',' + std::to_string(y);
        if (picture.pixel(x, y) == Yellow) {
            text += std::string(",") + arcOf(picture, x, y);
        }
        text += ")\r\n";
    }
};

/// The scan says what the marks say, and goes over the places that it should, while its progress
/// is painted on the very picture.
void checkScan(const Raster& picture, const PlainScan& plain) {
    requireSame(scanOutline(picture, std::string("C:\\folder/") + name), plain.text,
                "the scan says what the marks say");
    Raster painted = picture;
    OutlineScan scan(painted, name);
    std::vector<std::pair<int, int>> passed;
    const bool isWhole = scan.run([&](int x, int y) {
        passed.emplace_back(x, y);
        if (x < painted.width()) {
            painted.pixel(x, y) = Black;
        }
        return true;
    });
    require(isWhole, "a scan that nobody ends comes to its end");
    requireSame(scan.text(), plain.text, "progress on the picture does not disturb the scan");
    require(passed == plain.passed, "the scan calls after each pixel");
}

/// A scan that is ended stops there and says so.
void checkCancel(const Raster& picture, std::size_t last) {
    OutlineScan scan(picture, name);
    std::size_t calls = 0;
    const bool isWhole = scan.run([&](int, int) { return ++calls < last; });
    require(!isWhole && calls == last, "a scan ends where it is told to");
    require(scan.text() == "Operation Cancelled", "a scan that was ended says so");
}

/// What the scan writes is a map, with a place for each mark.
void checkMap(const Raster& picture, const PlainScan& plain, const TemporaryFolder& folder) {
    const std::string contents = mapFileContents(plain.text);
    folder.write("maps/input.map", contents);
    SSDMap map(folder.path());
    map.ImageFile("input");
    const MapPlaces places = readMapPlaces(contents);
    require(places.unread.empty() && places.places.size() == static_cast<std::size_t>(plain.marks),
            "each mark is a place of the map");
    checkMapPlaces(places, picture);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const Raster picture = pictureOf(data, size);
    const PlainScan plain(picture);
    checkScan(picture, plain);
    if (!plain.passed.empty()) {
        checkCancel(picture, 1 + size * 37 % plain.passed.size());
    }
    constexpr int mostMarks = 200;  // boxes are compared each with each
    if (plain.marks <= mostMarks) {
        checkMap(picture, plain, folder);
    }
    return 0;
}
