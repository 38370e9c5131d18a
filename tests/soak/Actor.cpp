#include "Actor.h"

#include "Error.h"
#include "paths.h"
#include "sheetShip.h"

#include <algorithm>
#include <stdexcept>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr int mostActsMeanwhile = 10;

/// Systems that are hard on AutoMass and on the width of the fields, and one that each sheet shows.
const std::string oddSystems =
    "Wobble,mass % 4 = 2 ? mass / 2 + 1 : mass / 2 - 2,1,x,ALIEN,O,a.gif\n"
    "Titan,1000000000,2000000000,x,ALIEN,,a.gif\n"
    "Damage Control Party,1,1,x,SYSTEMS,O,party.gif\n"
    "Rebate,-amount,-50 * amount,x,ALIEN,,a.gif\n";

/// A map with room for most ships.
std::string roomyMap() {
    std::string text = "IMAGE: ship.gif\nSIZE: 300\nDAMROW: (4,90)\nFTL: (4,9)\nTHRUST: (9,9)\n";
    for (int place = 0; place < 60; ++place) {
        const std::string point = '(' + std::to_string(2 * place) + ',' + std::to_string(place);
        text += "WEAP: " + point + ",F)\nDCP: " + point + ")\nFIRECON: " + point + ")\n";
    }
    return text;
}

/// What lies in the application folder beside the catalogue.
const std::map<std::string, std::string> files = {
    {"ships/Gun.shp", "Mass: 40\nSystem: Gun, 2\nSystem: Screen, 1\n"},
    {"ships/Cloaked.shp", "Mass: 60\nType: Merchant\nSystem: Cloaking Field, 1\n"},
    {"ships/Base.shp", "Mass: 200\nType: Starbase\nThrust: 4\nFTL: Tug\nStreamlining: Full\n"},
    {"ships/Fast.shp", "Mass: 20\nThrust: 12\nArmor: Level 2\nType: Nonsense\n"},
    {"ships/Refused.shp", "Type: Merchant\nSystem: Gun, 1\nSystem: Cloaking Field, 1\n"},
    {"ships/Unknown.shp", "System: Nothing, 3\nSystem: Gun, 1\n"},
    {"ships/Huge.shp", "Mass: 2147483000\nFTL: None\nThrust: 0\n"},
    {"ships/Great.shp", "Mass: 70000000\nSystem: Ballast, 100\n"},
    {"ships/TooMuch.shp", "System: Gun, 1\nSystem: Giant, 2\n"},
    {"ships/NoNumber.shp", "Mass: 9999999999999\nSystem: Gun, x\n"},
    {"ships/Sheet.svg", "<svg><ships xmlns=\"https://fleetwright.org/ns/ships/\"><li>"
                        "TWFzczogNDAKU3lzdGVtOiBHdW4sIDIK</li></ships></svg>"},
    {"ships/NoShip.svg", "<svg/>"},
    {"ships/Pair.fleet", "FleetWright fleet 1\nname = Pair\npoints limit = 300\n"
                         "limit = Scout: 2 ships\n\nship = Gun.shp\ncount = 2\nnamed = One\n\n"
                         "ship = None.shp\n\nship = Gun.shp\nnote = Again\n"},
    {"ships/Faulty.fleet", "FleetWright fleet 1\npoints limit = x\n\nship = \ncount = 0\n"},
    {"ships/Later.fleet", "FleetWright fleet 2\n"},
    {"ships/Empty.shp", ""},
    {"ships/Folder.shp/file", ""},
    {"ships/\xC3\x9C.shp", "Ship Name: \xC3\x9C\nMass: 6\n"},
    {"recovered/Lost, mass 6, then #3.shp~7", "Ship Name: Lost\nMass: 6\n"},
    {"recovered/.fleetwright-cut.tmp", "Ship Name: Lost\nMass: 6\n"},
    {"recovered/Wing, mass 2, then #4.fleet~7",
     "FleetWright fleet 1\nname = Wing\n\nship = ../ships/Gun.shp\n"},
    {"shipimages/ship.gif", ""},
    {"maps/ship.map", "IMAGE: ship.gif\nSIZE: 100\nWEAP: (3,4,F)\nWEAP: (9,9,P)\nDCP: (1,1)\n"},
    {"maps/roomy.map", roomyMap()},
    {"maps/lost.map", "IMAGE: lost.bmp\nSIZE: 60\nWEAP: (3,4,F)\nWEAP: (5,4,F)\n"},
};
/// Files that are not there.
const std::vector<std::string> otherFiles = {
    "ships/None.shp", "nowhere/at all", "a",         "new",
    "ships/new",      "ssds/sheet",     "maps/made", "ships/new.fleet"};

