#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <utility>

using namespace fleetwright;

namespace {

/// A white picture file but for one mark a row, each in the column of its row's number.
std::string outlineFile(int side, const std::vector<std::uint32_t>& marks) {
    Raster picture(side, side);
    for (int i = 0; std::cmp_less(i, marks.size()); ++i) {
        picture.pixel(i, i) = marks[static_cast<std::size_t>(i)];
    }
    return QtPictureFiles().encode(picture, "bmp");
}

class ScanTool : public testing::Test {
protected:
    ScanTool() {
        m_folder.write("one.bmp", outlineFile(9, {0xFF0000, 0xFEFFFF, 0x00FFFF}));
        m_folder.write("two.bmp", outlineFile(9, {0xFFFF00}));
        m_folder.write("sub/one.BMP", outlineFile(5, {}));
        m_folder.write("bad.gif", "GIF89a and no more");
    }

    /// "status|output|errors"
    std::string run(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--app", "nowhere", "scan"});
        const ToolRun run = runTool(m_folder.path().string(), std::move(arguments));
        return std::to_string(run.status) + '|' + run.output + '|' + run.errors;
    }

    TemporaryFolder m_folder;
};

const std::string one = "IMAGE: one.bmp\r\nFIRECON: (0,0)\r\nFTL: (2,2)\r\n";
const std::string two = "IMAGE: two.bmp\r\nWEAP: (0,0,F)\r\n";

}  // namespace

TEST_F(ScanTool, PrintsTheTextsInTheOrderOfTheOutlines) {
    EXPECT_EQ(run({"one.bmp"}), "0|" + one + "|");
    EXPECT_EQ(run({"two.bmp", "none.gif", "sub/one.BMP", "bad.gif", "one.bmp"}),
              "1|" + two + "IMAGE: one.BMP\r\n" + one +
                  "|none.gif: cannot be read: No such file or directory\n"
                  "bad.gif: cannot be read: Unable to read image data\n");
}

TEST_F(ScanTool, WritesOneOutlineToAFileOrIntoAFolder) {
    EXPECT_EQ(run({"one.bmp", "-o", "out.map"}), "0||");
    EXPECT_EQ(m_folder.read("out.map"), one + "\r\n");
    EXPECT_EQ(run({"-o", "sub", "one.bmp"}), "0||");
    EXPECT_EQ(m_folder.read("sub/one.map"), one + "\r\n");
    EXPECT_EQ(run({"-o=new/", "two.bmp"}), "0||");
    EXPECT_EQ(m_folder.read("new/two.map"), two + "\r\n");
    EXPECT_EQ(run({"one.bmp", "-o", "none/out.map"}),
              "1||none/out.map: cannot be saved: No such file or directory\n");
    EXPECT_EQ(run({"bad.gif", "-o", "out.map"}).substr(0, 11), "1||bad.gif:");
    EXPECT_EQ(m_folder.read("out.map"), one + "\r\n") << "a failure has changed the old map";
}

TEST_F(ScanTool, WritesSeveralIntoAFolderAndNoneOverAnother) {
    EXPECT_EQ(run({"one.bmp", "bad.gif", "sub/one.BMP", "two.bmp", "-o", "a/maps"}),
              "1||bad.gif: cannot be read: Unable to read image data\n"
              "sub/one.BMP: the map \"one.map\" is already made from one.bmp\n");
    EXPECT_EQ(m_folder.read("a/maps/one.map"), one + "\r\n");
    EXPECT_EQ(m_folder.read("a/maps/two.map"), two + "\r\n");
    EXPECT_EQ(run({"one.bmp", "two.bmp", "-o", "bad.gif"}),
              "1||bad.gif: cannot be made: Not a directory\n");
    EXPECT_EQ(run({"-o", "x"}).substr(0, 2), "2|");
    EXPECT_EQ(run({"one.bmp", "-o"}).substr(0, 2), "2|");
    EXPECT_EQ(run({"one.bmp", "-o", ""}).substr(0, 2), "2|");
}
