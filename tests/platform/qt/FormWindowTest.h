#pragma once

#include "Button.h"
#include "CheckBox.h"
#include "ComboBox.h"
#include "Form.h"
#include "FormWindow.h"
#include "Frame.h"
#include "ImageList.h"
#include "Label.h"
#include "ListView.h"
#include "Menu.h"
#include "OptionButton.h"
#include "PictureBox.h"
#include "Shortcut.h"
#include "Slider.h"
#include "StatusBar.h"
#include "TextBox.h"
#include "Timer.h"
#include "TreeView.h"
#include "UpDown.h"

#include <gtest/gtest.h>

#include <QWidget>

#include <numeric>
#include <string>
#include <utility>

namespace fleetwright {

/// A form with one control of each kind.
class AllKinds : public Form {
public:
    AllKinds() : Form({.name = "frmAll", .caption = "All kinds", .width = 9000, .height = 6000}) {
        tree.onDblClick = [this] {
            log += "fit " + (tree.selected() == nullptr ? "none" : tree.selected()->key) + ' ';
        };
        tree.onMouseDown = [this](const MousePress& press) {
            log += "tree" + std::to_string(press.button) + ' ';
        };
        list.onDblClick = [this] { log += "row" + std::to_string(*list.selected()) + ' '; };
        list.onDelete = [this] { log += "away" + std::to_string(*list.selected()) + ' '; };
        mass.onMouseDown = [this](const MousePress& press) {
            log += "mass" + std::to_string(press.button) + ' ';
        };
        name.onKeyPress = [this](int key) {
            log += "key" + std::to_string(key) + ' ';
            return key == EnterKey;
        };
        name.onDblClick = [this] { log += "open "; };
        combo.onEnter = [this] { log += "enter "; };
        onFilesDrop = [this](const std::vector<std::string>& files) {
            log = std::accumulate(files.begin(), files.end(), log);
        };
        tree.onKeyPress = [this](const std::string& key) {
            log += key + ' ';
            return key == "Ü";
        };
        label.askToolTip = [this] { return "asked\n<" + status.text(); };
        tree.nodeToolTip = [](const TreeView::Node& node) { return "node\n<" + node.key; };
        list.rowToolTip = [](const ListView::Row& row) { return "row\n<" + row.key; };
        list.addColumn("Name", 1500);
        list.addColumn("Count", 900);
        tree.add("", "ROOT");
        tree.add("ROOT", "leaf");
    }

    std::string log;
    bool keeps = false;

    Frame frame{*this, {.name = "frame", .place = {150, 150, 3000, 1500}, .caption = "Frame"}};
    Frame bare{*this, {.name = "bare", .place = {6450, 600, 1500, 1500}}};
    Label label{frame, {.name = "label", .place = {150, 300, 900, 300}, .caption = "Label"}};
    OptionButton first{
        frame,
        {.name = "first", .place = {150, 600, 900, 300}, .caption = "1", .isOn = true},
        [this] { log += "first "; }};
    OptionButton second{frame,
                        {.name = "second", .place = {150, 900, 900, 300}, .caption = "2"},
                        [this] { log += "second "; }};
    Frame inner{frame, {.name = "inner", .place = {1500, 300, 1200, 900}, .caption = "Inner"}};
    OptionButton faced{
        inner,
        {.name = "faced", .place = {0, 600, 300, 300}, .isOn = true, .isGraphical = true},
        [this] { log += "faced "; }};
    OptionButton other{inner,
                       {.name = "other", .place = {600, 600, 300, 300}, .isGraphical = true},
                       [this] { log += "other "; }};
    TextBox text{*this, {.name = "text", .place = {3300, 150, 900, 300}}, [this] {
                     log += "text=" + text.text() + ' ';
                 }};
    TextBox lines{*this, {.name = "lines", .place = {6500, 150, 2000, 1500}, .isMultiline = true}};
    PictureBox picture{*this, {.name = "picture", .place = {6500, 1800, 300, 300}}};
    CheckBox tick{*this,
                  {.name = "tick", .place = {6500, 4500, 900, 300}, .caption = "Tick"},
                  [this] { log += tick.isTicked() ? "on " : "off "; }};
    CheckBox down{
        *this,
        {.name = "down", .place = {6500, 5000, 900, 300}, .caption = "Down", .isGraphical = true},
        [this] { log += down.isTicked() ? "down " : "released "; }};
    TextBox name{*this, {.name = "name", .place = {150, 5000, 1500, 300}}};
    TextBox mass{*this, {.name = "mass", .place = {3300, 600, 900, 300}, .isLocked = true}};
    Button button{*this,
                  {.name = "button",
                   .place = {3300, 1050, 900, 300},
                   .caption = "OK",
                   .toolTip = "Tip",
                   .accessibleName = "Spoken",
                   .isDefault = true},
                  [this] { log += "button "; }};
    Button refuse{
        *this,
        {.name = "cancel", .place = {3300, 1400, 900, 300}, .caption = "Cancel", .isCancel = true},
        [this] { log += "cancel "; }};
    UpDown arrows{*this,
                  {.name = "arrows", .place = {4500, 150, 300, 600}, .toolTip = "Spin"},
                  {.upClick = [this] { log += "up "; },
                   .downClick = [this] { log += "down "; },
                   .change = [this] { log += "change "; }}};
    Slider slider{*this, {.name = "slider", .place = {4500, 900, 1500, 300}}, [this] {
                      log += "slider=" + std::to_string(slider.value()) + ' ';
                  }};
    ImageList images{this, {.name = "images"}};
    TreeView tree{*this, {.name = "tree", .place = {150, 1800, 3000, 3000}}, &images};
    ListView list{*this, {.name = "list", .place = {3300, 1800, 3000, 3000}}};
    MenuEntry menu{*this, {.name = "menu", .caption = "Menu"}};
    MenuEntry entry{menu, {.name = "entry", .caption = "Entry"}, [this] {
                        entry.setChecked(!entry.isChecked());
                        log += "entry ";
                    }};
    MenuEntry more{menu, {.name = "more", .caption = "More"}};
    MenuEntry verbatim{
        more,
        {.name = "verbatim", .caption = "Rock & Co", .shortcut = "Ctrl+R", .isVerbatim = true},
        [this] { log += "verbatim "; }};
    Shortcut keys{*this, {.name = "keys", .shortcut = "Ctrl+R", .isEnabled = false}, [this] {
                      log += "keys ";
                  }};
    MenuEntry hiddenMenu{*this, {.name = "hidden", .caption = "Hidden", .isVisible = false}};
    Timer timer{*this, "timer", 10, true, [this] { ++ticks; }};
    ComboBox combo{*this, {.name = "combo", .place = {6450, 150, 1500, 300}}};
    StatusBar status{*this, {.name = "status"}};
    int ticks = 0;

protected:
    void Form_Unload(bool& cancel) override { cancel = keeps; }
    void Form_KeyPress() override { log += "formkey "; }
};

/// Tests of a window with one control of each kind.
class FormWindowTest : public testing::Test {
protected:
    FormWindowTest() {
        form.show();
        window.show();
    }

    template <typename Widget>
    Widget* find(const char* name) {
        return window.findChild<Widget*>(name);
    }

    std::string takeLog() { return std::exchange(form.log, {}); }

    AllKinds form;
    FormWindow window{form};
};

}  // namespace fleetwright
