// The windows of those who make maps and look at sheets, as transcripts of what a user does.

#include "SSDMap.h"
#include "SSDMaps.h"
#include "TemporaryFolder.h"
#include "caseFile.h"
#include "fakeServices.h"
#include "formTexts.h"
#include "frmSSDMapCreator.h"
#include "frmSSDView.h"
#include "mapMarks.h"
#include "outlines.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace fleetwright;
namespace fs = std::filesystem;

namespace {

std::string sizeText(int width, int height) {
    return std::to_string(width) + 'x' + std::to_string(height);
}

std::string placeText(const Place& place) {
    return std::to_string(place.left) + ',' + std::to_string(place.top) + ' ' +
           sizeText(place.width, place.height);
}

std::string pictureText(const Raster& picture) {
    std::ptrdiff_t black = 0;
    for (int y = 0; y < picture.height(); ++y) {
        black += std::ranges::count(picture.row(y), Black);
    }
    return sizeText(picture.width(), picture.height()) + ", " + std::to_string(black) + " black";
}

/// Both windows on a desktop that writes down what is shown. Lines end with / in acts and looks.
struct AuthorsWindows {
    AuthorsWindows() { folder.write("maps/bad.map", ""); }

    /// Carries an act out: a word and what it is about.
    void act(const std::string& line) {
        const std::string what = replaced(cut(line).second, "APP", folder.path().string());
        const std::string first = cut(what).first, rest = cut(what).second;
        const std::map<std::string, std::function<void()>> acts = {
            {"picture", [&] { pictures.files[first] = outlineOf(replaced(rest, "/", "\n")); }},
            {"forget", [&] { pictures.files.clear(); }},
            {"choose", [&] { desktop.choice = what; }},
            {"dismiss", [&] { desktop.choice.reset(); }},
            {"clock",
             [&] {
                 clock.step = std::stoi(first);
                 turnLength = std::stoi(rest);
             }},
            {"inTurn", [&] { inTurn[std::stoi(first)] = rest; }},
            {"show", [&] { creator.show(); }},
            {"unload", [&] { creator.unload(); }},
            {"select", [&] { creator.cmdSelect.press(); }},
            {"type", [&] { creator.txtOutput.type(replaced(what, "/", "\r\n")); }},
            {"cancel", [&] { creator.chkCancel.press(); }},
            {"save", [&] { creator.cmdSaveIt.press(); }},
            {"link", [&] { fs::create_hard_link(first, rest); }},
            {"answer", [&] { desktop.answer = what == "no" ? Answer::No : Answer::Yes; }},
            {"scan", [&] { scan(); }},
            {"view", [&] { viewer.show(); }},
            {"pick", [&] { viewer.cmdSelect.press(); }},
            {"close", [&] { viewer.chkCancel.press(); }},
            {"resize", [&] { viewer.Form::resize(std::stoi(first), std::stoi(rest)); }},
            {"paint", [&] { viewer.paint(); }},
            {"minimize", [&] { viewer.setState(WindowState::Minimized); }},
            {"maximize", [&] { viewer.setState(WindowState::Maximized); }},
            {"restore", [&] { viewer.setState(WindowState::Normal); }},
        };
        acts.at(cut(line).first)();
    }
    void scan() {
        turns = 0;
        creator.cmdDoit.press();
        desktop.log += std::to_string(turns) + " turns; ";
        inTurn.clear();
    }
    /// The event loop's: a while passes, and the user acts if he has something to do in this turn.
    void turn() {
        clock.now = static_cast<std::int32_t>(static_cast<std::uint32_t>(clock.now) +
                                              static_cast<std::uint32_t>(turnLength));
        const auto found = inTurn.find(++turns);
        if (found != inTurn.end()) {
            act(found->second);
            const auto seen = look();
            desktop.log += "turn " + std::to_string(turns) + " (" + seen.at("picture") + ", " +
                           seen.at("text") + ", " + seen.at("creator") + "); ";
        }
    }
    std::map<std::string, std::string> look() const {
        std::string text = replaced(creator.txtOutput.text(), "\r\n", "/");
        if (text.size() > 100) {
            text = std::to_string(creator.txtOutput.text().size()) + " bytes";
        }
        std::string takesActs;
        for (const Control* const control : std::initializer_list<const Control*>{
                 &creator.cmdSelect, &creator.cmdDoit, &creator.chkCancel, &creator.cmdSaveIt}) {
            takesActs += control->takesActs() ? ' ' + control->name() : "";
        }
        takesActs +=
            creator.txtOutput.takesActs() && !creator.txtOutput.isLocked() ? " txtOutput" : "";
        std::map<std::string, std::string> seen = {
            {"creator", stateOf(creator, creator.chkCancel) +
                            (creator.isTopmost() ? " topmost" : "") + takesActs},
            {"places",
             placeText(creator.picImage.place()) + ", " + placeText(creator.txtOutput.place())},
            {"picture", pictureText(creator.picImage.picture())},
            {"selected", creator.picImage.toolTip() + ", " + creator.cmdDoit.toolTip()},
            {"text", text},
            {"saved", creator.cmdSaveIt.toolTip()},
            {"creator says", creator.sbCreator.isVisible() ? creator.sbCreator.text() : ""},
            {"viewer", stateOf(viewer, viewer.chkCancel)},
            {"viewed", viewer.picImage.toolTip() + ' ' + pictureText(viewer.picImage.picture())},
            {"not viewed", viewer.cmdSelect.toolTip()},
            {"viewer says", viewer.keys.sbSheet.isVisible() ? viewer.keys.sbSheet.text() : ""},
            {"dialog", desktop.asked.initialFolder.string() + " *" + desktop.asked.extension + ' ' +
                           std::to_string(desktop.asked.filterIndex) +
                           (desktop.asked.fileName.empty() ? "" : ' ' + desktop.asked.fileName)}};
        for (const SSDMaps::Map& map : maps.all()) {
            seen["maps"] += map->sDisplayName + ' ' + std::to_string(map->iMaxMass) + ' ';
        }
        for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
            if (entry.is_regular_file()) {
                const std::string name =
                    entry.path().lexically_relative(folder.path()).generic_string();
                seen["file " + name] = replaced(folder.read(name), "\r\n", "/");
            }
        }
        return seen;
    }
    static std::string stateOf(const Form& form, const CheckBox& cancel) {
        const std::string size = sizeText(form.width(), form.height());
        return (form.isVisible()  ? size
                : form.isLoaded() ? "hidden"
                                  : "closed") +
               (cancel.isTicked() ? " cancelling" : "");
    }

    TemporaryFolder folder;
    ChoosingDesktop desktop;
    PicturesByName pictures;
    SteppingClock clock;
    SSDMaps maps;
    int turns = 0, turnLength = 0;      ///< the turns of a scan, and the milliseconds of each
    std::map<int, std::string> inTurn;  ///< acts by the numbers of the turns
    frmSSDMapCreator creator{{folder.path(), desktop, pictures, clock, [this] { turn(); }, maps}};
    frmSSDView viewer{{folder.path(), desktop, pictures}};
};

}  // namespace

TEST(AuthorsWindows, MakeMapsAndShowSheets) {
    expectCases("authoring/golden/windows.txt", [](const Case& given) {
        AuthorsWindows windows;
        if (given["acts"].empty()) {
            return layoutOf(windows.creator) + layoutOf(windows.viewer);
        }
        return playIn(windows, given["acts"]);
    });
}
