// The texts of "What's This?" and the player's guide against the windows that they tell of.

#include "ControlTexts.h"
#include "eachWindow.h"
#include "formTexts.h"
#include "readFile.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// Does something with all windows but that of the start, in which nobody can ask.
template <typename Task>
void forEachWindow(const Task& task) {
    Dice dice(1);
    Actor actor(dice);
    forEachWindow(actor, task);
}

/// What a player reads on a control.
std::string captionOf(const Control& control) {
    std::string caption = control.design().caption;
    std::erase(caption, '&');
    return caption;
}

/// Adds the ways through menus, as "File > Save As", and the keys.
void addCommands(const Container& menu, const std::string& before, std::set<std::string>& shown) {
    for (const Control* const control : menu.controls()) {
        if (const auto* const entry = dynamic_cast<const MenuEntry*>(control)) {
            shown.insert({before + captionOf(*entry), entry->design().shortcut});
            addCommands(*entry, before + captionOf(*entry) + " > ", shown);
        }
    }
}

}  // namespace

TEST(Guide, TellsOfEachControlByTheNameThatItShows) {
    std::map<std::string, std::string> titles;  // by "form control"; empty where there are several
    for (const ControlTexts& section : allControlTexts()) {
        for (const ControlText& row : section.rows) {
            std::istringstream names{std::string(row.controls)};
            for (std::string name; names >> name;) {
                titles[std::string(section.form) + ' ' + name] =
                    name == row.controls ? row.title : "";
            }
        }
    }
    // Timers, lists of pictures, pictures on their way, keys, lines.
    const std::regex unseen("(tmr|il|img|key|sc|Line1|mnu(MRU)?Sep).*");
    forEachWindow([&](const Form& form) {
        Controls controls;
        collect(form, controls);
        for (const auto& [name, control] : controls) {
            EXPECT_EQ(whatsThis(*control).empty(), std::regex_match(name, unseen))
                << name << " of " << form.name() << ": its row belongs into src/guide";
            const std::string own = form.name() + ' ' + name;
            if (titles.contains(own) && !titles[own].empty() && !captionOf(*control).empty()) {
                EXPECT_EQ(titles[own], captionOf(*control));
            }
            titles.erase(own);
            titles.erase(own.substr(0, own.find_last_not_of("0123456789") + 1));
        }
    });
    EXPECT_TRUE(titles.empty()) << titles.begin()->first << " is not there";
}

TEST(Guide, NamesOnlyWhatIsOnTheScreen) {
    std::set<std::string> shown;
    forEachWindow([&](const Form& form) { addCommands(form, "", shown); });
    for (const ControlTexts& section : allControlTexts()) {
        for (const ControlText& row : section.rows) {
            shown.insert(std::string(row.title));
        }
    }
    const std::regex bold(R"(\*\*([^*]+)\*\*)"), blanks("\\s+");
    for (const auto& page : fs::directory_iterator(SOURCE_FOLDER "/docs/guide")) {
        const std::string text = page.path().extension() == ".md" ? readBytes(page.path()) : "";
        for (std::sregex_iterator found(text.begin(), text.end(), bold), none; found != none;
             ++found) {
            const std::string name = std::regex_replace((*found)[1].str(), blanks, " ");
            EXPECT_TRUE(shown.contains(name)) << name << " in " << page.path();
        }
    }
}
