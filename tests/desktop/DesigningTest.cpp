// Designs a ship as a player does, from the very first start on.

#include "DesktopTest.h"
#include "runCommand.h"

#include <algorithm>

using namespace fleetwright;

namespace {

constexpr const char* tree = "Catalogue of systems";
constexpr const char* list = "Systems aboard";
constexpr const char* gun = "Guard Gun (All)";
constexpr const char* battery = "Guard Battery (All)";

class DesigningTest : public DesktopTest {
protected:
    /// A system in the tree, or the row of one in the list.
    Element node(const char* name) { return window->get("table cell", name, tree); }
    Element row(const char* name) { return window->get("table cell", name, list); }

    void waitForSelected(const char* part, const char* name) {
        waitFor(std::string(name) + " to be selected",
                [&] { return window->get("table cell", name, part).is(ATSPI_STATE_SELECTED); });
    }
    void waitForAboard(const char* name, const char* amount) {
        waitToShow(std::string("System: ") + name, amount);
    }
};

}  // namespace

TEST_F(DesigningTest, HullMassAndDrives) {
    start();
    EXPECT_TRUE(std::filesystem::is_directory(path("images")));
    struct Step {
        const char *role, *name, *field, *value;
    };
    Announcements announced;
    window->click("radio button", "Merchant");
    waitToShow("Type", "Merchant");
    announced.waitFor("Merchant, Cost " + expectedOf(design).at("Cost"));
    for (const Step& step : {Step{"radio button", "Partial Streamling", "Streamlining", "Partial"},
                             {"push button", "Mass in steps of 50, up", "Mass", "52"},
                             {"push button", "Mass in steps of 10, up", "Mass", "62"},
                             {"push button", "Mass in steps of 2, down", "Mass", "60"},
                             {"radio button", "Thrust 4", "Thrust", "4"},
                             {"radio button", "Tug FTL drive", "FTL", "Tug"}}) {
        window->click(step.role, step.name);
        waitToShow(step.field, step.value);
    }
    click(window->get("radio button", "Lvl 1", "Armor"));
    waitToShow("Armor", "Level 1");

    pointAt(window->get("text", "Cost"));
    const std::string sum = expectedOf(design).at("Cost") + "  = Cost";
    waitFor("what the cost is made of", [&] {
        return std::ranges::any_of(windowsOnScreen(), [&](const Element& each) {
            return each.role() == "tool tip" && each.name().find(sum) != std::string::npos;
        });
    });

    press("F10");
    window->waitUntil("menu item", "New", ATSPI_STATE_SHOWING);
    press("Escape Escape");

    window->click("radio button", "Star Base");
    design = {{"Mass", "60"}, {"Thrust", "0"}, {"Armor", "Level 1"}, {"FTL", "None"}};
    waitToShow("Type", "Starbase");
    window->waitUntil("radio button", "Thrust 4", ATSPI_STATE_ENABLED, false);
}

TEST_F(DesigningTest, SystemsByKeysMouseDragAndAutoMass) {
    start();
    window->click("push button", "Mass in steps of 50, up");
    waitToShow("Mass", "52");
    window->click("push button", "Defenses");
    node("GUARD GUNS");

    // With the keys: BEAM, DEFENSE, GUARD GUNS and its first two.
    window->tabTo("tree", tree);
    press("Home Down Down Right Down Down");
    waitForSelected(tree, battery);
    press("Return");
    waitForAboard(battery, "1");
    press("Up Return");
    waitForSelected(tree, gun);
    waitForAboard(gun, "1");
    press("Menu Down Down Down Down Down Return");
    waitForAboard(gun, "6");

    // With the mouse.
    click(node(battery), leftTwice);
    waitForAboard(battery, "2");
    click(node(battery), rightOnce);
    // What follows at once arrives at the menu that closes, and is meant for the list.
    pressAndClick("Down Down Down Return", row(gun), leftTwiceAtOnce);
    design[std::string("System: ") + battery] = "5";
    waitForAboard(gun, "5");
    window->waitUntilActive();
    press("Delete");
    waitForAboard(gun, "4");

    // Dragged.
    dragOnto(node(gun), window->get("tree", list));
    waitForAboard(gun, "5");
    dragOnto(node(gun), window->get("table column header", "Count", list));
    waitForAboard(gun, "6");
    dragOnto(node(battery), window->get("text", "Cost"));
    dragOnto(node(battery), window->get("tree", tree));
    Announcements announced;
    setThrust("4");                     // what a drop would have done is done before the next act
    announced.waitFor("Cost", "text");  // which is made of something else now
    announced.waitFor("Thrust 4, Cost " + expectedOf(design).at("Cost"));
    window->tabTo("tree", list);
    announced.waitFor(gun, "table cell");  // which is selected there

    // How many are to remain.
    click(row(gun), rightOnce);
    const Window dialog("Adjust Amount");
    press("Left Left");
    dialog.waitForText("slider", "Amount", "4");
    dialog.click("push button", "OK");
    waitForAboard(gun, "4");

    window->choose("Extras", "AutoMass");
    window->waitFor(expectedOf(design, true));
    design["Mass"] = expectedOf(design, true).at("Mass");
    EXPECT_NE(design["Mass"], "52");
    window->waitUntilActive();
    click(node(battery), leftTwice);
    design[std::string("System: ") + battery] = "6";
    window->waitFor(expectedOf(design, true));

    // By its name, from a branch that is closed. What is not found is heard.
    press("ctrl+f");
    type("cloaca");
    announced.waitFor("Find: \"cloaca\" - no match");
    press("ctrl+f");
    type("cloak");
    waitForSelected(tree, "Cloaking Field");
    press("Return");
    design["System: Cloaking Field"] = "1";
    window->waitFor(expectedOf(design, true));
}

TEST_F(DesigningTest, WithoutADisplayTheProgramSaysSoAndEnds) {
    const std::string program = path("FleetWright").string();
    for (const std::string setting :
         {"-u DISPLAY LC_ALL=C", "DISPLAY=:9999", "QT_QPA_PLATFORM=wayland"}) {
        const CommandResult run = runCommand("env " + setting + ' ' + program);
        EXPECT_EQ(run.status, 1);
        EXPECT_TRUE(run.output.starts_with("FleetWright: no display answers")) << run.output;
        EXPECT_EQ(std::ranges::count(run.output, '\n'), 1) << run.output;
        EXPECT_EQ(run.output.find("locale"), std::string::npos) << run.output;
    }
}
