#include "frmMapper.h"

#include "Error.h"
#include "SheetPictures.h"
#include "caseFile.h"
#include "fakeServices.h"
#include "paths.h"
#include "sheetWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t outlineColour = 14;

/// The window on a desktop that writes down what is shown, with outlines and pictures in memory.
struct Mapper : PictureEncoder {
    Mapper() {
        systems.add("F", "F", "1");
        const std::string points = "WEAP: (3,8,F)\nWEAP: (10,8,P)\nWEAP: (17,8,S)\nDCP: (3,15)\n"
                                   "FIRECON: (30,2)\nDAMROW: (3,2)\nFTL: (30,8)\nTHRUST: (30,14)\n";
        for (const auto& [name, head] : {std::pair("Small", "SIZE: 10\nIMAGE: SHIP.BMP\n"),
                                         {"Wide", "SIZE: 100\nIMAGE: WIDE.BMP\n"},
                                         {"Light", "SIZE: 4\nIMAGE: ship.bmp\n"},
                                         {"Bare", "SIZE: 10\n"}}) {
            folder.write(std::string("maps/") + name + ".map", head + points);
        }
        outline("SHIP") = Raster(400, 100);
        outline("WIDE") = Raster(2185, 50);
        maps = loadMaps(folder.path()).maps;
    }

    /// Carries an act out: a word and what it is about.
    void act(const std::string& line) {
        const std::size_t end = std::min(line.find(' '), line.size());
        const std::string what = line.substr(std::min(end + 1, line.size()));
        int width = 0, height = 0;
        std::sscanf(what.c_str(), "%d %d", &width, &height);
        const std::map<std::string, std::function<void()>> acts = {
            {"show", [&] { window.show(); }},
            {"unload", [&] { window.unload(); }},
            {"paint", [&] { window.paint(); }},
            {"activate", [&] { window.activate(); }},
            {"add",
             [&] {
                 const std::size_t colon = what.find(": ");
                 systems.add(what.substr(0, colon), "", what.substr(colon + 2));
             }},
            {"maximize", [&] { window.setState(WindowState::Maximized); }},
            {"restore", [&] { window.setState(WindowState::Normal); }},
            {"resize", [&] { window.resize(width, height); }},
            {"outline", [&] { outline("SHIP") = box(width, height, outlineColour); }},
            {"forget", [&] { pictures.files.clear(); }},
            {"forgetLater",
             [&] { gone = window.RepaintWanted.connect([this] { pictures.files.clear(); }); }},
            {"parties", [&] { parties = what; }},
            {"name", [&] { shipName = what; }},
            {"mass",
             [&] {
                 ship->mass(std::stoi(what));
                 window.followDesign();
             }},
            {"carry",
             [&] {
                 const std::size_t colon = what.find(": ");
                 const std::string system = what.substr(0, colon);
                 systems.clear();
                 systems.add(system, system, what.substr(colon + 2));
             }},
            {"choose", [&] { window.cboMapSelection.type(what); }},
            {"draw", [&] { window.cmdDrawIt.press(); }},
            {"file", [&] { desktop.choice = (folder.path() / nativePath(what)).string(); }},
            {"save", [&] { window.cmdSave.press(); }},
            {"link", [&] { fs::create_hard_link(desktop.choice.value(), folder.path() / what); }},
            {"press",
             [&] { (what == "P" ? window.keys.keyPrint : window.keys.keyExport).press(); }},
            {"answer", [&] { desktop.answer = what == "no" ? Answer::No : Answer::Yes; }},
        };
        acts.at(line.substr(0, end))();
    }
    /// What the window shows, what the last dialog was about, and the files that were saved.
    std::map<std::string, std::string> look() const {
        const auto size = [](int width, int height) {
            return std::to_string(width) + 'x' + std::to_string(height);
        };
        const Raster& sheet = window.picSSD.picture();
        const Place& box = window.picSSD.place();
        const std::string& remedy = window.cmdDrawIt.toolTip();
        // Where the damage track covers the outline.
        const bool isCovered = sheet.width() > 4 && sheet.height() > 5;
        std::map<std::string, std::string> seen = {
            {"sheet", size(sheet.width(), sheet.height())},
            {"colour", isCovered ? std::to_string(sheet.pixel(4, 5)) : ""},
            {"box", size(box.width, box.height)},
            {"window", window.isVisible() ? size(window.width(), window.height()) : "closed"},
            {"maximized", window.state() == WindowState::Maximized ? "yes" : "no"},
            {"buttons", std::string(window.cmdDrawIt.isEnabled() ? "draw " : "") +
                            (window.cmdSave.isEnabled() ? "save" : "")},
            {"fault", window.lastFault()},
            {"maps", ""},
            {"tip", window.cboMapSelection.toolTip()},
            {"note", !window.lblOther.isVisible()                    ? ""
                     : remedy != window.lblOther.toolTip()           ? "with another tool tip"
                     : remedy.starts_with(window.lblOther.caption()) ? remedy
                                                                     : "with another remedy"},
            {"said", window.keys.sbSheet.isVisible() ? window.keys.sbSheet.text() : ""},
            {"dialog", desktop.asked.initialFolder.string() + ' ' + desktop.asked.fileName + " *" +
                           desktop.asked.extension + ' ' +
                           std::to_string(desktop.asked.filterIndex)}};
        for (const std::string& map : window.cboMapSelection.items()) {
            seen["maps"] += map + ' ';
        }
        for (const fs::directory_entry& entry : fs::directory_iterator(folder.path())) {
            const std::string name = entry.path().filename().string();
            seen["file " + name] = entry.is_regular_file() ? folder.read(name) : "a folder";
        }
        return seen;
    }
    Raster& outline(const std::string& name) {
        return pictures.files[(folder.path() / "shipimages" / (name + ".BMP")).string()];
    }
    std::string encode(const Raster& picture, const std::string& format) override {
        return format + ' ' + std::to_string(picture.width()) + 'x' +
               std::to_string(picture.height());
    }

