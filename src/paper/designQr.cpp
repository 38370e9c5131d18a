#include "designQr.h"

#include "FreeRoom.h"
#include "designCode.h"
#include "pageTexts.h"

#include <qrencode.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

/// A function of the library, since its version 3.2, that its header does not show.
extern "C" QRcode* QRcode_encodeMask(QRinput* input, int mask);

namespace fleetwright {

namespace {

constexpr int quietZone = 4;  // modules, as the standard asks for
constexpr int largestVersion = 12;
constexpr int largestSide = 17 + 4 * largestVersion + 2 * quietZone;
static_assert(largestSide < 100, "coordinates have two digits");
// One of the eight patterns that a symbol may be mixed with, so that it has no large areas. Codes
// are packed, and so as mixed as any. To try all eight would take longer than the rest of a sheet.
constexpr int maskPattern = 3;

using Symbol = std::unique_ptr<QRcode, decltype(&QRcode_free)>;

/// The smallest symbol that can do without a seventh of itself, for folds and pencils; null if
/// that is a large one.
Symbol symbolOf(std::string_view code) {
    const std::unique_ptr<QRinput, decltype(&QRinput_free)> input(QRinput_new2(0, QR_ECLEVEL_M),
                                                                  &QRinput_free);
    if (!input || QRinput_append(input.get(), QR_MODE_AN, static_cast<int>(code.size()),
                                 reinterpret_cast<const unsigned char*>(code.data())) != 0) {
        return {nullptr, &QRcode_free};
    }
    Symbol symbol(QRcode_encodeMask(input.get(), maskPattern), &QRcode_free);
    if (symbol && symbol->version > largestVersion) {
        symbol.reset();
    }
    return symbol;
}

/// A number of up to two digits as text.
struct Coordinate {
    std::array<char, 2> digits;
    std::size_t length;
};
constexpr auto coordinates = [] {
    std::array<Coordinate, largestSide + 1> all{};
    for (std::size_t number = 0; number < all.size(); ++number) {
        const char last = static_cast<char>('0' + number % 10);
        all[number] = number < 10 ? Coordinate{{last, ' '}, 1}
                                  : Coordinate{{static_cast<char>('0' + number / 10), last}, 2};
    }
    return all;
}();

/// Writes a number, and perhaps a character more, and returns where the next text goes.
char* putNumber(char* at, int number) {
    const Coordinate& coordinate = coordinates[static_cast<std::size_t>(number)];
    at[0] = coordinate.digits[0];
    at[1] = coordinate.digits[1];
    return at + coordinate.length;
}

char* putPoint(char* at, char command, int x, int y) {
    *at++ = command;
    at = putNumber(at, x);
    *at++ = ' ';
    return putNumber(at, y);
}

char* putBox(char* at, int left, int top, int right, int bottom) {
    at = putPoint(at, 'M', left, top);
    at = putPoint(at, 'L', right, top);
    at = putPoint(at, 'L', right, bottom);
    at = putPoint(at, 'L', left, bottom);
    *at++ = 'Z';
    return at;
}

/// Its dark modules, a box for each run in a row.
std::string modulesOf(const QRcode& symbol) {
    constexpr std::size_t mostRuns = largestSide / 2,
                          longestBox = sizeof "M00 00L00 00L00 00L00 00Z";
    std::array<char, mostRuns * longestBox> row;
    std::string path;
    path.reserve(std::size_t(symbol.width) * std::size_t(symbol.width) * 8);
    const unsigned char* module = symbol.data;
    const int end = symbol.width + quietZone;
    for (int y = quietZone; y < end; ++y) {
        char* at = row.data();
        int start = -1;  // of the run, if there is one
        for (int x = quietZone; x < end; ++x) {
            const bool isDark = (*module++ & 1) != 0;
            if (isDark && start < 0) {
                start = x;
            } else if (!isDark && start >= 0) {
                at = putBox(at, std::exchange(start, -1), y, x, y + 1);
            }
        }
        if (start >= 0) {
            at = putBox(at, start, y, end, y + 1);
        }
        path.append(row.data(), static_cast<std::size_t>(at - row.data()));
    }
    return path;
}

}  // namespace

std::shared_ptr<const Drawing> designQr(std::string_view code) {
    const Symbol symbol = symbolOf(code);
    if (!symbol) {
        return nullptr;
    }
    const int side = symbol->width + 2 * quietZone;
    const Box ink = {quietZone, quietZone, double(symbol->width), double(symbol->width)};
    return std::make_shared<const Drawing>(
        Drawing{.width = side,
                .height = side,
                .ink = ink,
                .shapes = {{.path = modulesOf(*symbol), .fill = 0x000000, .stroke = {}}}});
}

std::shared_ptr<const Drawing> shipQr(std::string_view shipFile) {
    constexpr std::size_t longestShip =
        4096;  // longer ones hardly have a code that is short enough
    return shipFile.empty() || shipFile.size() > longestShip ? nullptr
                                                             : designQr(designCode(shipFile));
}

bool putShipQr(Page& page, const std::shared_ptr<const Drawing>& code, const FreeRoom& room) {
    const double side = code->width * qrModule;
    const std::optional<Box> free = room.find(side, side + captionRoom);
    if (free) {
        putCaptioned(page, code, {free->x, free->y, side, side}, "DESIGN CODE");
    }
    return free.has_value();
}

}  // namespace fleetwright
