#pragma once

// What the monkey finds before it: files, texts to type, pictures, and the controls of a window.

#include "Control.h"
#include "Error.h"
#include "PictureFiles.h"

#include <map>
#include <string>
#include <vector>

namespace fleetwright {

/// Small pictures, those of ships with a few marks.
class Pictures : public PictureFiles, public PictureEncoder {
public:
    Raster load(const std::filesystem::path& file) override {
        if (!file.filename().string().ends_with(".gif")) {
            throw FileError(file, "is no picture");
        }
        constexpr int side = 130;  // so that a scan gives turns
        Raster picture(side, side);
        for (int mark = 0; mark < 20; ++mark) {
            picture.pixel(7 * mark % side, 31 * mark % side) = mark % 2 == 0 ? 0xFF0000 : 0x00FF00;
        }
        return picture;
    }
    Raster builtIn(const std::string& name) override { return load(name); }
    std::string encode(const Raster&, const std::string& format) override { return format; }
};

/// What lies in the application folder beside the catalogue.
inline const std::map<std::string, std::string> files = {
    {"ships/Gun.shp", "Mass: 40\nSystem: Gun, 2\nSystem: Screen, 1\n"},
    {"ships/Cloaked.shp", "Mass: 60\nType: Merchant\nSystem: Cloaking Field, 1\n"},
    {"ships/Base.shp", "Mass: 200\nType: Starbase\nThrust: 4\nFTL: Tug\nStreamlining: Full\n"},
    {"ships/Fast.shp", "Mass: 20\nThrust: 12\nArmor: Level 2\nType: Nonsense\n"},
    {"ships/Refused.shp", "Type: Merchant\nSystem: Gun, 1\nSystem: Cloaking Field, 1\n"},
    {"ships/Unknown.shp", "System: Nothing, 3\nSystem: Gun, 1\n"},
    {"ships/Huge.shp", "Mass: 2147483000\nFTL: None\nThrust: 0\n"},
    {"ships/Great.shp", "Mass: 70000000\nSystem: Ballast, 100\n"},
    {"ships/TooMuch.shp", "System: Gun, 1\nSystem: Giant, 2\n"},
    {"ships/NoNumber.shp", "Mass: 9999999999999\nSystem: Gun, x\n"},
    {"ships/Empty.shp", ""},
    {"ships/Folder.shp/file", ""},
    {"ships/\xC3\x9C.shp", "Ship Name: \xC3\x9C\nMass: 6\n"},
    {"shipimages/ship.gif", ""},
    {"maps/ship.map", "IMAGE: ship.gif\nSIZE: 100\nWEAP: (3,4,F)\nWEAP: (9,9,P)\nDCP: (1,1)\n"},
    {"maps/lost.map", "IMAGE: lost.bmp\nSIZE: 60\nWEAP: (3,4,F)\nWEAP: (5,4,F)\n"},
};
/// Files that are not there.
inline const std::vector<std::string> otherFiles = {
    "ships/None.shp", "nowhere/at all", "a", "new", "ships/new", "ssds/sheet", "maps/made"};
/// What is typed.
inline const std::vector<std::string> texts = {"",          "-1",    "7 guns",    "99999999999",
                                               "Ship, one", "a: \"", "\xC3\x9C ", "Ship",
                                               "ship.gif",  "x\t#"};

/// All controls inside one that a user can act on, those of menus only if they can be opened.
inline std::vector<Control*> leaves(const Container& container) {
    std::vector<Control*> found;
    for (Control* const control : container.controls()) {
        auto* const inner = dynamic_cast<Container*>(control);
        if (inner == nullptr || inner->controls().empty()) {
            found.push_back(control);
        } else if (inner->isVisible()) {
            const std::vector<Control*> below = leaves(*inner);
            found.insert(found.end(), below.begin(), below.end());
        }
    }
    return found;
}

}  // namespace fleetwright
