#include "PictureCache.h"
#include "QtPictureFiles.h"
#include "SheetPictures.h"
#include "ShipOnScreen.h"
#include "TemporaryFolder.h"
#include "fakeServices.h"
#include "frmMain.h"
#include "frmMapper.h"
#include "runTool.h"
#include "sheetShip.h"

#include <gtest/gtest.h>

#include <regex>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

/// A folder with all that sheets need, in colours that are easily told apart.
class SheetTool : public testing::Test {
protected:
    SheetTool() {
        m_folder.write("weaps.dat", "Gun,2 * amount,6 * amount,BEAM,BEAM,FPS,gun.gif\r\n"
                                    "Holds,1,1,SYSTEMS,SYSTEMS,O,gun.gif\r\n"
                                    "Damage Control Party,1,1,SYSTEMS,SYSTEMS,O,party.gif\r\n");
        m_folder.write("good.shp", "Ship Name: Né\nMass: 10\nThrust: 4\nSystem: Gun, 2\n"
                                   "System: Holds, 1\n");
        m_folder.write("plain.shp", "Mass: 4\nSystem: Laser, 1\n");
        m_folder.write("large.shp", "Mass: 40\n");
        m_folder.write("bad.shp", "Thrust: fast\n");
        m_folder.write("maps/b.map", "SIZE: 12\nIMAGE: ship.gif\nDAMROW: (10,120)\n"
                                     "WEAP: (10,10,F)\nWEAP: (50,10,P)\nWEAP: (90,10,A)\n"
                                     "DCP: (10,50)\nDCP: (50,50)\nFIRECON: (90,50)\n"
                                     "FIRECON: (130,50)\nFTL: (10,90)\nTHRUST: (50,90)\n");
        m_folder.write("maps/c.map", "SIZE: 18\nIMAGE: ship.gif\nWEAP: (1,1,F)\nWEAP: (1,1,P)\n"
                                     "WEAP: (1,1,S)\nDCP: (1,1)\nDCP: (1,1)\nFIRECON: (1,1)\n");
        writePicture("shipimages/ship.gif", Raster(200, 160));
        for (const std::string& name : sheetPictures()) {
            if (!name.starts_with("c")) {
                // The case of a file's name does not matter.
                writePicture("images/" + (name == fireControlPicture ? "SsdFc.GIF" : name),
                             box(name.size()));
            }
        }
        writePicture("images/gun.gif", box(20));
        writePicture("images/party.gif", box(21));
    }

    /// The decoder goes by what is in a file, whatever its name.
    void writePicture(const std::string& name, const Raster& picture) const {
        m_folder.write(name, QtPictureFiles().encode(picture, "bmp"));
    }
    static Raster box(std::size_t colour) {
        Raster raster(32, 32);
        for (int y = 1; y < 31; ++y) {
            std::ranges::fill(raster.row(y), static_cast<std::uint32_t>(colour) * 0x0A0B0C);
        }
        return raster;
    }
    /// "status|complaints"
    std::string sheet(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {"--app", ".", "sheet"});
        const ToolRun run = runTool(m_folder.path().string(), std::move(arguments));
        return std::to_string(run.status) + '|' + run.output + run.errors;
    }
    std::string sizeOf(const std::string& name) const {
        const Raster picture = QtPictureFiles().load(m_folder.path() / name);
        return std::to_string(picture.width()) + 'x' + std::to_string(picture.height());
    }
    /// The file that the window saves of a ship, from the main window's own list of pictures.
    std::string savedByWindow(const std::string& ship) const;

    TemporaryFolder m_folder;
};

std::string SheetTool::savedByWindow(const std::string& ship) const {
    ShipOnScreen screen(m_folder.path());
    screen.load((m_folder.path() / ship).string());
    QtPictureFiles pictures;
    ImageList ilWeapons(nullptr, {.name = "ilWeapons"});
    ilWeapons.add("Gun", pictures.load(m_folder.path() / "images/gun.gif"));
    ilWeapons.add("Damage Control Party", pictures.load(m_folder.path() / "images/party.gif"));
    ilWeapons.add("BLANK", Raster(32, 32));
    const SheetImages images = programImages(m_folder.path(), pictures, ilWeapons);
    ChoosingDesktop desktop;
    desktop.choice = (m_folder.path() / "window.bmp").string();
    const SSDMaps maps = loadMaps(m_folder.path());
    frmMapper window({.appFolder = m_folder.path(),
                      .desktop = desktop,
                      .pictures = pictures,
                      .encoder = pictures,
                      .images = images,
                      .g_colSSDMaps = maps,
                      .lvCurrentWeapons = screen.window().aboard.lvCurrentWeapons,
                      .ship = [&] { return sheetShip(screen.window()); }});
    window.show();
    window.cboMapSelection.choose(0);
    window.cmdDrawIt.press();
    window.cmdSave.press();
    return m_folder.read("window.bmp");
}

std::size_t pagesIn(const std::string& pdf) {
    const std::regex page("/Type /Page\\b");
    return static_cast<std::size_t>(
        std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), page), {}));
}

}  // namespace

