#include "TemporaryFolder.h"
#include "TextFile.h"
#include "renderedSets.h"
#include "runCommand.h"

#include <QFile>
#include <gtest/gtest.h>

#include <filesystem>

namespace fleetwright {
namespace {

namespace fs = std::filesystem;

QImage windowPicture(const std::string& name, const char* format) {
    const auto found = renderedWindow().find(name);
    EXPECT_NE(found, renderedWindow().end()) << name;
    return found == renderedWindow().end() ? QImage() : decode(found->second, format);
}

TEST(WindowPictures, ButtonsAndFacesComeInTwoResolutions) {
    std::vector<std::string> names = {"ftl", "ftltug"};
    for (const std::string name : {"beam", "defense", "heavy", "hangar", "systems", "alien",
                                   "special", "expand-all", "collapse-all"}) {
        names.push_back("button-" + name);
    }
    for (int thrust = 0; thrust <= 8; ++thrust) {
        names.push_back("thrust" + std::to_string(thrust));
    }
    for (const std::string& name : names) {
        EXPECT_EQ(windowPicture(name + ".png", "png").size(), QSize(32, 32)) << name;
        EXPECT_EQ(windowPicture(name + "@2x.png", "png").size(), QSize(64, 64)) << name;
    }
    EXPECT_EQ(inkCount(windowPicture("root-blank.gif", "gif")), 0);
}

TEST(WindowPictures, TheIconComesInAllSizes) {
    for (const int edge : {16, 24, 32, 48, 64, 256}) {
        const QImage icon = windowPicture("icon-" + std::to_string(edge) + ".png", "png");
        EXPECT_EQ(icon.size(), QSize(edge, edge));
        EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << "the corner is not transparent";
        EXPECT_EQ(qAlpha(icon.pixel(edge / 2, edge / 2)), 255);
    }
    EXPECT_EQ(windowPicture("tray.png", "png").size(), QSize(16, 16));
    EXPECT_FALSE(windowPicture("icon.svg", "svg").isNull());
}

TEST(WindowPictures, TheTwoSplashPicturesHaveTheirSizesAndFormats) {
    const QImage first = windowPicture("splash-1.gif", "gif");
    EXPECT_EQ(first.size(), QSize(348, 288));
    const QImage second = windowPicture("splash-2.bmp", "bmp");
    EXPECT_EQ(second.size(), QSize(351, 291));
    EXPECT_EQ(second.format(), QImage::Format_Indexed8);
    EXPECT_GT(second.colorCount(), 64);
}

TEST(WindowPictures, TheSplashPicturesShowTheVersion) {
    const Artwork other(ARTWORK_FOLDER, "31.4");
    const PictureSet changed = windowPictures(other);
    for (const auto& [name, bytes] : renderedWindow()) {
        EXPECT_EQ(changed.at(name) != bytes, name.starts_with("splash-")) << name;
    }
}

TEST(WindowPictures, AreResourcesOfAProgramThatLinksThem) {
    for (const auto& [name, bytes] : renderedWindow()) {
        QFile file(QString::fromStdString(":/pictures/" + name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        EXPECT_EQ(file.readAll().toStdString(), bytes) << name;
    }
}

TEST(Renderer, TheSameSourcesGiveTheSameBytes) {
    const TemporaryFolder folder;
    const fs::path& again = folder.path();
    const CommandResult result = runCommand(
        std::string(RENDERER " " ARTWORK_FOLDER " " CATALOGUE_FILE " " PROGRAM_VERSION " ") +
        again.string());
    ASSERT_EQ(result.status, 0) << result.output;
    int compared = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(again)) {
        if (entry.is_regular_file()) {
            const fs::path built = PICTURES_FOLDER / fs::relative(entry.path(), again);
            EXPECT_EQ(readBytes(entry.path()), readBytes(built)) << built;
            ++compared;
        }
    }
    EXPECT_GT(compared, 400);
}

}  // namespace
}  // namespace fleetwright
