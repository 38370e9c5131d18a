#include "Button.h"
#include "ComboBox.h"
#include "Form.h"
#include "Frame.h"
#include "ListView.h"
#include "Menu.h"
#include "OptionButton.h"
#include "Slider.h"
#include "TextBox.h"
#include "TreeView.h"
#include "UpDown.h"
#include "controlArray.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

/// A form with two groups of option buttons, one of them in a frame, and a text box.
class TestForm : public Form {
public:
    TestForm() : Form({.name = "form"}) {}

    std::string log;
    Frame frame{*this, {.name = "frame"}};
    std::array<OptionButton, 3> options = controlArray<OptionButton, 3>([this](int index) {
        return OptionButton(frame, {.name = "option", .isOn = index == 0},
                            [this, index] { log += std::to_string(index); });
    });
    OptionButton other{*this, {.name = "other", .isOn = true}, [this] { log += "other"; }};
    TextBox text{*this, {.name = "text", .text = "a"}, [this] { log += '<' + text.text() + '>'; }};
    Button button{*this, {.name = "button"}, [this] { log += "press"; }};
    bool keeps = false;

protected:
    void Form_Load() override { log += "load "; }
    void Form_Unload(bool& cancel) override {
        log += "unload ";
        cancel = keeps;
    }
};

}  // namespace

TEST(Controls, OptionButtonsExcludeEachOtherInTheirContainer) {
    TestForm form;
    form.options[1].setOn();
    form.options[1].setOn();
    EXPECT_EQ(form.log, "1");
    EXPECT_FALSE(form.options[0].isOn());
    EXPECT_TRUE(form.other.isOn());
    // A click that sets another one on: the last one wins, and each was raised once.
    form.options[2].onClick = [&] { form.options[0].setOn(); };
    form.options[2].setOn();
    EXPECT_TRUE(form.options[0].isOn());
    EXPECT_FALSE(form.options[2].isOn());
    EXPECT_EQ(form.log, "10");
}

TEST(Controls, CombosHoldATextBesideTheirList) {
    TestForm form;
    ComboBox combo(form, {.name = "combo", .text = "Selection"});
    combo.addItem("a");
    combo.addItem("b");
    combo.choose(1);  // the form is not shown
    EXPECT_EQ(combo.text(), "Selection");
    form.show();
    combo.choose(1);
    combo.choose(2);
    EXPECT_EQ(combo.text(), "b");
}

TEST(Controls, DisabledHiddenAndLockedOnesTakeNoActs) {
    TestForm form;
    form.button.press();
    EXPECT_EQ(form.log, "");
    form.show();
    form.log.clear();
    form.button.press();
    form.text.type("x");
    form.options[1].choose();
    EXPECT_EQ(form.log, "press<x>1");
    form.log.clear();
    form.text.setLocked(true);
    form.text.type("y");
    form.frame.setEnabled(false);
    form.options[2].choose();
    form.frame.setEnabled(true);
    form.options[2].setVisible(false);
    form.options[2].choose();
    form.button.setEnabled(false);
    form.button.press();
    EXPECT_EQ(form.log, "");
    // Rules change them all the same.
    form.options[2].setOn();
    EXPECT_EQ(form.log, "2");
}

TEST(Controls, FormsLoadOnceAndMayRefuseToGo) {
    TestForm form;
    form.load();
    form.show();
    form.keeps = true;
    EXPECT_FALSE(form.unload());
    EXPECT_TRUE(form.isVisible());
    form.keeps = false;
    EXPECT_TRUE(form.unload());
    EXPECT_FALSE(form.isVisible());
    form.show();
    EXPECT_EQ(form.log, "load unload unload load ");
}

TEST(Controls, TreesRefuseDoubleKeysAndUnknownParents) {
    TestForm form;
    TreeView tree(form, {.name = "tree"});
    tree.add("", "root");
    tree.add("root", "leaf");
    EXPECT_EQ(tree.find("leaf")->parent->key, "root");
    EXPECT_THROW(tree.add("root", "leaf"), std::logic_error);
    EXPECT_THROW(tree.add("none", "x"), std::logic_error);
    EXPECT_EQ(tree.nodes().size(), 2U);
    EXPECT_EQ(tree.selected(), nullptr);
}

TEST(Controls, ListsKeepTheSelectedRowWhenOthersGo) {
    TestForm form;
    ListView list(form, {.name = "list"});
    form.show();
    for (const char* key : {"a", "b", "c"}) {
        list.add(key, key, "1");
    }
    list.select(2);
    list.remove(0);
    EXPECT_EQ(list.selected(), 1U);
    EXPECT_EQ(list.find("c"), 1U);
    list.remove(1);
    EXPECT_EQ(list.selected(), std::nullopt);
    EXPECT_EQ(list.find("c"), std::nullopt);
    list.select(7);
    EXPECT_EQ(list.selected(), std::nullopt);
}

TEST(Controls, ArrowsClickBeyondTheEndsOfTheirPosition) {
    TestForm form;
    form.show();
    form.log.clear();
    UpDown arrows(form, {.name = "arrows"},
                  {.upClick = [&] { form.log += 'u'; },
                   .downClick = [&] { form.log += 'd'; },
                   .change = [&] { form.log += 'c'; }});
    arrows.pressDown();
    arrows.pressUp();
    arrows.pressDown();
    EXPECT_EQ(form.log, "dcucd");
}

TEST(Controls, SlidersStayBetweenTheirEnds) {
    TestForm form;
    form.show();
    int changes = 0;
    Slider slider(form, {.name = "slider"}, [&] { ++changes; });
    slider.setRange(0, 3);
    slider.slide(9);
    slider.slide(3);
    EXPECT_EQ(slider.value(), 3);
    EXPECT_EQ(changes, 1);
}
