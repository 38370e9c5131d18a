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
#include <utility>
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

/// A place of a picture, column and row.
using Place = std::pair<int, int>;

/// A scan with progress after each pixel, which is painted on the very picture, and one with
/// progress after each stretch say what the scan says that shows none. Gives the number of pixels.
std::size_t checkScan(const Raster& picture, const std::string& text) {
    Raster painted = picture;
    OutlineScan scan(painted, name);
    std::vector<Place> passed;
    const bool isWhole = scan.run([&](int x, int y) {
        passed.emplace_back(x, y);
        if (x < painted.width()) {
            painted.pixel(x, y) = Black;
        }
        return true;
    });
    require(isWhole, "a scan that nobody ends comes to its end");
    requireSame(scan.text(), text, "progress on the picture does not disturb the scan");
    OutlineScan inStretches(picture, name);
    std::vector<Place> stretched;
    inStretches.runInStretches([&](int x, int y, int count) {
        for (int i = 0; i < count; ++i) {
            stretched.emplace_back(x + i, y);
        }
        return true;
    });
    requireSame(inStretches.text(), text, "stretches do not disturb the scan");
    require(passed == stretched, "stretches go over all pixels");
    return passed.size();
}

/// A scan that is ended stops there and says so.
void checkCancel(const Raster& picture, std::size_t last) {
    OutlineScan scan(picture, name);
    std::size_t calls = 0;
    const bool isWhole = scan.run([&](int, int) { return ++calls < last; });
    require(!isWhole && calls == last, "a scan ends where it is told to");
    require(scan.text() == "Operation Cancelled", "a scan that was ended says so");
}

/// Counts the marks pixel by pixel and without any haste; none stands right behind a weapon.
std::size_t marksIn(const Raster& picture) {
    std::size_t marks = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            marks += isMark(picture.pixel(x, y)) ? 1 : 0;
            x += picture.pixel(x, y) == Yellow ? 1 : 0;
        }
    }
    return marks;
}

/// What the scan writes is a map, with a place for each mark.
void checkMap(const Raster& picture, const std::string& text, const TemporaryFolder& folder) {
    const std::string contents = mapFileContents(text);
    folder.write("maps/input.map", contents);
    SSDMap map(folder.path());
    map.ImageFile("input");
    const MapPlaces places = readMapPlaces(contents);
    require(places.unread.empty() && places.places.size() == marksIn(picture),
            "each mark is a place of the map");
    constexpr std::size_t mostMarks = 200;  // boxes are compared each with each
    if (places.places.size() <= mostMarks) {
        checkMapPlaces(places, picture);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const Raster picture = pictureOf(data, size);
    const std::string text = scanOutline(picture, std::string("C:\\folder/") + name);
    const std::size_t pixels = checkScan(picture, text);
    if (pixels > 0) {
        checkCancel(picture, 1 + size * 37 % pixels);
    }
    checkMap(picture, text, folder);
    return 0;
}
