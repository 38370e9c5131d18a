// The pictures and the sound as the build has made them.

#include "Catalogue.h"
#include "SheetPictures.h"
#include "TemporaryFolder.h"
#include "paths.h"
#include "readFile.h"
#include "runCommand.h"

#include <QImageReader>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <map>
#include <numeric>
#include <regex>
#include <set>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

constexpr int side = systemPictureSize;
const std::string images = PICTURES_FOLDER "/images/";

/// A picture, whose format has to be that of its name.
QImage picture(const std::string& path) {
    QImageReader reader(QString::fromStdString(path));
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(QByteArray::fromStdString(fs::path(path).extension().string().substr(1)));
    const QImage image = reader.read();
    EXPECT_FALSE(image.isNull()) << path << ": " << reader.errorString().toStdString();
    return image;
}

/// The pixels, a character each.
std::string pixels(const QImage& image) {
    std::string text;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            EXPECT_TRUE(pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255)) << x << ", " << y;
            text += pixel == qRgb(0, 0, 0) ? '#' : '.';
        }
    }
    return text;
}

auto inkCount(const QImage& image) {
    return std::ranges::count(pixels(image), '#');
}

std::set<std::string> iconsOfTheCatalogue() {
    Catalogue catalogue;
    catalogue.loadWeaps(CATALOGUE_FILE);
    std::set<std::string> names;
    for (const WeapRec& record : catalogue.records()) {
        EXPECT_TRUE(names.emplace(record.icon).second) << record.icon << " is shared";
    }
    return names;
}

/// Everything of the size of a system that a player has to tell apart, by its path.
std::map<std::string, std::string> picturesToTellApart() {
    std::map<std::string, std::string> all;
    for (const char* const folder : {"/images", "/window"}) {
        for (const fs::path& file : listFolder(PICTURES_FOLDER + std::string(folder), ".gif")) {
            const QImage image = picture(file.string());
            if (image.size() == QSize(side, side) && inkCount(image) > 0) {
                all[file.string()] = pixels(image);
            }
        }
    }
    return all;
}

/// How many boxes with white inside stand in each row of a damage track.
std::vector<int> boxesInRows(const QImage& image) {
    const std::string all = pixels(image);
    const auto width = static_cast<std::size_t>(image.width());
    std::vector<int> rows;
    for (std::size_t row = 0; row + 2 * width < all.size(); row += width) {
        int boxes = 0;
        for (std::size_t at = row; at + 2 < row + width; ++at) {
            boxes += all.substr(at, 3) == "###" && all.substr(at + width, 2) == "#.";
        }
        if (boxes > 0) {
            rows.push_back(boxes);
        }
    }
    return rows;
}

}  // namespace

TEST(DeliveredPictures, AreThoseOfCatalogueAndSheetsAndNoTwoNearlyTheSame) {
    std::set<std::string> wanted = iconsOfTheCatalogue();
    // Besides them nine thrusts, two drives, a fire control and seven roots.
    const std::map<std::string, std::string> pictures = picturesToTellApart();
    EXPECT_EQ(pictures.size(), wanted.size() + 9U + 2U + 1U + 7U);
    for (const std::string& name : wanted) {
        // Neither lost nor a blot: something to see, and more white than black.
        const auto ink = inkCount(picture(images + name));
        EXPECT_TRUE(pictures.contains(images + name) && ink >= 90 && ink <= side * side / 2)
            << name << ": " << ink;
    }
    for (auto one = pictures.begin(); one != pictures.end(); ++one) {
        for (auto other = std::next(one); other != pictures.end(); ++other) {
            constexpr int leastDifference = 24;
            EXPECT_GE(std::transform_reduce(one->second.begin(), one->second.end(),
                                            other->second.begin(), 0, std::plus<>(),
                                            std::not_equal_to<>()),
                      leastDifference)
                << one->first << " and " << other->first;
        }
    }

    std::ranges::copy(sheetPictures(), std::inserter(wanted, wanted.end()));
    std::set<std::string> made;
    for (const fs::path& file : listFolder(images, "")) {
        made.insert(file.filename().string());
    }
    EXPECT_EQ(made, wanted);
}

TEST(DeliveredPictures, MountingsHaveTheSameMarkOnAllWeaponsAndMirrorIt) {
    constexpr int markLeft = 18, markTop = 15;
    std::map<std::string, std::set<std::string>> marks;
    for (const std::string& name : iconsOfTheCatalogue()) {
        std::smatch match;
        if (std::regex_search(name, match, std::regex("-(f|p|s|a|fp|fs|fps|all)[.]gif$"))) {
            // Without the last column, so that the disc is in the middle.
            const QImage corner =
                picture(images + name).copy(markLeft, markTop, side - 1 - markLeft, side - markTop);
            marks[match[1]].insert(pixels(corner));
            marks["mirrored " + match[1].str()].insert(pixels(corner.mirrored(true, false)));
        }
    }
    for (const auto& [arc, variants] : marks) {
        EXPECT_EQ(variants.size(), 1U) << arc;
    }
    EXPECT_EQ(marks.size(), 2U * 8U);
    EXPECT_EQ(marks["mirrored p"], marks["s"]);
    EXPECT_EQ(marks["mirrored fp"], marks["fs"]);
}