    TemporaryFolder folder;
    ShipYard yard{arcCatalogue};
    std::unique_ptr<ShipClass> ship = yard.loaded("Mass: 10\nArmor: Level 2\n");
    Form main{{.name = "main"}};
    ListView systems{main, {.name = "systems"}};
    std::string parties = "1", shipName = "Magpie";
    SSDMaps maps;
    ChoosingDesktop desktop;
    PicturesByName pictures;
    Connection gone;
    const Raster blank = box(5, 5, Raster::white), coloured = box(5, 5, 22);
    const SheetImages images{[](std::string_view name) {
                                 return box(name.starts_with("escort") ? 20 : 6, 4,
                                            name.starts_with('s') ? 18 : 5);
                             },
                             [this](std::string_view name) -> const Raster& {
                                 return name == blankPictureKey ? blank : coloured;
                             }};
    frmMapper window{{folder.path(), desktop, outlinesIn(pictures), *this, images, maps, systems,
                      [this] {
                          const std::string cost = std::to_string(ship->g_lCost);
                          return SheetShip{"5", parties, "1", shipName, "Åsa", cost, *ship};
                      },
                      [this](const SSDMap& map, const auto& aboard, const Raster& sheet) {
                          const std::string drawn = map.sDisplayName + aboard.at(0).subItem + ' ' +
                                                    std::to_string(sheet.height()) + "; ";
                          return SheetActs{[=, this] { desktop.log += "print " + drawn; },
                                           [=, this] { window.say("Exported " + drawn); }};
                      },
                      [this](const std::string& text) { desktop.log += "say " + text + "; "; }}};
};

}  // namespace

TEST(Mapper, OffersMapsAndDrawsShowsAndSavesSheets) {
    expectCases("ssd/golden/mapper.txt", [](const Case& given) {
        Mapper mapper;
        return playIn(mapper, given["acts"]);
    });
}

TEST(Mapper, DrawsAndShowsEachSystemAsItComes) {
    Mapper mapper;
    mapper.outline("SHIP") = box(120, 24, 14);
    mapper.act("carry FP: 2");
    mapper.systems.add("Listed", "Listed", "1");
    mapper.parties = "0";
    frmMapper& window = mapper.window;
    window.show();
    std::string seen;
    const Connection repainted = window.RepaintWanted.connect(
        [&] { seen += std::to_string(window.picSSD.picture().height()) + ' '; });
    const Connection painted = window.picSSD.Painted.connect(
        [&](int first, int end) { seen += std::to_string(first - end) + ' '; });
    mapper.act("choose small");
    mapper.act("draw");
    EXPECT_EQ(seen, "-24 24 -24 24 -24 24 -164 ");
    expectCases("ssd/golden/ship.txt",
                [&](const Case&) { return pictureOf(window.picSSD.picture()); });
}