/// What others have put on the clipboard.
const std::vector<std::string> copied = {"", "a word",
                                         "Ship Name: Pasted\nMass: 30\nSystem: Gun, 1\n",
                                         "FW1:none", "Ship Name: \xC3\nMass: x\n"};

/// All controls inside one.
void addLeaves(const Container& container, std::vector<Control*>& leaves) {
    for (Control* const control : container.controls()) {
        const auto* const inner = dynamic_cast<Container*>(control);
        if (inner == nullptr || inner->controls().empty()) {
            leaves.push_back(control);
        } else {
            addLeaves(*inner, leaves);
        }
    }
}

/// What goes on without a window in front: timers, and the icon in the tray.
bool isBeside(const Control* control) {
    return dynamic_cast<const Timer*>(control) != nullptr ||
           dynamic_cast<const TrayIcon*>(control) != nullptr;
}

/// Whether a control can be reached in its window, or in its menu, which is in front.
bool isReachable(const Control& control, const Control& whole) {
    const auto* const form = dynamic_cast<const Form*>(&whole);
    if (&control == &whole || isBeside(&control)) {
        return true;
    }
    bool isThere = form == nullptr || form->state() != WindowState::Minimized;
    for (const Container* each = control.container(); each != &whole; each = each->container()) {
        isThere = isThere && each->isVisible();
    }
    return isThere;
}

}  // namespace

Raster Actor::Pictures::load(const fs::path& file) {
    if (!file.filename().string().ends_with(".gif")) {
        throw FileError(file, "is no picture");
    }
    constexpr int side = 130;  // so that a scan gives turns
    Raster picture(side, side);
    for (int mark = 0; mark < 20; ++mark) {
        picture.pixel(7 * mark % side, 31 * mark % side) = mark % 2 == 0 ? 0xFF0000 : 0x00FF00;
    }
    return picture;
}

std::optional<Registry::Value> Actor::Tool::read(const std::string&, const std::string&) {
    if (m_choices.oneIn(2)) {
        return std::nullopt;
    }
    return Value{m_choices.oneIn(3) ? numberType : textType, "C:\\tool"};
}

Actor::Actor(Choices& source)
    : choices(source), test(std::string(windowCatalogue) + oddSystems),
      m_mapper(
          {.appFolder = m_app,
           .desktop = test.desktop(),
           .outlines = outlinesIn(m_pictures),
           .encoder = m_decoder,
           .images = m_images,
           .g_colSSDMaps = test.globals.g_colSSDMaps,
           .lvCurrentWeapons = main.aboard.lvCurrentWeapons,
           .ship = [this] { return sheetShip(main); },
           .actsFor =
               [this](const SSDMap& map, const SheetOutput::Rows& aboard, const Raster& bitmap) {
                   return test.sheets().acts(
                       SheetOutput::madeAtOnce([&] {
                           return test.sheets().onMap(sheetShip(main), aboard, map, bitmap);
                       }),
                       [this](const std::string& text) { m_mapper.say(text); });
               }}),
      m_mapCreator({.appFolder = m_app,
                    .desktop = test.desktop(),
                    .pictures = m_pictures,
                    .clock = m_clock,
                    .eventLoopTurn = [this] { takeTurn(); },
                    .g_colSSDMaps = test.globals.g_colSSDMaps}),
      m_viewer({.appFolder = m_app,
                .desktop = test.desktop(),
                .pictures = m_pictures,
                .actsFor = [this](const std::filesystem::path& file, const Raster& picture) {
                    return test.sheets().acts(
                        [this, file, picture] { return test.sheets().ofPicture(file, picture); },
                        [this](const std::string& text) { m_viewer.say(text); });
                }}) {
    for (const auto& [name, text] : files) {
        test.folder().write(name, text);
    }
    scanMaps(m_app, test.globals.g_colSSDMaps, test.globals.g_iLargestSSD,
             [](const std::string&) {});
    for (Form* const form : windows()) {
        m_windows.push_back({form, chancesOf(*form)});
    }
    m_beside = m_windows.front().chances;
    std::erase_if(m_beside, [](const Chance& each) { return !isBeside(each.control); });
    listen();
    main.show();
}

