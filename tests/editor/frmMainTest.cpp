// The main window as its user meets it: acts, a line each in files of cases, and what they change.

#include "Play.h"

#include "caseFile.h"
#include "forSeeds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace fleetwright;

TEST(FrmMain, ShowsWhatIsDone) {
    for (const char* const file : {"design", "systems", "files", "acts", "sheets", "guide", "find",
                                   "undo", "findings", "compare", "share", "fleet"}) {
        expectCases(std::string("editor/golden/") + file + ".txt", [](const Case& each) {
            return Play(each["catalogue"], each["before"]).run(each["acts"]);
        });
    }
}

// An act that is too large changes nothing, and a file brings back all that was designed.
TEST(FrmMain, ShowsADesignTheSameHoweverItCameAbout) {
    const std::string catalogue =
        std::string(windowCatalogue) + "Titan,2000000000,2000000000,x,HEAVY,F,titan.gif\n";
    const std::vector<std::string> acts = partsOf(
        "optWarship; optMerchant; optQship; optStarBase; optSpaceStation; optQstation; optTug; "
        "optPartStreamline; optFullStreamling; optNoStreamline; optNoArmor0; optNoArmor1; "
        "optNoArmor2; optNone; optNormal; optThrust0; optThrust5; optThrust8; mnuFrigate; "
        "mnuTAnker; mnuFleetCarrier; updwnMass_1 up; updwnMass_1 down; updwnMass_10 up; "
        "updwnMass_5 up; updwnMass_5 down; tvWeapons Gun; tvWeapons Screen; tvWeapons Sponge; "
        "tvWeapons Giant; tvWeapons Titan; tvWeapons double; tvWeapons double; mnuAddWeap3; "
        "mnuAddWeapEx20; lvCurrentWeapons double; lvCurrentWeapons 0",
        "; ");
    // What is not of the design: files, what is selected, and the order in which systems came.
    const auto design = [](Play& play) {
        auto seen = play.look();
        std::erase_if(seen, [](const auto& each) {
            return each.first.find("mnu") == 0 || each.first.find("file") == 0 ||
                   each.first.find("lblWeap") == 0 || each.first == "sbStatus";
        });
        std::vector<std::string> rows =
            partsOf(replaced(seen.extract("lvCurrentWeapons").mapped(), "*", ""), ", ");
        std::sort(rows.begin(), rows.end());
        return std::pair(seen, rows);
    };
    forSeeds([&](std::mt19937& random) {
        Play play(catalogue);
        play.doLine("set saved");
        for (int count = 0; count < 150; ++count) {
            const auto before = design(play);
            play.doLine("set status");
            const int chosen = anyOf(random, 0, static_cast<int>(acts.size()) - 1);
            play.doLine(acts[static_cast<std::size_t>(chosen)]);
            if (play.look()["sbStatus"] == "Number too large") {
                EXPECT_EQ(design(play), before) << acts[static_cast<std::size_t>(chosen)];
            }
        }
        Play other(catalogue);
        other.doLine("write a.shp " + play.shipFile());
        other.doLine("choose a.shp");
        other.doLine("mnuLoad");
        play.doLine("set saved");
        EXPECT_EQ(design(play), design(other));
    });
}