TEST_F(SheetTool, DrawsWhatTheWindowSaves) {
    EXPECT_EQ(sheet({"good.shp"}), "0|");
    const std::string drawn = m_folder.read("good.bmp");
    EXPECT_EQ(drawn.substr(0, 2), "BM");
    EXPECT_EQ(drawn, savedByWindow("good.shp"));

    EXPECT_EQ(sheet({"good.shp", "--map", "C", "-o", "other.bmp"}), "0|");
    EXPECT_NE(m_folder.read("other.bmp"), drawn);
    EXPECT_EQ(sheet({"good.shp", "-o", "same.PNG"}), "0|");
    EXPECT_EQ(m_folder.read("same.PNG").substr(1, 3), "PNG");
    EXPECT_EQ(sizeOf("same.PNG"), sizeOf("good.bmp"));
}

TEST_F(SheetTool, DrawsEachShipIntoAFolderAndSaysWhatItCannot) {
    std::vector<std::string> ships = {"good.shp", "plain.shp", "bad.shp", "large.shp"};
    fs::create_directory(m_folder.path() / "more");
    fs::copy(m_folder.path() / "plain.shp", m_folder.path() / "more" / "good.shp");
    ships.emplace_back("more/good.shp");
    ships.insert(ships.end(), {"-o", "sheets/here"});
    EXPECT_EQ(sheet(ships), "1|plain.shp:2: unknown system \"Laser\"\n"
                            "bad.shp:1: \"fast\" is no number\n"
                            "large.shp: there is no map that the ship fits on\n"
                            "more/good.shp: another ship's sheet goes to sheets/here/good.bmp\n");
    EXPECT_EQ(m_folder.read("sheets/here/good.bmp"), savedByWindow("good.shp"));
    EXPECT_EQ(m_folder.read("sheets/here/plain.bmp"), savedByWindow("plain.shp"));
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder.path() / "sheets/here"), {}), 2);
}

TEST_F(SheetTool, MakesOneDocumentOfSeveralShips) {
    EXPECT_EQ(sheet({"good.shp", "bad.shp", "plain.shp", "good.shp", "-o", "all.pdf"}),
              "1|bad.shp:1: \"fast\" is no number\nplain.shp:2: unknown system \"Laser\"\n");
    const std::string a4 = m_folder.read("all.pdf");
    EXPECT_EQ(pagesIn(a4), 3U);
    EXPECT_NE(a4.find("/MediaBox [0 0 595"), std::string::npos);
    EXPECT_EQ(sheet({"good.shp", "-o", "letter.pdf", "--paper=letter"}), "0|");
    EXPECT_NE(m_folder.read("letter.pdf").find("/MediaBox [0 0 612"), std::string::npos);
    EXPECT_EQ(sheet({"bad.shp", "-o", "none.pdf"}), "1|bad.shp:1: \"fast\" is no number\n");
    EXPECT_FALSE(fs::exists(m_folder.path() / "none.pdf"));
}

TEST_F(SheetTool, TurnsTheWindowsMessagesIntoComplaints) {
    EXPECT_EQ(sheet({"good.shp", "--map", "none"}).substr(0, 31),
              "1|good.shp: Invalid map file!!!");
    EXPECT_EQ(sheet({"large.shp", "--map", "b"}),
              "1|large.shp: Could not create the SSD! (the map has too few points for the ship's "
              "damage control parties)\n");
    fs::remove(m_folder.path() / "images/thrust4.gif");
    EXPECT_EQ(sheet({"good.shp"}),
              "1|good.shp: Could not create the SSD! (./images/thrust4.gif: cannot be read: No "
              "such file or directory)\n");
    fs::remove(m_folder.path() / "shipimages/ship.gif");
    EXPECT_EQ(sheet({"good.shp"}).substr(0, 39), "1|good.shp: Couldn't load image file!!!");
    EXPECT_FALSE(fs::exists(m_folder.path() / "good.bmp"));
    fs::remove_all(m_folder.path() / "images");
    EXPECT_EQ(sheet({"good.shp"}),
              "1|./images: is not there; fleetwright-cli unpack unpacks the pictures\n");
}

TEST_F(SheetTool, RefusesOutputsThatCannotBeMeant) {
    const std::string tail = " (see fleetwright-cli --help)\n";
    EXPECT_EQ(sheet({"good.shp", "-o", "a.jpeg"}),
              "2|fleetwright-cli: -o: a sheet is a .bmp, .png or .pdf file: a.jpeg" + tail);
    EXPECT_EQ(sheet({"good.shp", "plain.shp", "-o", "a.bmp"}),
              "2|fleetwright-cli: -o: several sheets need a folder or a .pdf file" + tail);
    EXPECT_EQ(sheet({"good.shp", "--paper", "A5"}),
              "2|fleetwright-cli: --paper is A4 or Letter" + tail);
    EXPECT_EQ(sheet({"good.shp", "-o", "none/a.bmp"}),
              "1|good.shp: none/a.bmp: cannot be saved: No such file or directory\n");
    for (const char* const name : {"full.bmp", "full.pdf"}) {
        fs::create_symlink("/dev/full", m_folder.path() / name);
        EXPECT_TRUE(
            sheet({"good.shp", "-o", name})
                .ends_with(std::string(name) + ": cannot be saved: No space left on device\n"));
    }
}
