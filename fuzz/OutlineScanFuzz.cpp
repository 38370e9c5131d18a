// The scan of outlines. An input is a picture: two bytes for its width, then runs of pixels.

#include "OutlineScan.h"
#include "SSDMap.h"
#include "TemporaryFolder.h"
#include "checkMapPlaces.h"
#include "require.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using namespace fleetwright;

namespace {

constexpr const char* name = "input.gif";

constexpr int runLengths[] = {1, 1, 2, 3, 5, 8, 15, 31, 32, 33, 63, 64, 79, 80, 143, 300};

/// All marks, paper, ink, and colours that nearly are one of them.
constexpr std::uint32_t colours[] = {
    Raster::white, Black,    Red,      Green,    Yellow,   Blue,     Magenta,  Cyan,
    0x0000FE,      0xFF0100, 0xFEFE00, 0x010101, 0xFFFFFE, 0x80FF80, 0xFF00FE, 0x7F7F7F};

/// A byte is a colour and the length of its run.
Raster pictureOf(const std::uint8_t* data, std::size_t size) {
    constexpr int mostColumns = 400;
    constexpr std::size_t mostRows = 64;
    if (size < 3) {
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
    Raster picture(width, (static_cast<int>(pixels.size()) + width - 1) / width);
    std::ranges::copy(pixels, &picture.pixel(0, 0));
    return picture;
}

/// A scan with progress after each pixel, which is painted on the very picture, and one with
/// progress after each stretch say what the scan says that shows none.
void checkProgress(const Raster& picture, const std::string& text) {
    Raster painted = picture;
    OutlineScan scan(painted, name);
    std::vector<std::pair<int, int>> passed, stretched;
    require(scan.run([&](int x, int y) {
        passed.emplace_back(x, y);
        if (x < painted.width()) {
            painted.pixel(x, y) = Black;
        }
        return true;
    }),
            "a scan that nobody ends comes to its end");
    requireSame(scan.text(), text, "progress on the picture does not disturb the scan");
    OutlineScan inStretches(picture, name);
    inStretches.runInStretches([&](int x, int y, int count) {
        for (int i = 0; i < count; ++i) {
            stretched.emplace_back(x + i, y);
        }
        return true;
    });
    requireSame(inStretches.text(), text, "stretches do not disturb the scan");
    require(passed == stretched, "stretches go over all pixels");
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    const Raster picture = pictureOf(data, size);
    const std::string text = scanOutline(picture, std::string("C:\\folder/") + name);
    checkProgress(picture, text);
    // What the scan writes is a map, with a place for each mark.
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
    return 0;
}
