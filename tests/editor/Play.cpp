#include "Play.h"

#include "Error.h"
#include "caseFile.h"
#include "paths.h"
#include "readShip.h"

#include <gtest/gtest.h>

#include <functional>

namespace fleetwright {

namespace fs = std::filesystem;

Play::Play(const std::string& catalogue, const std::string& before)
    : m_test(catalogue.empty() ? windowCatalogue : catalogue) {
    collect(m_window, m_controls);
    collect(m_window.findings.list, m_controls);
    collectCompare();
    collect(m_test.fleet(), m_controls);
    for (const auto& [name, control] : m_controls) {
        m_focused.push_back(control->FocusWanted.connect(
            [this, focused = name] { m_says += "to " + focused + "; "; }));
    }
    fs::create_directory(m_test.folder().path() / "ships");
    m_window.tray.tray1.askAvailable = [this] { return m_hasTray; };
    m_dragged = m_window.drag.imgDrag.DragWanted.connect([this] { m_says += "dragged; "; });
    for (const std::string& line : partsOf(before, "\n")) {
        doLine(line);
    }
    EXPECT_FALSE(m_window.g_bLoaded);
    m_window.show();
    EXPECT_TRUE(m_window.g_bLoaded);
    m_says = m_window.sbStatus.text() + "; ";
    if (before.empty()) {
        m_test.takeLog();
        m_says.clear();
    }
}

std::string Play::run(const std::string& acts) {
    return playActs(acts,
                    {.act = [this](const std::string& act) { doLine(act); },
                     .takeLog = [this] { return m_test.takeLog() + std::exchange(m_says, {}); },
                     .look = [this] { return look(); },
                     .folder = m_test.folder().path().string()});
}

std::map<std::string, std::string> Play::look() {
    std::map<std::string, std::string> seen;
    for (const auto& [name, control] : m_controls) {
        seen[name] = replaced(stateOf(*control), "\r\n", "\n");
    }
    // They change with each act: cases that are about them say so.
    seen.erase("mnuUndo");
    seen.erase("mnuRedo");
    seen["frmMain"] = std::string(m_window.isLoaded() ? "" : "closed ") +
                      (m_window.isVisible() ? "shown" : "hidden") +
                      (m_window.state() == WindowState::Minimized ? " minimized" : "");
    seen["frmCompare"] = m_window.compare.beside.isVisible() ? "shown" : "hidden";
    seen["frmFleet"] = (m_test.fleet().isVisible() ? m_test.fleet().caption() : "hidden") +
                       (m_test.fleet().state() == WindowState::Minimized ? " minimized" : "");
    seen["frmFindings"] = m_window.findings.list.isVisible() ? "shown" : "hidden";
    if (const ShipClass* const ship = m_window.g_Ship.get()) {
        seen["ship"] = std::to_string(ship->Hull()) + ' ' + std::to_string(ship->mass()) + ' ' +
                       std::to_string(ship->THRUST()) + ' ' + std::to_string(ship->FTL()) + ' ' +
                       std::to_string(ship->Armor()) + ' ' + std::to_string(ship->Streamline()) +
                       (ship->g_bAutoMass ? " AutoMass" : "") +
                       (ship->g_bSaved ? " saved" : " changed");
        std::string aboard;
        for (const WeapRec& system : ship->systemsAboard()) {
            EXPECT_EQ(amountInList(system.name), std::to_string(system.amount));
            aboard += system.name;
        }
        EXPECT_EQ(aboard.empty(), m_window.aboard.lvCurrentWeapons.rows().empty());
        EXPECT_EQ(m_window.hull.fraThrust.isEnabled(), !isBase(ship->Hull()));
    }
    for (const auto& file : fs::recursive_directory_iterator(m_test.folder().path())) {
        const std::string name =
            file.path().lexically_relative(m_test.folder().path()).generic_string();
        if (name.find(".shp") != std::string::npos || name.starts_with("ssds/") ||
            name.find(".fleet") != std::string::npos) {
            const std::string shown =  // without the number of its run
                name.substr(0, name.find_first_of("0123456789", name.find('~')));
            const std::string held =
                name.ends_with(".png") ? readShip(pathText(file)).text : m_test.folder().read(name);
            seen["file " + shown] = replaced(held, "\r\n", ", ");
        }
    }
    return seen;
}

void Play::doLine(const std::string& line) {
    const auto [first, rest] = cut(line);
    if (first.empty()) {
        return;
    }
    if (first == "overflow") {
        throw OverflowError();
    }
    if (first == "in") {
        doLater(rest.substr(0, rest.find(':')), rest.substr(rest.find(": ") + 2));
    } else if (first == "write") {
        m_test.folder().write(cut(rest).first, replaced(cut(rest).second, "; ", "\n"));
    } else if (first == "link") {
        fs::create_hard_link(m_test.folder().path() / cut(rest).first,
                             m_test.folder().path() / cut(rest).second);
    } else if (first == "remove") {
        fs::remove_all(m_test.folder().path() / rest);
    } else if (first == "damage") {
        for (const auto& file : fs::directory_iterator(m_test.folder().path() / "recovered")) {
            if (file.path().extension() == ".steps") {
                fs::resize_file(file, fs::file_size(file) - 2);
            }
        }
    } else if (first == "cancel") {
        m_test.file.reset();
    } else if (first == "drop") {
        m_window.dropFiles(paths(rest));
    } else if (first == "frmFleet") {
        const auto [act, files] = cut(rest);
        if (act == "close") {
            m_says += m_test.fleet().unload() ? "" : "stays; ";
        } else if (act == "drop") {
            m_test.fleet().dropFiles(paths(files));
        } else if (act == "minimize") {
            m_test.fleet().setState(WindowState::Minimized);
        } else {
            m_test.fleet().activate();
        }
    } else if (first == "frmAmountSlider") {
        m_says += m_window.aboard.frmSld->isLoaded() ? "still open; " : "closed; ";
    } else if (first == "start") {
        m_window.files.openAfterStart(paths(rest));
    } else if (first == "choose") {
        m_test.file = (m_test.folder().path() / nativePath(rest)).string();
    } else if (first == "hold") {
        m_test.clipboard.held = replaced(rest, "; ", "\r\n");
    } else if (first == "held") {
        m_says += m_test.clipboard.held + "; ";
    } else if (first == "set") {
        set(rest);
    } else {
        const Controls& controls = m_dialog.contains(first) ? m_dialog : m_controls;
        controls.contains(first) ? actOn(*controls.at(first), rest) : actOnForm(rest);
    }
}

void Play::collectCompare() {
    Controls controls;
    collect(m_window.compare.beside, controls);
    for (const auto& [name, control] : controls) {
        m_controls["compare." + name] = control;
    }
}

std::vector<std::string> Play::paths(const std::string& names) {
    std::vector<std::string> found = partsOf(names, " ");
    for (std::string& name : found) {
        name = (m_test.folder().path() / nativePath(name)).string();
    }
    return found;
}

std::string Play::amountInList(std::string_view name) {
    const ListView& list = m_window.aboard.lvCurrentWeapons;
    const auto row = list.find(name);
    return row ? list.rows()[*row].subItem : "none";
}

void Play::set(const std::string& what) {
    const std::map<std::string, std::function<void()>> settings = {
        {"answer yes", [this] { m_test.answer = Answer::Yes; }},
        {"answer no", [this] { m_test.answer = Answer::No; }},
        {"no confirmation", [this] { m_test.globals.g_bConfirmExit = false; }},
        {"no hiding", [this] { m_test.globals.g_bHide = false; }},
        {"tray", [this] { m_hasTray = true; }},
        {"no tray", [this] { m_hasTray = false; }},
        {"copies 2", [this] { m_test.copies = 2; }},
        {"starting", [this] { m_test.isStartOver = false; }},
        {"started", [this] { m_test.isStartOver = true; }},
        {"no trash", [this] { m_test.hasTrash = false; }},
        {"trash", [this] { m_test.hasTrash = true; }},
        {"no paper", [this] { m_test.printerFails = true; }},
        {"largest 4", [this] { m_test.globals.g_iLargestSSD = 4; }},
        {"maps scanned", [this] { m_test.scanMaps(); }},
        {"catalogue fault", [this] { m_test.catalogueFaults = "weaps.dat:3: double key\n"; }},
        {"active", [this] { m_window.activate(); }},
        {"compare active", [this] { m_window.compare.beside.activate(); }},
        {"saved", [this] { m_test.ship().g_bSaved = true; }},
        {"name", [this] { m_test.ship().g_sShipName = "Renamed"; }},
        {"no button",
         [this] {
             m_test.ship().FTL(2);
             m_test.ship().Hull(7);
         }},
        {"status", [this] { m_window.sbStatus.setText("message"); }},
        {"load", [this] { m_test.ship().loadShip(pathText(m_test.folder().path() / "some.shp")); }},
        {"old files", [] { TestWindow::letFilesGetOld(); }},
        {"held", [this] { m_test.clock.step = 500; }},
        {"telling", [this] { listen(); }},
        {"counting",
         [this] {
             m_counting = m_test.ship().Recalculated.connect([this] { m_says += "worked out; "; });
         }},
    };
    settings.at(what)();
}

void Play::listen() {
    for (StatusBar* const bar : {&m_window.sbStatus, &m_test.fleet().sbFleet}) {
        m_told.push_back(
            bar->Said.connect([this, bar] { m_says += "said: " + bar->text() + "; "; }));
        m_told.push_back(bar->Told.connect(
            [this](const std::string& text) { m_says += "told: " + text + "; "; }));
    }
}

void Play::doLater(const std::string& where, const std::string& what) {
    const auto doAll = [this, what] {
        for (const std::string& act : partsOf(what, what.starts_with("in ") ? "\n" : " / ")) {
            doLine(act);
        }
    };
    if (where == "turn") {
        m_test.inTurn = doAll;
    } else {
        m_test.inDialog = [this, doAll](Form& form) {
            collect(form, m_dialog);
            doAll();
            m_says += form.isLoaded() ? "" : form.name() + " closes; ";
            m_dialog.clear();
        };
    }
}

void Play::actOnForm(const std::string& how) {
    if (how == "minimize") {
        m_window.setState(WindowState::Minimized);
    } else if (how == "restore") {
        m_window.setState(WindowState::Normal);
    } else if (how == "move") {
        m_window.moveTo(1000, 2000);
    } else {
        m_says += m_window.unload() ? "" : "stays; ";
    }
}

void Play::actOn(Control& control, const std::string& how) {
    if (how == "point") {
        m_says += replaced(control.toolTip(), "\n", " | ") + "; ";
    } else if (how == "look") {
        m_says += stateOf(control) + "; ";
    } else if (auto* const button = dynamic_cast<Button*>(&control)) {
        button->press();
    } else if (auto* const box = dynamic_cast<CheckBox*>(&control)) {
        box->press();
    } else if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
        option->choose();
    } else if (auto* const entry = dynamic_cast<MenuEntry*>(&control)) {
        entry->choose();
    } else if (auto* const keys = dynamic_cast<Shortcut*>(&control)) {
        keys->press();
    } else if (auto* const arrows = dynamic_cast<UpDown*>(&control)) {
        how == "up" ? arrows->pressUp() : arrows->pressDown();
    } else if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        timer->tick();
    } else if (auto* const tray = dynamic_cast<TrayIcon*>(&control)) {
        raise(how == "left" ? tray->onLeftClick : tray->onRightClick);
    } else if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
        how == "enter" ? combo->pressEnter() : combo->type(how);
    } else if (auto* const slider = dynamic_cast<Slider*>(&control)) {
        slider->slide(std::stoi(how));
        m_says += "of " + std::to_string(slider->max()) + " by " +
                  std::to_string(slider->tickFrequency()) + ", " +
                  std::to_string(slider->largeChange()) + " at " +
                  std::to_string(m_window.aboard.frmSld->left()) + ',' +
                  std::to_string(m_window.aboard.frmSld->top()) + ": " +
                  stateOf(*m_dialog.at("lblAmount")) + "; ";
    } else {
        actOnPointed(dynamic_cast<PointedControl&>(control), how);
    }
}

