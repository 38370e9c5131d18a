// Design codes as QR codes, read back as from paper.

#include "designQr.h"
#include "designCode.h"
#include "forSeeds.h"
#include "paths.h"
#include "readFile.h"
#include "readQr.h"
#include "text.h"

#include <string>
#include <vector>

using namespace fleetwright;

namespace {

/// A ship file of lines that sample ships have.
std::string anyShip(std::mt19937& random, const std::vector<std::string>& lines) {
    std::string ship;
    for (int i = anyOf(random, 1, 40); i > 0; --i) {
        ship += lines[std::size_t(anyOf(random, 0, int(lines.size()) - 1))] + "\r\n";
    }
    return ship;
}

/// A longer one has no symbol.
constexpr std::size_t longestCode = 419;

}  // namespace

TEST(DesignQr, IsReadFromAnyPlaceOnPaper) {
    std::vector<std::string> lines;
    for (const auto& file : listFolder(SOURCE_FOLDER "/data/ships", ".shp")) {
        const std::string ship = readBytes(file);
        LineReader reader(ship);
        for (std::string_view line; reader.next(line);) {
            lines.emplace_back(line);
        }
    }
    forSeeds([&](std::mt19937& random) {
        for (int count = 0; count < 500 && !testing::Test::HasFailure(); ++count) {
            const std::string code = designCode(anyShip(random, lines));
            const auto drawing = designQr(code);
            ASSERT_EQ(drawing != nullptr, code.size() <= longestCode) << code;
            if (!drawing) {
                continue;
            }
            const double side = drawing->width * qrModule;
            const Box place = {anyOf(random, 0, 9999) / 100.0, anyOf(random, 0, 9999) / 100.0, side,
                               side};
            EXPECT_EQ(readQr(*drawing, place), code);
        }
    });
}

TEST(DesignQr, IsLeftOutForWhatNobodyScans) {
    EXPECT_TRUE(designQr("FW1:" + std::string(longestCode - 4, 'A')));
    EXPECT_FALSE(designQr("FW1:" + std::string(longestCode - 3, 'A')));
}
