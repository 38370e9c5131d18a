// Designs a ship as a player does, from the very first start on. After every act the window's
// figures are held against those that the command line tool works out for the same design.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace fleetwright;

namespace {

constexpr const char* tree = "Catalogue of systems";
constexpr const char* list = "Systems aboard";
constexpr const char* dialogTitle = "Adjust Amount";
constexpr const char* gun = "Guard Gun (All)";
constexpr const char* battery = "Guard Battery (All)";

/// What the slider of the dialog stands at that asks how many pieces are to remain.
std::string askedAmount(const Window& dialog) {
    return dialog.get("slider", "Amount").text();
}

class DesigningTest : public testing::Test {
protected:
    void SetUp() override {
        program.start();
        window.emplace();
        window->waitFor(design);
    }

    /// A system in the tree, or the row of one in the list.
    Element node(const char* name) { return window->getIn(tree, "table cell", name); }
    Element row(const char* name) { return window->getIn(list, "table cell", name); }

    void selectNode(const char* name) {
        waitFor(std::string(name) + " to be selected",
                [&] { return node(name).is(ATSPI_STATE_SELECTED); });
    }

    RunningProgram program;
    std::optional<MainWindow> window;
    Design design;
};

}  // namespace

TEST_F(DesigningTest, HullMassAndDrives) {
    EXPECT_TRUE(std::filesystem::is_directory(program.folder().path() / "images"));
    window->click("radio button", "Merchant");
    design.type = "Merchant";
    window->waitFor(design);
    window->click("check box", "Thrust 4");
    design.thrust = 4;
    window->waitFor(design);
    click(window->getIn("Armor", "check box", "Lvl 1"));
    design.armor = "Level 1";
    window->waitFor(design);
    window->click("radio button", "Partial Streamling");
    design.streamlining = "Partial";
    window->waitFor(design);
    window->click("push button", "Mass in steps of 50, up");
    window->click("push button", "Mass in steps of 10, up");
    window->click("push button", "Mass in steps of 10, up");
    window->click("push button", "Mass in steps of 2, down");
    design.mass = 70;
    window->waitFor(design);
    window->click("check box", "Tug FTL drive");
    design.ftl = "Tug";
    window->waitFor(design);

    pointAt(window->get("text", "Cost"));
    const std::string sum = expectedOf(design).at("Cost") + "  = Cost";
    waitFor("what the cost is made of", [&] {
        const std::vector<Element> windows = windowsOnScreen();
        return std::any_of(windows.begin(), windows.end(), [&](const Element& each) {
            return each.role() == "tool tip" && each.name().find(sum) != std::string::npos;
        });
    });

    window->click("radio button", "Star Base");
    design = {.mass = 70, .thrust = 0, .type = "Starbase", .armor = "Level 1", .ftl = "None"};
    window->waitFor(design);
    waitFor("a base to have no thrust buttons",
            [&] { return !window->get("check box", "Thrust 4").is(ATSPI_STATE_ENABLED); });
}

TEST_F(DesigningTest, SystemsAreFittedAndTakenAway) {
    window->click("push button", "Mass in steps of 50, up");
    design.mass = 52;
    window->waitFor(design);
    window->click("push button", "Defenses");
    node("GUARD GUNS");

    // With the keys: BEAM, DEFENSE, GUARD GUNS and its first two.
    window->tabTo("tree", tree);
    press({"Home", "Down", "Down", "Right", "Down", "Down"});
    selectNode(battery);
    press({"Return"});
    design.systems[battery] = 1;
    window->waitFor(design);
    press({"Up", "Return"});
    selectNode(gun);
    design.systems[gun] = 1;
    window->waitFor(design);
    press({"Menu", "Down", "Down", "Down", "Down", "Down", "Return"});
    design.systems[gun] += 5;
    window->waitFor(design);

    // With the mouse.
    doubleClick(node(battery));
    design.systems[battery] += 1;
    window->waitFor(design);
    rightClick(node(battery));
    press({"Down", "Down", "Down", "Return"});
    design.systems[battery] += 3;
    window->waitFor(design);
    // A click of its own first: right behind the menu, the first one may only close it.
    click(row(gun));
    waitFor("the row to be selected", [&] { return row(gun).is(ATSPI_STATE_SELECTED); });
    doubleClick(row(gun));
    design.systems[gun] -= 1;
    window->waitFor(design);
    window->waitUntilActive();
    press({"Delete"});
    design.systems[gun] -= 1;
    window->waitFor(design);
}

TEST_F(DesigningTest, AmountDialogAndAutoMass) {
    window->click("push button", "Defenses");
    doubleClick(node("GUARD GUNS"));  // opens it
    click(node(gun));
    selectNode(gun);
    press({"Menu", "Up", "Up", "Return"});  // before the last: X10
    design.systems[gun] = 10;
    window->waitFor(design);

    click(row(gun));
    rightClick(row(gun));
    const Window dialog(dialogTitle);
    press({"Left", "Left"});
    waitFor("two steps on the slider", [&] { return askedAmount(dialog) == "8"; });
    // From the handle, at 8 of 10, to the left.
    const Rectangle slider = restingPlace(dialog.get("slider", "Amount"));
    const int middle = slider.top + slider.height / 2;
    drag({slider.left + slider.width * 8 / 10 - 3, middle},
         {slider.left + slider.width * 3 / 10, middle}, "the slider to be dragged",
         [&] { return askedAmount(dialog) == "3"; });
    dialog.click("push button", "OK");
    design.systems[gun] = 3;
    window->waitFor(design);

    // With the keys, and without a change.
    window->waitUntilActive();
    press({"Menu"});
    dialog.waitUntilActive();
    press({"Home"});
    waitFor("the slider at its begin", [&] { return askedAmount(dialog) == "0"; });
    press({"Escape"});
    dialog.waitUntilGone();
    window->waitFor(design);

    window->choose("Extras", "AutoMass");
    design.isAutoMass = true;
    window->waitFor(design);
    design.mass = std::stoi(expectedOf(design).at("Mass"));
    EXPECT_GT(design.mass, 2);
    window->waitUntilActive();
    doubleClick(node(battery));
    design.systems[battery] = 1;
    window->waitFor(design);
}

TEST_F(DesigningTest, SystemsAreDraggedAboard) {
    window->click("push button", "Mass in steps of 50, up");
    design.mass = 52;
    window->waitFor(design);
    window->click("push button", "Defenses");
    doubleClick(node("GUARD GUNS"));
    int amount = 0;
    for (const Element& aboard :
         {window->get("tree", list), window->getIn(list, "table column header", "Count")}) {
        dragOnto(node(gun), aboard);
        design.systems[gun] = ++amount;
        window->waitFor(design);
    }
    dragOnto(node(battery), window->get("text", "Cost"));
    dragOnto(node(battery), window->get("tree", tree));
    // What a drop would have done is done before the next act.
    window->click("check box", "Thrust 4");
    design.thrust = 4;
    window->waitFor(design);
}