TEST(DeliveredPictures, TracksHaveABoxForEachPointInEvenRows) {
    for (const TrackSize size : trackSizes) {
        for (int points = 0; points <= mostDamagePoints(size); ++points) {
            const std::string name = damageTrackPicture(size, std::to_string(points));
            SCOPED_TRACE(name);
            const QImage image = picture(images + name);
            const PictureSize wanted = trackPictureSize(size);
            EXPECT_EQ(image.size(), QSize(wanted.width, wanted.height));
            const std::vector<int> rows = boxesInRows(image);
            EXPECT_EQ(std::accumulate(rows.begin(), rows.end(), 0), points);
            EXPECT_EQ(std::ssize(rows), std::min(trackRows(size, points), points));
            EXPECT_TRUE(rows.empty() || rows.front() - rows.back() <= 1);
        }
    }
}

TEST(WindowPictures, AreResourcesInTheirSizes) {
    const auto width = [](const std::string& name) {
        return picture(":/pictures/" + name).width();
    };
    EXPECT_EQ(width("splash-1.gif"), 348);
    EXPECT_EQ(width("splash-2.bmp"), 351);
    EXPECT_EQ(picture(":/pictures/splash-2.bmp").format(), QImage::Format_Indexed8);
    for (const int edge : {16, 24, 32, 48, 64, 256}) {
        EXPECT_EQ(width("icon-" + std::to_string(edge) + ".png"), edge);
    }
    const std::vector<fs::path> sharp = listFolder(PICTURES_FOLDER "/window", "@2x.png");
    for (const fs::path& file : sharp) {
        const std::string name = file.stem().string();
        const std::string plain = name.substr(0, name.size() - 3);
        EXPECT_EQ(width(plain + ".png"), plain == "tray" ? 16 : side) << name;
        EXPECT_EQ(width(name + ".png"), 2 * width(plain + ".png"));
    }
    EXPECT_EQ(sharp.size(), 1U + 7U + 2U + 9U + 2U);  // tray, roots, tree, thrusts, drives
}

TEST(ProgramIcon, HoldsThoseOfTheWindowsForWindows) {
    QImageReader reader(PICTURES_FOLDER "/fleetwright.ico");
    EXPECT_EQ(reader.imageCount(), 6);
    for (const int edge : {16, 24, 32, 48, 64, 256}) {
        EXPECT_EQ(reader.read(), picture(":/pictures/icon-" + std::to_string(edge) + ".png")
                                     .convertToFormat(QImage::Format_ARGB32));
        reader.jumpToNextImage();
    }
}

#ifndef FLEETWRIGHT_SANITIZED  // whose build has just made the pictures
TEST(Renderer, TheSameSourcesGiveTheSameBytesAndTheSplashPicturesShowTheVersion) {
    const std::string differ[] = {"",
                                  PICTURES_FOLDER "/drawings.dat differ\n" PICTURES_FOLDER
                                                  "/window/splash-1.gif differ\n" PICTURES_FOLDER
                                                  "/window/splash-2.bmp differ\n"};
    for (const bool isOtherVersion : {false, true}) {
        const TemporaryFolder again;
        const std::string folder = again.path().string();
        runCommand(RENDERER " " ARTWORK_FOLDER " " CATALOGUE_FILE " " +
                   std::string(isOtherVersion ? "31.4 " : PROGRAM_VERSION " ") + folder);
        const CommandResult differing =
            runCommand("diff -rq " PICTURES_FOLDER " " + folder +
                       " | grep -v '^Only in " PICTURES_FOLDER "' | cut -d ' ' -f 2,5");
        EXPECT_EQ(differing.output, differ[isOtherVersion]);
    }
}
#endif

TEST(Sound, IsAPlainWaveFileOfLessThanASecond) {
    const std::string wave = readBytes(PICTURES_FOLDER "/blaster.wav");
    const auto number = [&](std::size_t at) {
        std::uint32_t value = 0;
        std::memcpy(&value, wave.data() + at, sizeof value);
        return value;
    };
    EXPECT_EQ(wave.substr(0, 4) + wave.substr(8, 8) + wave.substr(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(number(4), wave.size() - 8);
    EXPECT_EQ(number(20), 0x1'0001U);  // plain samples, one channel
    EXPECT_EQ(number(40), wave.size() - 44);
    EXPECT_LT(number(40), number(24) * 2);
}