void Actor::listen() {
    test.inMessage = [this] { ask("box"); };
    test.inFileDialog = [this] { ask("file dialog"); };
    test.inPopUp = [this](MenuEntry& menu) {
        behind(menu.name(), nullptr, [this] { actMeanwhile(); });
        if (!m_hasEnded && !choices.oneIn(4)) {
            perform(menu, chancesOf(menu));
        }
    };
    test.inDialog = [this](Form& form) {
        behind(form.name(), &form, [&] {
            for (int acts = 12; acts > 0 && form.isLoaded() && !m_hasEnded; --acts) {
                actSomewhere();
            }
            form.unload();
        });
    };
    test.inEachTurn = [this] { takeTurn(); };
    test.atEnd = [this] { end(); };
    test.showOther = [this](const std::string& name) {
        Form* const form = name == "mapper"        ? &m_mapper
                           : name == "viewer"      ? static_cast<Form*>(&m_viewer)
                           : name == "map creator" ? static_cast<Form*>(&m_mapCreator)
                           : name == "about"       ? &m_about
                                                   : nullptr;
        if (form != nullptr) {
            form->setState(WindowState::Normal);
            form->show();
        }
    };
    m_dragged = main.drag.imgDrag.DragWanted.connect([this] {
        behind("drag", nullptr, [this] { actMeanwhile(); });
        if (!m_hasEnded && choices.oneIn(2)) {
            main.aboard.lvCurrentWeapons.drop(main.drag.imgDrag);
        }
    });
    main.tray.tray1.askAvailable = [this] { return !choices.oneIn(8); };
}

void Actor::act() {
    m_actsLeft = mostActsMeanwhile;
    test.catalogueFaults = choices.oneIn(30) ? "The catalogue is faulty" : "";
    test.printerFails = choices.oneIn(2);
    test.copies = choices.below(3);
    test.hasTrash = !choices.oneIn(8);
    if (choices.oneIn(20)) {
        test.clipboard.held = choices.pick(copied);
    }
    test.clock.step = choices.oneIn(2) ? 100 : 2000;
    const bool isCatalogueAway = choices.oneIn(50);
    if (isCatalogueAway) {
        fs::rename(m_app / "weaps.dat", m_app / "away");
    }
    actSomewhere();
    if (isCatalogueAway) {
        fs::rename(m_app / "away", m_app / "weaps.dat");
    }
    test.takeLog();
    if (m_faults.empty() && !m_hasEnded) {
        m_faults = brokenInvariants(test, typed);
        lookAtPutAside();
    }
    if (!m_faults.empty()) {
        throw std::runtime_error(m_trail + m_faults);
    }
}

/// What was put aside for good goes nowhere but into the trash. Many designs are looked at less
/// often than few, so that it costs each act the same.
void Actor::lookAtPutAside() {
    constexpr std::size_t designsAnAct = 20;
    if (++m_actsNotLooked * designsAnAct < m_putAside.size()) {
        return;
    }
    m_actsNotLooked = 0;
    std::set<std::string> names;
    for (const RecoveryDesign& design : RecoveryFolder::list(m_app / "recovered")) {
        if (design.mark.empty()) {
            names.insert(design.file.filename().string());
        }
    }
    for (const std::string& name : m_putAside) {
        if (!names.contains(name) && !fs::exists(m_app / "trash" / nativePath(name))) {
            m_faults += "a design put aside is lost: " + name + '\n';
        }
    }
    m_putAside = names;
}

