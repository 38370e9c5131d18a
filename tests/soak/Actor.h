#pragma once

#include "Choices.h"
#include "PictureCache.h"
#include "Programs.h"
#include "Registry.h"
#include "fakeServices.h"
#include "frmAbout.h"
#include "frmMapper.h"
#include "frmSSDMapCreator.h"
#include "frmSSDView.h"
#include "testWindow.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace fleetwright {

class Actor;

/// Something that can be done to the controls of one kind; a window is a control, too.
struct Act {
    std::string name;
    int weight;  ///< how often, compared to others
    std::function<bool(const Control*)> fits;
    std::function<void(Actor&, Control&)> perform;
};

/// All acts that the actor knows: a new one is a row here.
const std::vector<Act>& allActs();

/// The last text that the user has typed into a box: it may stand there until a refresh.
using TypedTexts = std::map<const Control*, std::string>;

/// What does not agree between the ship, the window that shows it, its file and what was put aside,
/// with the window at rest; a line for each.
std::string brokenInvariants(TestWindow& test, const TypedTexts& typed);

/// Acts at random on the windows of one run of the program, without a screen, and looks after each
/// act whether what they show agrees. Acts also come while a message box, a dialog or a menu is
/// open, and in the turns that AutoMass and the scan of an outline give the event loop.
class Actor {
public:
    explicit Actor(Choices& choices);

    /// One act, with all that comes of it. Throws what is wrong then, behind the last acts.
    void act();
    bool hasEnded() const { return m_hasEnded; }
    /// Those that stand beside each other, the main window first.
    std::vector<Form*> windows() {
        return {&main,         &main.findings.list, &main.compare.beside, &m_mapper,
                &m_mapCreator, &m_viewer,           &test.fleet(),        &m_about};
    }

    // For the acts.
    /// A file of any kind, that need not be there; or none.
    std::optional<std::string> anyFile();
    Choices& choices;
    TestWindow test;
    frmMain& main = test.window();
    TypedTexts typed;
    bool mayEnd = true;  ///< whether the user closes the main window

private:
    /// Small pictures, those of ships with a few marks.
    class Pictures : public PictureFiles, public PictureEncoder {
    public:
        Raster load(const std::filesystem::path& file) override;
        Raster builtIn(const std::string& name) override { return load(name); }
        std::string encode(const Raster&, const std::string& format) override { return format; }
    };

    /// The desktop's tool of system information, which is there or not.
    class Tool : public Programs, public Registry {
    public:
        explicit Tool(Choices& choices) : m_choices(choices) {}

        bool run(const std::filesystem::path&, const std::string&, const std::filesystem::path&,
                 int, const std::function<void()>&) override {
            return false;
        }
        bool start(const std::filesystem::path&) override { return m_choices.oneIn(2); }
        void* loadLibrary(const std::filesystem::path&) override { return nullptr; }
        void* function(void*, const std::string&) override { return nullptr; }
        void freeLibrary(void*) override {}
        std::optional<Value> read(const std::string&, const std::string&) override;

    private:
        Choices& m_choices;
    };

    /// An act on a control, once for each time that its weight counts.
    struct Chance {
        Control* control;
        const Act* act;
    };
    using Chances = std::vector<Chance>;
    /// Something in front of the windows: a form, or what lets no form be reached, which is null.
    struct Front {
        Form* form;
        Chances chances;
    };

    static Chances chancesOf(Container& container);
    void listen();
    void note(const std::string& what);
    void behind(const std::string& what, Form* form, const std::function<void()>& task);
    void actSomewhere();
    void perform(const Container& whole, const Chances& chances);
    void actMeanwhile();
    void ask(const std::string& what);
    void takeTurn();
    void lookAtPutAside();
    void end();

    std::filesystem::path m_app = test.folder().path();
    Pictures m_decoder;
    PictureCache m_pictures{m_decoder};
    SteppingClock m_clock;
    SheetImages m_images = programImages(m_app, m_pictures, main.tree.ilWeapons);
    frmMapper m_mapper;
    frmSSDMapCreator m_mapCreator;
    frmSSDView m_viewer;
    Tool m_tool{choices};
    frmAbout m_about{{.desktop = test.desktop(), .programs = m_tool, .registry = m_tool}};
    std::vector<Front> m_windows;  ///< the main window first
    Chances m_beside;
    std::vector<Front> m_inFront;
    Connection m_dragged;
    std::string m_trail;  ///< the last acts, a line each
    std::string m_faults;
    std::set<std::string> m_putAside;  ///< the designs that were put aside for good, by their files
    std::size_t m_actsNotLooked = 0;   ///< since the folder of those was looked at
    std::size_t m_depth = 0;
    int m_actsLeft = 0;  ///< in the middle of the act at rest
    bool m_hasEnded = false;
};

}  // namespace fleetwright
