#include "Error.h"
#include "SheetPictures.h"
#include "TemporaryFolder.h"
#include "drawing.h"
#include "faults.h"
#include "renderedSets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace fleetwright {
namespace {

constexpr int side = systemPictureSize;

/// Where the mark of a mounting stands.
constexpr int markLeft = 18, markTop = 15;

int differingPixels(const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

/// Everything of the size of a system that a player has to tell apart.
std::map<std::string, QImage> picturesToTellApart() {
    std::map<std::string, QImage> pictures;
    for (const PictureSet* set : {&renderedCatalogue(), &renderedSheet(), &renderedWindow()}) {
        for (const auto& [name, bytes] : *set) {
            if (!name.ends_with(".gif")) {
                continue;
            }
            const QImage image = decode(bytes, "gif");
            if (image.size() == QSize(side, side) && inkCount(image) > 0) {
                pictures[name] = image;
            }
        }
    }
    return pictures;
}

TEST(CataloguePictures, EveryRecordHasAPictureOfItsOwnInSystemSizeAndBlackOnWhite) {
    EXPECT_EQ(renderedCatalogue().size(), deliveredCatalogue().records().size());
    for (const WeapRec& record : deliveredCatalogue().records()) {
        const std::string file(record.icon);
        SCOPED_TRACE(file);
        ASSERT_TRUE(renderedCatalogue().contains(file));
        const QImage image = decode(renderedCatalogue().at(file), "gif");
        ASSERT_EQ(image.size(), QSize(side, side));
        // Neither lost nor a blot: something to see, and more white than black.
        EXPECT_GE(inkCount(image), 90);
        EXPECT_LE(inkCount(image), side * side / 2);
    }
}

TEST(CataloguePictures, NoTwoAreNearlyTheSame) {
    constexpr int leastDifference = 24;
    const std::map<std::string, QImage> pictures = picturesToTellApart();
    // Besides the catalogue: nine thrusts, two drives, a fire control and seven roots.
    EXPECT_EQ(pictures.size(), renderedCatalogue().size() + 9U + 2U + 1U + 7U);
    for (auto first = pictures.begin(); first != pictures.end(); ++first) {
        for (auto second = std::next(first); second != pictures.end(); ++second) {
            EXPECT_GE(differingPixels(first->second, second->second), leastDifference)
                << first->first << " and " << second->first;
        }
    }
}

TEST(CataloguePictures, SymbolsLeaveTheCornerOfTheMountingMarkFree) {
    for (const WeapRec& record : deliveredCatalogue().records()) {
        const PictureName name = readPictureName(std::string(record.icon));
        if (name.arc.empty()) {
            continue;
        }
        const Variant variant = {{"class", name.weaponClass}, {"arc", name.arc}};
        const QImage symbol =
            drawInk({projectArtwork().svg("systems/" + name.source, variant)}, {side, side});
        for (int y = markTop; y < side; ++y) {
            for (int x = markLeft; x < side; ++x) {
                ASSERT_FALSE(isInk(symbol, x, y)) << record.icon << " at " << x << ", " << y;
            }
        }
    }
}

TEST(CataloguePictures, PortAndStarboardMountingsMirrorEachOthersMark) {
    for (const auto& [port, starboard] : {std::pair{"pulse-cannon-2-p.gif", "pulse-cannon-2-s.gif"},
                                          {"pulse-cannon-4-fp.gif", "pulse-cannon-4-fs.gif"}}) {
        const QImage left = decode(renderedCatalogue().at(port), "gif");
        const QImage right = decode(renderedCatalogue().at(starboard), "gif");
        for (int y = markTop; y < side; ++y) {
            for (int x = markLeft; x < side - 1; ++x) {
                EXPECT_EQ(isInk(left, x, y), isInk(right, markLeft + side - 2 - x, y))
                    << port << " at " << x << ", " << y;
            }
        }
    }
}

TEST(CataloguePictures, AFaultySourceIsNamedWithItsLine) {
    const TemporaryFolder temporary;
    const std::filesystem::path& folder = temporary.path();
    std::filesystem::copy_file(projectArtwork().file("lettering.txt"), folder / "lettering.txt");
    const std::map<std::string, std::pair<std::string, std::string>> sources = {
        {"broken", {"<svg>\n<path>\n</svg>\n", "line 3: "}},
        {"path", {"<svg>\n<path d=\"M1 1 L2 x\"/></svg>", "Invalid path data"}},
        {"page", {"<html/>", "line 1: no SVG picture"}},
        {"letter", {"<svg>\n<text>a~b</text></svg>", "line 2: the lettering has no \"~\""}}};
    const Artwork artwork(folder, "1");
    for (const auto& [name, source] : sources) {
        temporary.write(name + ".svg", source.first);
        const std::string fault = fileFaultOf([&, &file = name] { artwork.svg(file); });
        EXPECT_TRUE(fault.starts_with((folder / (name + ".svg: ")).string() + source.second))
            << fault;
    }
    EXPECT_THROW(artwork.svg("absent"), FileError);
    temporary.write("lettering.txt", "A 10 M 0 0 L x 3\n");
    EXPECT_THROW(Artwork(folder, "1"), FileError);
}

}  // namespace
}  // namespace fleetwright
