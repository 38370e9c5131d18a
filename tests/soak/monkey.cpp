// Acts at random on the windows of the program, without a screen, and looks after each act whether
// what they show agrees. Acts also come while a message box, a dialog or a menu is open, and in the
// turns that AutoMass and the scan of an outline give the event loop:
//
//     soak-monkey [ACTS [SEED]]     1000000 and 1 if they are not said

#include "Button.h"
#include "CheckBox.h"
#include "ComboBox.h"
#include "Dice.h"
#include "Error.h"
#include "Slider.h"
#include "fakeServices.h"
#include "frmMapper.h"
#include "frmSSDMapCreator.h"
#include "frmSSDView.h"
#include "monkeyWorld.h"
#include "screenFaults.h"
#include "sheetShip.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <stdexcept>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// One run of the program, from its start to its end.
class Run {
public:
    Run(Dice& dice, std::deque<std::string>& trail) : m_dice(dice), m_trail(trail) {
        for (const auto& [name, text] : files) {
            m_test.folder().write(name, text);
        }
        scanMaps(m_test.folder().path(), m_test.globals.g_colSSDMaps, m_test.globals.g_iLargestSSD,
                 [](const std::string&) {});
        m_test.inMessage = [this] { ask("box"); };
        m_test.inFileDialog = [this] { ask("file dialog"); };
        m_test.inPopUp = [this](MenuEntry& menu) { openMenu(menu); };
        m_test.inDialog = [this](Form& form) { answer(form); };
        m_test.inEachTurn = [this] { takeTurn(); };
        m_test.atEnd = [this] { end(); };
        m_test.showOther = [this](const std::string& name) {
            for (Form* const form : m_others) {
                if (form->name() == (name == "mapper"   ? "frmMapper"
                                     : name == "viewer" ? "frmSSDView"
                                                        : "frmSSDMapCreator")) {
                    form->setState(WindowState::Normal);
                    form->show();
                }
            }
        };
        m_dragged = m_main.drag.imgDrag.DragWanted.connect([this] {
            while_("drag", nullptr, [this] { actMeanwhile(); });
            if (!m_hasEnded && m_dice.oneIn(2)) {
                m_main.aboard.lvCurrentWeapons.drop(m_main.drag.imgDrag);
            }
        });
        m_main.tray.tray1.askAvailable = [this] { return !m_dice.oneIn(8); };
        m_main.show();
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run() = default;

    bool hasEnded() const { return m_hasEnded; }

    /// One act, with all that comes of it. Throws what is wrong then.
    void actAtRest() {
        m_actsLeft = mostActsMeanwhile;
        m_test.catalogueFaults = m_dice.oneIn(30) ? "The catalogue is faulty" : "";
        m_test.printerFails = m_dice.oneIn(2);
        m_test.copies = m_dice.below(3);
        const bool isCatalogueAway = m_dice.oneIn(50);
        if (isCatalogueAway) {
            fs::rename(m_test.folder().path() / "weaps.dat", m_test.folder().path() / "away");
        }
        act();
        if (isCatalogueAway) {
            fs::rename(m_test.folder().path() / "away", m_test.folder().path() / "weaps.dat");
        }
        m_test.takeLog();
        if (m_faults.empty() && !m_hasEnded) {
            m_faults = screenFaults(m_test, m_stale);
        }
        if (!m_faults.empty()) {
            throw std::runtime_error(m_faults);
        }
    }

private:
    static constexpr int mostActsMeanwhile = 10;

    void note(const std::string& what) {
        constexpr std::size_t longest = 60;
        m_trail.push_back(std::string(2 * m_depth, ' ') + what);
        if (m_trail.size() > longest) {
            m_trail.pop_front();
        }
    }

    /// Something is in front of the windows: a form, or what lets no form be reached.
    template <typename Task>
    void while_(const std::string& what, Form* form, const Task& task) {
        if (m_hasEnded) {
            return;
        }
        note("[" + what + "]");
        m_inFront.push_back(form);
        ++m_depth;
        task();
        --m_depth;
        m_inFront.pop_back();
    }

    void actMeanwhile() {
        for (int acts = m_dice.below(3); acts > 0 && m_actsLeft > 0; --acts) {
            --m_actsLeft;
            act();
        }
    }

    /// A box or a dialog of the desktop's is open. One that the end of the program closes is
    /// answered as with Escape.
    void ask(const std::string& what) {
        while_(what, nullptr, [this] { actMeanwhile(); });
        m_stale.isRowPreview = true;  // the row that it was of may be refused
        m_test.answer = m_hasEnded || m_dice.oneIn(2) ? Answer::No : Answer::Yes;
        m_test.file = anyFile();
    }

    std::optional<std::string> anyFile() {
        if (m_hasEnded || m_dice.oneIn(6)) {
            return std::nullopt;
        }
        if (m_dice.oneIn(3)) {
            return (m_test.folder().path() / m_dice.pick(otherFiles)).string();
        }
        return (m_test.folder().path() / m_dice.pick(files).first).string();
    }

    void openMenu(MenuEntry& menu) {
        while_(menu.name(), nullptr, [this] { actMeanwhile(); });
        if (!m_hasEnded && !m_dice.oneIn(4)) {
            const std::vector<Control*> entries = leaves(menu);
            actOn(*m_dice.pick(entries));
        }
    }

    void answer(Form& form) {
        while_(form.name(), &form, [&] {
            for (int acts = 12; acts > 0 && form.isLoaded() && !m_hasEnded; --acts) {
                act();
            }
            form.unload();
        });
    }

    void takeTurn() {
        if (m_hasEnded || m_actsLeft <= 0 || !m_dice.oneIn(4)) {
            return;
        }
        note("[turn]");
        ++m_depth;
        actMeanwhile();
        --m_depth;
    }

    /// All forms are unloaded, dialogs first.
    void end() {
        note("end");
        m_hasEnded = true;
        for (Form* const form : m_inFront) {
            if (form != nullptr) {
                form->unload();
            }
        }
        for (Form* const form : m_others) {
            form->unload();
        }
    }

    /// The windows that the user can act on.
    std::vector<Form*> reachableForms() {
        const auto box = std::find(m_inFront.rbegin(), m_inFront.rend(), nullptr);
        std::vector<Form*> forms(m_inFront.rbegin(), box);
        if (box != m_inFront.rend()) {
            return forms;
        }
        if (forms.empty()) {
            forms.assign(4, &m_main);
        }
        forms.insert(forms.end(), m_others.begin(), m_others.end());
        std::erase_if(forms, [](const Form* form) { return !form->isVisible(); });
        return forms;
    }

    void act() {
        if (m_hasEnded) {
            return;
        }
        try {
            const std::vector<Form*> forms = reachableForms();
            const int kind = m_dice.below(100);
            if (kind < 6 || forms.empty()) {
                actBeside();
            } else if (Form& form = *m_dice.pick(forms); kind < 12) {
                actOnFrame(form);
            } else if (form.state() != WindowState::Minimized) {
                actInside(form);
            }
        } catch (const std::exception& error) {
            m_faults += std::string("escaped: ") + error.what() + '\n';
        } catch (const EndOfProgram&) {
            m_faults += "escaped: the end of the program\n";
        }
    }

    /// What happens without a window: timers, and the icon in the tray.
    void actBeside() {
        const int kind = m_dice.below(8);
        if (kind < 3) {
            note("tick of the refresh");
            m_main.tmrRefreshScreen.tick();
        } else if (kind < 6) {
            note("tick of the recovery");
            m_main.recovery.tmrRecovery.tick();
        } else if (m_main.tray.tray1.isOn()) {
            note("tray");
            raise(kind == 6 ? m_main.tray.tray1.onLeftClick : m_main.tray.tray1.onRightClick);
        }
    }

    void actOnFrame(Form& form) {
        switch (m_dice.below(6)) {
        case 0:
            if (&form != &m_main || m_dice.oneIn(20)) {
                note("close " + form.name());
                form.unload();
            }
            break;
        case 1:
            if (form.border() != Border::Fixed) {
                note("minimize " + form.name());
                form.setState(WindowState::Minimized);
            }
            break;
        case 2:
            note("restore " + form.name());
            form.setState(WindowState::Normal);
            break;
        case 3:
            if (form.border() == Border::Sizable) {
                note("size " + form.name());
                form.resize(m_dice.below(9000), m_dice.below(9000));
            }
            break;
        case 4:
            form.moveTo(m_dice.below(40000), m_dice.below(40000));
            break;
        default:
            form.activate();
            form.paint();
        }
    }

    void actInside(Form& form) {
        std::vector<Control*> controls;
        for (Control* const control : leaves(form)) {
            const bool isLarge = dynamic_cast<ListView*>(control) != nullptr ||
                                 dynamic_cast<TreeView*>(control) != nullptr;
            controls.insert(controls.end(), isLarge ? 15 : 1, control);
        }
        actOn(*m_dice.pick(controls));
    }

    /// Any act that a control of its kind takes.
    void actOn(Control& control) {
        note(control.name());
        if (auto* const button = dynamic_cast<Button*>(&control)) {
            m_stale.isNodePreview = m_stale.isNodePreview || button == &m_main.tree.cmdCollapseAll;
            button->press();
        } else if (auto* const box = dynamic_cast<CheckBox*>(&control)) {
            box->press();
        } else if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
            option->choose();
        } else if (auto* const entry = dynamic_cast<MenuEntry*>(&control)) {
            // Else no run would be long.
            if (entry != &m_main.files.mnuExit || m_dice.oneIn(20)) {
                entry->choose();
            }
        } else if (auto* const arrows = dynamic_cast<UpDown*>(&control)) {
            m_dice.oneIn(2) ? arrows->pressUp() : arrows->pressDown();
        } else if (auto* const slider = dynamic_cast<Slider*>(&control)) {
            slider->slide(slider->min() + m_dice.below(slider->max() - slider->min() + 1));
        } else if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
            m_dice.oneIn(3) ? combo->type(m_dice.pick(texts))
                            : combo->choose(static_cast<std::size_t>(m_dice.below(3)));
        } else if (auto* const text = dynamic_cast<TextBox*>(&control)) {
            actOnText(*text);
        } else if (auto* const tree = dynamic_cast<TreeView*>(&control)) {
            actOnTree(*tree);
        } else if (auto* const list = dynamic_cast<ListView*>(&control)) {
            actOnList(*list);
        } else {
            control.toolTip();
        }
    }

    void actOnText(TextBox& box) {
        const int kind = m_dice.below(6);
        if (kind == 0) {
            box.doubleClick();
        } else if (kind == 1) {
            box.pressKey(EnterKey);
        } else if (kind == 2) {
            box.loseFocus();
        } else if (kind == 3) {
            box.pressMouse({.button = m_dice.oneIn(2) ? LeftButton : RightButton});
        } else {
            box.type(m_dice.pick(texts));
            m_stale.typed[&box] = box.text();
        }
        box.toolTip();
    }

    void actOnTree(TreeView& tree) {
        TreeView::Node& node = m_dice.pick(tree.nodes());
        switch (m_dice.below(8)) {
        case 0:
            tree.setExpanded(node, !node.isExpanded);
            break;
        case 1:
            tree.nodeToolTip(node);
            break;
        case 2:
            tree.pressMouse({.button = RightButton});
            break;
        case 3:
            tree.moveMouse({.button = LeftButton, .x = 20, .y = 20});
            tree.releaseMouse({.button = LeftButton});
            break;
        case 4:
        case 5:
            tree.doubleClick();
            break;
        default:
            tree.select(node);
            m_stale.isNodePreview = true;
            if (!m_dice.oneIn(4)) {
                tree.click();
                m_stale.isNodePreview = !node.children.empty();
            }
        }
    }

    void actOnList(ListView& list) {
        if (list.rows().empty()) {
            return;
        }
        const int row = m_dice.below(static_cast<int>(list.rows().size()));
        switch (m_dice.below(6)) {
        case 0:
            list.rowToolTip(list.rows()[static_cast<std::size_t>(row)]);
            break;
        case 1:
            list.pressMouse({.button = RightButton, .x = 1e9 * m_dice.below(2), .y = 30});
            break;
        case 2:
            list.doubleClick();
            break;
        default:
            list.select(static_cast<std::size_t>(row));
            m_stale.isRowPreview = true;
            if (!m_dice.oneIn(4)) {
                list.click();
                m_stale.isRowPreview = m_depth > 0;  // the row may be refused yet
            }
        }
    }

    Dice& m_dice;
    std::deque<std::string>& m_trail;
    TestWindow m_test;
    frmMain& m_main = m_test.window();
    fs::path m_app = m_test.folder().path();
    Pictures m_pictures;
    SteppingClock m_clock;
    SheetImages m_images = programImages(m_app, m_pictures, m_main.tree.ilWeapons);
    frmMapper m_mapper{{.appFolder = m_app,
                        .desktop = m_test.desktop(),
                        .pictures = m_pictures,
                        .encoder = m_pictures,
                        .images = m_images,
                        .g_colSSDMaps = m_test.globals.g_colSSDMaps,
                        .lvCurrentWeapons = m_main.aboard.lvCurrentWeapons,
                        .ship = [this] { return sheetShip(m_main); }}};
    frmSSDMapCreator m_mapCreator{{.appFolder = m_app,
                                   .desktop = m_test.desktop(),
                                   .pictures = m_pictures,
                                   .clock = m_clock,
                                   .eventLoopTurn = [this] { takeTurn(); },
                                   .g_colSSDMaps = m_test.globals.g_colSSDMaps}};
    frmSSDView m_viewer{{.appFolder = m_app, .desktop = m_test.desktop(), .pictures = m_pictures}};
    const std::vector<Form*> m_others = {&m_mapper, &m_mapCreator, &m_viewer};
    std::vector<Form*> m_inFront;  ///< null for what is no form
    Connection m_dragged;
    Stale m_stale;
    std::string m_faults;
    std::size_t m_depth = 0;
    int m_actsLeft = 0;  ///< in the middle of the act at rest
    bool m_hasEnded = false;
};

int soak(int acts, std::uint64_t seed) {
    Dice dice(seed);
    std::deque<std::string> trail;
    std::optional<Run> run;
    int runs = 0;
    int done = 0;
    try {
        for (; done < acts; ++done) {
            if (!run || run->hasEnded()) {
                trail.clear();
                run.emplace(dice, trail);
                ++runs;
            }
            run->actAtRest();
        }
    } catch (const std::exception& error) {
        for (const std::string& line : trail) {
            std::printf("%s\n", line.c_str());
        }
        std::printf("seed %llu, act %d: %s\n", static_cast<unsigned long long>(seed), done,
                    error.what());
        return 1;
    }
    std::printf("%d acts in %d runs\n", acts, runs);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const int acts = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    const std::uint64_t seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
    // Each save waits for its disk; one in memory answers at once.
    if (fs::is_directory("/dev/shm")) {
        setenv("TMPDIR", "/dev/shm", 0);
    }
    return soak(acts, seed);
}
