// The texts of "What's This?" and the player's guide against the windows that they tell of.

#include "ControlTexts.h"
#include "DragImage.h"
#include "ImageList.h"
#include "Line.h"
#include "QtPrograms.h"
#include "QtRegistry.h"
#include "Shortcut.h"
#include "formTexts.h"
#include "frmAbout.h"
#include "frmMapper.h"
#include "frmSSDMapCreator.h"
#include "frmSSDView.h"
#include "readFile.h"
#include "testWindow.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// Whether there is nothing to see of a control that could be asked about.
bool isUnseen(const Control& control) {
    const auto* const entry = dynamic_cast<const MenuEntry*>(&control);
    return dynamic_cast<const Timer*>(&control) != nullptr ||
           dynamic_cast<const ImageList*>(&control) != nullptr ||
           dynamic_cast<const DragImage*>(&control) != nullptr ||
           dynamic_cast<const Line*>(&control) != nullptr ||
           dynamic_cast<const Shortcut*>(&control) != nullptr ||
           (entry != nullptr && entry->isSeparator());
}

std::string withoutAccessKey(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

/// Adds what a player reads on the way through menus: "File > Save As".
void addCommands(const Container& menu, const std::string& before, std::set<std::string>& shown) {
    for (const Control* const control : menu.controls()) {
        if (const auto* const entry = dynamic_cast<const MenuEntry*>(control)) {
            const std::string command = before + withoutAccessKey(entry->design().caption);
            shown.insert(command);
            shown.insert(entry->design().shortcut);
            addCommands(*entry, command + " > ", shown);
        }
    }
}

/// All windows of the program but that of the start, in which nobody can ask.
class GuideTest : public testing::Test {
protected:
    /// Does something with each window, while it is there.
    template <typename Task>
    void forEachWindow(const Task& task) {
        m_test.window().show();
        frmAmountSlider amount;
        for (Form* const form : std::initializer_list<Form*>{&m_test.window(), &amount, &m_mapper,
                                                             &m_mapCreator, &m_viewer, &m_about}) {
            task(*form);
        }
        m_test.inDialog = [&](Form& form) {
            task(form);
            form.unload();
        };
        for (Control* const control : m_test.window().mnuDesign.controls()) {
            dynamic_cast<MenuEntry&>(*control).choose();
        }
        m_test.window().windows.mnuExtrasPage.choose();
    }

    TestWindow m_test;
    PicturesByName m_pictures;
    SteppingClock m_clock;
    SSDMaps m_maps;
    SheetImages m_images;
    QtPrograms m_programs;
    QtRegistry m_registry;
    class : public PictureEncoder {
        std::string encode(const Raster&, const std::string&) override { return {}; }
    } m_encoder;
    frmMapper m_mapper{{.appFolder = {},
                        .desktop = m_test.desktop(),
                        .outlines = {},
                        .encoder = m_encoder,
                        .images = m_images,
                        .g_colSSDMaps = m_maps,
                        .lvCurrentWeapons = m_test.window().aboard.lvCurrentWeapons,
                        .ship = {}}};
    frmSSDMapCreator m_mapCreator{{.appFolder = {},
                                   .desktop = m_test.desktop(),
                                   .pictures = m_pictures,
                                   .clock = m_clock,
                                   .eventLoopTurn = {},
                                   .g_colSSDMaps = m_maps}};
    frmSSDView m_viewer{{.appFolder = {}, .desktop = m_test.desktop(), .pictures = m_pictures}};
    frmAbout m_about{{.desktop = m_test.desktop(), .programs = m_programs, .registry = m_registry}};
};

}  // namespace

TEST_F(GuideTest, TellsOfEachControlByTheNameThatItShows) {
    std::set<std::string> told;  // by "form control"
    std::map<std::string, std::string> titles;
    for (const ControlTexts& section : allControlTexts()) {
        for (const ControlText& row : section.rows) {
            std::istringstream names{std::string(row.controls)};
            for (std::string name; names >> name;) {
                const std::string control = std::string(section.form) + ' ' + name;
                EXPECT_TRUE(told.insert(control).second) << control << " has two texts";
                titles[control] = name == row.controls ? row.title : "";
            }
        }
    }
    forEachWindow([&](const Form& form) {
        Controls controls;
        collect(form, controls);
        for (const auto& [name, control] : controls) {
            EXPECT_EQ(whatsThis(*control).empty(), isUnseen(*control))
                << name << " of " << form.name() << ": its row belongs into src/guide";
            const std::string own = form.name() + ' ' + name;
            const std::string array = own.substr(0, own.find_last_not_of("0123456789") + 1);
            const std::string caption = withoutAccessKey(control->design().caption);
            if (titles.contains(own) && !titles[own].empty() && !caption.empty()) {
                EXPECT_EQ(titles[own], caption);
            }
            told.erase(own);
            told.erase(array);
        }
    });
    EXPECT_EQ(told, std::set<std::string>()) << "there are no such controls";
}

TEST_F(GuideTest, NamesOnlyWhatIsOnTheScreen) {
    std::set<std::string> shown;
    forEachWindow([&](const Form& form) { addCommands(form, "", shown); });
    for (const ControlTexts& section : allControlTexts()) {
        for (const ControlText& row : section.rows) {
            shown.insert(std::string(row.title));
        }
    }
    const std::regex bold(R"(\*\*([^*]+)\*\*)");
    for (const auto& page : fs::directory_iterator(SOURCE_FOLDER "/docs/guide")) {
        const std::string text =
            page.path().extension() == ".md" ? readBytes(page.path()) : std::string();
        for (std::sregex_iterator found(text.begin(), text.end(), bold), none; found != none;
             ++found) {
            const std::string name = std::regex_replace((*found)[1].str(), std::regex("\\s+"), " ");
            EXPECT_TRUE(shown.contains(name)) << name << " in " << page.path();
        }
    }
}
