#include "ProgramImages.h"

#include "Error.h"
#include "ImageList.h"
#include "PictureFiles.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// Remembers which file it was asked for.
class NamingDecoder : public PictureFiles {
public:
    Raster load(const std::filesystem::path& file) override {
        asked = file;
        return {3, 1};
    }
    Raster builtIn(const std::string&) override { return {}; }

    std::filesystem::path asked;
};

}  // namespace

TEST(ProgramImages, AreFilesOfTheFolderAndTheWindowsPictures) {
    const TemporaryFolder folder;
    folder.write("images/SsdFc.GIF", "");
    NamingDecoder decoder;
    ImageList ilWeapons(nullptr, {.name = "ilWeapons"});
    ilWeapons.add("Gun", Raster(7, 1));
    ProgramImages images(folder.path(), decoder, ilWeapons);
    EXPECT_EQ(images.file("ssdfc.gif").width(), 3);
    EXPECT_EQ(decoder.asked, folder.path() / "images" / "SsdFc.GIF");
    images.file("none.gif");
    EXPECT_EQ(decoder.asked, folder.path() / "images" / "none.gif");
    EXPECT_EQ(images.system("Gun").width(), 7);
    EXPECT_THROW(images.system("gun"), Error);
}