void Play::actOnPointed(PointedControl& control, const std::string& how) {
    auto* const box = dynamic_cast<TextBox*>(&control);
    auto* const list = dynamic_cast<ListView*>(&control);
    const MousePress at = {.button = RightButton, .x = 10.5, .y = 20.5};
    const std::map<std::string, std::function<void()>> acts = {
        {"click", [&] { control.click(); }},
        {"double", [&] { control.doubleClick(); }},
        {"delete", [&] { list->pressDelete(); }},
        {"right", [&] { control.pressMouse(at); }},
        {"left", [&] { control.pressMouse({.button = LeftButton}); }},
        {"middle", [&] { control.pressMouse({.button = MiddleButton}); }},
        {"drag", [&] { control.moveMouse({.button = LeftButton, .x = 30, .y = 45}); }},
        {"drag right", [&] { control.moveMouse(at); }},
        {"drag both", [&] { control.moveMouse({.button = LeftButton | RightButton}); }},
        {"release", [&] { control.releaseMouse({.button = LeftButton}); }},
        {"release right", [&] { control.releaseMouse({.button = RightButton}); }},
        {"drop", [&] { control.drop(m_window.drag.imgDrag); }},
        {"drop another", [&] { control.drop(m_window.figures.txtCost); }},
        {"enter",
         [&] {
             if (list != nullptr) {
                 list->pressEnter();
             } else {
                 m_says += box->pressKey(EnterKey) ? "taken; " : "";
             }
         }},
        {"escape", [&] { box->pressKey(EscapeKey); }},
        {"key", [&] { m_says += box->pressKey('x') ? "taken; " : ""; }},
        {"leave", [&] { box != nullptr ? box->loseFocus() : m_window.tree.tvWeapons.loseFocus(); }},
    };
    if (const auto known = acts.find(how); known != acts.end()) {
        known->second();
    } else if (how.starts_with("key ") && box == nullptr) {
        TreeView& tree = m_window.tree.tvWeapons;
        m_says += tree.pressKey(how.substr(4)) ? "" : "not taken; ";
        m_says += (tree.selected() == nullptr ? "" : tree.selected()->key) + "; ";
    } else if (box != nullptr) {
        box->type(replaced(how, "\\n", "\n"));
    } else if (list != nullptr && how == "tip") {
        m_says += replaced(list->rowToolTip(list->rows()[0]), "\n", " | ") + "; ";
    } else if (list != nullptr) {
        list->select(static_cast<std::size_t>(std::stoi(how)));
    } else if (TreeView& tree = m_window.tree.tvWeapons; how.starts_with("tip ")) {
        m_says += replaced(tree.nodeToolTip(*tree.find(how.substr(4))), "\n", " | ") + "; ";
    } else {
        m_test.selectNode(how);
    }
}

}  // namespace fleetwright
