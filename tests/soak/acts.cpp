// What can be done to a control of each kind.

#include "Actor.h"
#include "Button.h"
#include "CheckBox.h"
#include "ComboBox.h"
#include "Shortcut.h"
#include "Slider.h"

namespace fleetwright {

namespace {

/// What is typed.
const std::vector<std::string> texts = {"",          "2",           "40",        "-1",
                                        "7 guns",    "99999999999", "Ship, one", "a: \"",
                                        "\xC3\x9C ", "Ship",        "ship.gif",  "x\t#"};

/// What is pressed in a tree.
const std::vector<std::string> keys = {"g",  "n",  "s",        " ",   "Backspace", "Down",
                                       "Up", "F3", "Shift+F3", "Esc", "Enter"};

template <typename Kind>
Act on(const std::string& name, int weight, const std::function<void(Actor&, Kind&)>& perform) {
    return {name, weight,
            [](const Control* control) { return dynamic_cast<const Kind*>(control) != nullptr; },
            [perform](Actor& actor, Control& control) {
                perform(actor, dynamic_cast<Kind&>(control));
            }};
}

/// Else no run would be long.
bool mayEnd(Actor& actor, const Control& control) {
    return (&control != &actor.main && !control.name().starts_with("mnuExit")) ||
           (actor.mayEnd && actor.choices.oneIn(20));
}

int anyEdge(Actor& me) {
    return me.choices.below(20000);
}

void selectNode(Actor& me, TreeView& tree) {
    tree.select(me.choices.pick(tree.nodes()));
    if (!me.choices.oneIn(4)) {
        tree.click();
    }
}

void dragNode(Actor&, TreeView& tree) {
    tree.moveMouse({.button = LeftButton, .x = 20, .y = 20});
    tree.releaseMouse({.button = LeftButton});
}

void selectRow(Actor& me, ListView& list) {
    if (!list.rows().empty()) {
        const auto row = me.choices.below(static_cast<int>(list.rows().size()));
        list.rowToolTip(list.rows()[static_cast<std::size_t>(row)]);
        list.select(static_cast<std::size_t>(row));
        if (!me.choices.oneIn(4)) {
            list.click();
        }
    }
}

/// Of all entries of menus those that undo and redo are chosen most.
bool isStep(const Control* control) {
    return control->name().starts_with("mnuUndo") || control->name().starts_with("mnuRedo");
}

const std::vector<Act> acts = {
    {"step", 20, isStep, [](auto&, auto& entry) { dynamic_cast<MenuEntry&>(entry).choose(); }},
    on<Form>("close", 1, [](auto& me, auto& form) { mayEnd(me, form) && form.unload(); }),
    on<Form>("minimize", 1,
             [](auto&, auto& form) {
                 if (form.border() != Border::Fixed) {
                     form.setState(WindowState::Minimized);
                 }
             }),
    on<Form>("restore", 2, [](auto&, auto& form) { form.setState(WindowState::Normal); }),
    on<Form>("size", 1,
             [](auto& me, auto& form) {
                 if (form.border() == Border::Sizable) {
                     form.resize(anyEdge(me), anyEdge(me));
                 }
             }),
    on<Form>("move", 1, [](auto& me, auto& form) { form.moveTo(anyEdge(me), anyEdge(me)); }),
    on<Form>("activate", 1, [](auto&, auto& form) { form.activate(), form.paint(); }),
    on<Form>("drop", 1,
             [](auto& me, auto& form) { form.dropFiles({me.anyFile().value_or("nowhere")}); }),
    on<Timer>("tick", 2, [](auto&, auto& timer) { timer.tick(); }),
    on<TrayIcon>("click", 1, [](auto&, auto& icon) { icon.isOn() ? icon.onLeftClick() : void(); }),
    on<TrayIcon>("menu", 1, [](auto&, auto& icon) { icon.isOn() ? icon.onRightClick() : void(); }),
    on<Control>("tool tip", 1, [](auto&, auto& control) { control.toolTip(); }),
    on<Button>("press", 3, [](auto&, auto& button) { button.press(); }),
    on<CheckBox>("press", 3, [](auto&, auto& box) { box.press(); }),
    on<OptionButton>("choose", 3, [](auto&, auto& option) { option.choose(); }),
    on<MenuEntry>("choose", 3,
                  [](auto& me, auto& entry) { mayEnd(me, entry) ? entry.choose() : void(); }),
    on<Shortcut>("press", 3, [](auto&, auto& shortcut) { shortcut.press(); }),
    on<UpDown>("up", 3, [](auto&, auto& arrows) { arrows.pressUp(); }),
    on<UpDown>("down", 3, [](auto&, auto& arrows) { arrows.pressDown(); }),
    on<Slider>("slide", 6,
               [](auto& me, auto& slider) {
                   slider.slide(slider.min() + me.choices.below(slider.max() - slider.min() + 1));
               }),
    on<ComboBox>("type", 3, [](auto& me, auto& box) { box.type(me.choices.pick(texts)); }),
    on<ComboBox>("choose", 6,
                 [](auto& me, auto& box) {
                     box.choose(static_cast<std::size_t>(
                         me.choices.below(static_cast<int>(box.items().size()) + 1)));
                 }),
    on<TextBox>("double-click", 2, [](auto&, auto& box) { box.doubleClick(); }),
    on<TextBox>("Enter", 2, [](auto&, auto& box) { box.pressKey(EnterKey); }),
    on<TextBox>("go on", 2, [](auto&, auto& box) { box.loseFocus(); }),
    on<TextBox>("press", 2,
                [](auto& me, auto& box) {
                    box.pressMouse({.button = me.choices.oneIn(2) ? LeftButton : RightButton});
                }),
    on<TextBox>("type", 4,
                [](auto& me, auto& box) {
                    box.type(me.choices.pick(texts));
                    me.typed[&box] = box.text();
                }),
    on<TreeView>("open or close", 8,
                 [](auto& me, auto& tree) {
                     TreeView::Node& node = me.choices.pick(tree.nodes());
                     tree.nodeToolTip(node);
                     tree.setExpanded(node, !node.isExpanded);
                 }),
    on<TreeView>("right-click", 8,
                 [](auto&, auto& tree) { tree.pressMouse({.button = RightButton}); }),
    on<TreeView>("double-click", 16, [](auto&, auto& tree) { tree.doubleClick(); }),
    on<TreeView>("key", 16, [](auto& me, auto& tree) { tree.pressKey(me.choices.pick(keys)); }),
    on<TreeView>("go on", 2, [](auto&, auto& tree) { tree.loseFocus(); }),
    on<TreeView>("drag", 8, dragNode),
    on<TreeView>("select", 16, selectNode),
    on<ListView>("double-click", 16, [](auto&, auto& list) { list.doubleClick(); }),
    on<ListView>("Delete", 8, [](auto&, auto& list) { list.pressDelete(); }),
    on<ListView>("right-click", 12,
                 [](auto& me, auto& list) {
                     const double x = me.choices.oneIn(2) ? 0 : 1e9;  // or far out
                     list.pressMouse({.button = RightButton, .x = x, .y = 30});
                 }),
    on<ListView>("select", 24, selectRow),
};

}  // namespace

const std::vector<Act>& allActs() {
    return acts;
}

}  // namespace fleetwright