Actor::Chances Actor::chancesOf(Container& container) {
    Chances chances;
    std::vector<Control*> controls = {&container};
    addLeaves(container, controls);
    for (Control* const control : controls) {
        for (const Act& act : allActs()) {
            if (act.fits(control)) {
                chances.insert(chances.end(), static_cast<std::size_t>(act.weight),
                               {control, &act});
            }
        }
    }
    return chances;
}

void Actor::note(const std::string& what) {
    constexpr std::size_t longest = 3000;
    m_trail += std::string(2 * m_depth, ' ') + what + '\n';
    if (m_trail.size() > longest) {
        m_trail.erase(0, m_trail.find('\n') + 1);
    }
}

void Actor::behind(const std::string& what, Form* form, const std::function<void()>& task) {
    if (m_hasEnded) {
        return;
    }
    note("[" + what + "]");
    m_inFront.push_back({form, form == nullptr ? Chances() : chancesOf(*form)});
    ++m_depth;
    task();
    --m_depth;
    m_inFront.pop_back();
}

/// On one of the windows that the user can reach just now.
void Actor::actSomewhere() {
    if (m_hasEnded) {
        return;
    }
    const auto isBox = [](const Front& front) { return front.form == nullptr; };
    const auto box = std::find_if(m_inFront.rbegin(), m_inFront.rend(), isBox);
    std::vector<Front*> reachable;
    for (auto front = m_inFront.rbegin(); front != box; ++front) {
        reachable.push_back(&*front);
    }
    if (m_inFront.empty()) {
        reachable.insert(reachable.end(), 4, m_windows.data());
        for (Front& front : std::span(m_windows).subspan(1)) {
            reachable.push_back(&front);
        }
    }
    std::erase_if(reachable, [](const Front* front) { return !front->form->isVisible(); });
    if (reachable.empty() || choices.oneIn(16)) {
        perform(main, m_beside);
    } else {
        const Front& front = *choices.pick(reachable);
        perform(*front.form, front.chances);
    }
}

void Actor::perform(const Container& whole, const Chances& chances) {
    const Chance& chance = choices.pick(chances);
    if (!isReachable(*chance.control, whole)) {
        return;
    }
    note(chance.control->name() + ": " + chance.act->name);
    try {
        chance.act->perform(*this, *chance.control);
    } catch (const std::exception& error) {
        m_faults += std::string("escaped: ") + error.what() + '\n';
    } catch (const EndOfProgram&) {
        m_faults += "escaped: the end of the program\n";
    }
}

void Actor::actMeanwhile() {
    for (int acts = choices.below(3); acts > 0 && m_actsLeft > 0; --acts) {
        --m_actsLeft;
        actSomewhere();
    }
}

/// A box or a dialog of the desktop's is open. One that the end of the program closes is answered
/// as with Escape.
void Actor::ask(const std::string& what) {
    behind(what, nullptr, [this] { actMeanwhile(); });
    test.answer = m_hasEnded || choices.oneIn(2) ? Answer::No : Answer::Yes;
    test.file = anyFile();
}

std::optional<std::string> Actor::anyFile() {
    if (m_hasEnded || choices.oneIn(6)) {
        return std::nullopt;
    }
    return (m_app / (choices.oneIn(3) ? choices.pick(otherFiles) : choices.pick(files).first))
        .string();
}

void Actor::takeTurn() {
    if (m_hasEnded || m_actsLeft <= 0 || !choices.oneIn(4)) {
        return;
    }
    note("[turn]");
    ++m_depth;
    actMeanwhile();
    --m_depth;
}

/// All forms are unloaded, dialogs first.
void Actor::end() {
    note("end");
    m_hasEnded = true;
    for (const Front& front : m_inFront) {
        if (front.form != nullptr) {
            front.form->unload();
        }
    }
    for (const Front& front : std::span(m_windows).subspan(1)) {
        front.form->unload();
    }
}

}  // namespace fleetwright
