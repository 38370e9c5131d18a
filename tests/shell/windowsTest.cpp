// The windows of the start, of the settings and about the program, and the recent files: files of
// acts, each with all that is asked of the world because of it and all that looks different then.

#include "Clock.h"
#include "Globals.h"
#include "Programs.h"
#include "Registry.h"
#include "SheetPictures.h"
#include "Sounds.h"
#include "TemporaryFolder.h"
#include "caseFile.h"
#include "clsMRUFiles.h"
#include "fakeServices.h"
#include "formTexts.h"
#include "frmAbout.h"
#include "frmExtras.h"
#include "frmPutAside.h"
#include "frmSplash.h"
#include "paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// Writes down what it is asked for; the faults that `has` holds are its own.
class Machine : public ChoosingDesktop,
                public Clock,
                public Sounds,
                public PictureFiles,
                public Programs,
                public Registry {
public:
    std::set<std::string> has;
    std::map<std::string, std::string> registry;
    std::int32_t ticks = 0;
    ScreenSize screen = {640, 400};

    ScreenSize screenSize() override { return screen; }
    std::int32_t tickCount() override { return ticks; }
    void sleep(int milliseconds) override { log += "sleep " + std::to_string(milliseconds) + "; "; }
    bool hasDevice() override { return true; }
    void play(const fs::path& file) override {
        log += "play " + file.filename().string() + "; ";
        throw FileError(file, "is no sound");
    }
    Raster load(const fs::path&) override { return {}; }
    Raster builtIn(const std::string& name) override {
        return name == "splash-1.gif" ? Raster(348, 288) : Raster(351, 291);
    }
    bool run(const fs::path& program, const std::string& argument, const fs::path& folder,
             int milliseconds, const std::function<void()>& onWait) override {
        log += "run " + program.string() + ' ' + argument + " for " + std::to_string(milliseconds) +
               "; ";
        for (const std::string& name : sheetPictures()) {
            fs::copy_file(program, folder / name);
        }
        onWait();
        return !has.contains("broken archive");
    }
    bool start(const fs::path& program) override {
        log += "start " + program.filename().string() + "; ";
        return has.contains(program.filename().string());
    }
    void* loadLibrary(const fs::path& file) override {
        log += "library " + file.string() + "; ";
        return has.contains("no library") ? nullptr : this;
    }
    void* function(void*, const std::string& name) override {
        return name == "formula_calculate" ? reinterpret_cast<void*>(&formula_calculate) : nullptr;
    }
    void freeLibrary(void*) override {}
    std::optional<Value> read(const std::string& key, const std::string& name) override {
        const auto found = registry.find(key + '|' + name);
        if (found == registry.end()) {
            return std::nullopt;
        }
        const bool isNumber = found->second.starts_with('#');
        return Value{isNumber ? numberType : textType, found->second.substr(isNumber) + '\0'};
    }
};

class World {
public:
    World() {
        for (Form* const form : forms) {
            m_connections.push_back(form->Raised.connect(
                [this, form] { machine.log += "front " + form->name() + "; "; }));
            for (Control* const control : form->controls()) {
                const std::string name = form->name() + '.' + control->name();
                m_controls[name] = control;
                m_connections.push_back(control->FocusWanted.connect(
                    [this, name] { machine.log += "focus " + name + "; "; }));
            }
        }
        m_connections.push_back(splash.RepaintWanted.connect([this] { machine.log += "paint; "; }));
        m_connections.push_back(splash.sbInfo.Changed.connect([this] {
            machine.log += splash.sbInfo.text().empty() ? "" : splash.sbInfo.text() + "; ";
        }));
    }

    /// The acts, each with what was asked for and what it has changed.
    std::string run(const Case& each) {
        if (each["acts"].empty()) {
            return layoutOf(splash) + layoutOf(extras) + layoutOf(about) + layoutOfPutAside();
        }
        folder.write("program/images.exe", "archive");
        return playActs(each["acts"], {.act = [this](const std::string& act) { doLine(act); },
                                       .takeLog = [this] { return std::exchange(machine.log, {}); },
                                       .look = [this] { return seen(); },
                                       .folder = folder.path().string()});
    }

private:
    std::string layoutOfPutAside() {
        frmPutAside form({.desktop = machine, .moveToTrash = {}});
        for (const char* const name :
             {"other.shp", "any.fleet", "Away, ships 4, 2025 #4.fleet",
              "Home, ships 3, 2026.1 #1.fleet~7", "Ant, mass 20, 2026-11-27 10.15.30 #2.shp~7"}) {
            form.designs.push_back(*RecoveryDesign::in(name));
            form.designs.back().isLeftBehind = !form.designs.back().mark.empty();
        }
        form.load();
        return layoutOf(form) + stateOf(form.lvDesigns);
    }

    std::map<std::string, std::string> seen() {
        std::map<std::string, std::string> all;
        for (Form* const form : forms) {
            all[form->name()] =
                form->isLoaded()
                    ? form->caption() + (form->isVisible() ? " shown " : " hidden ") +
                          std::to_string(form->width()) + 'x' + std::to_string(form->height()) +
                          " picture " + std::to_string(form->picture().width())
                    : "-";
        }
        for (const auto& [name, control] : m_controls) {
            const ControlDesign& design = control->design();
            all[name] = design.caption + '|' + design.text + (design.isOn ? " on" : "") +
                        (design.isVisible ? "" : " hidden") + (design.isEnabled ? "" : " disabled");
        }
        for (const auto& [key, value] : settings.values) {
            all["setting " + key] = value;
        }
        all["globals"] = globals.g_sDefaultDesigner + (globals.g_bSounds ? " sounds" : "") +
                         (globals.g_bHide ? " hide" : "") +
                         (globals.g_bConfirmExit ? " confirm" : "") +
                         (globals.formula == &formula_calculate ? " formula" : "");
        for (const auto& entry : fs::directory_iterator(folder.path())) {
            const fs::path& file = entry.path();
            all["file " + file.filename().string()] =
                entry.is_directory()
                    ? std::to_string(std::distance(fs::directory_iterator(file), {}))
                    : "";
        }
        std::string& recent = all["recent"];
        for (std::int16_t i = 0; i <= 6; ++i) {
            recent += files ? files->getFile(i) + '.' : "";
        }
        return all;
    }

    void doLine(const std::string& line) {
        const auto [act, rest] = cut(line);
        const auto [name, text] = cut(rest);
        const auto form =
            std::find_if(forms.begin(), forms.end(),
                         [&name = name](const Form* each) { return each->name() == name; });
        Control* const control = m_controls.contains(name) ? m_controls[name] : nullptr;
        try {
            if (form != forms.end()) {
                act == "show"       ? (*form)->show()
                : act == "activate" ? (*form)->activate()
                : act == "key"      ? (*form)->pressKey()
                                    : static_cast<void>((*form)->unload());
            } else if (auto* const box = dynamic_cast<TextBox*>(control)) {
                if (act == "type") {
                    box->type(text);
                } else {
                    machine.log += box->pressKey(std::stoi(text)) ? "taken; " : "";
                }
            } else if (auto* const tick = dynamic_cast<CheckBox*>(control)) {
                tick->press();
            } else if (auto* const button = dynamic_cast<Button*>(control)) {
                button->press();
            } else if (auto* const timer = dynamic_cast<Timer*>(control)) {
                timer->tick();
            } else {
                arrange(act, rest, name, text);
            }
        } catch (const EndOfProgram&) {
            machine.log += "end; ";
        } catch (const FileError& error) {
            machine.log += std::string(error.what()) + "; ";
        }
    }

    /// What the test does to the world.
    void arrange(const std::string& act, const std::string& rest, const std::string& name,
                 const std::string& text) {
        const fs::path file = folder.path() / nativePath(rest);
        const std::map<std::string, std::function<void()>> acts = {
            {"machine", [&] { machine.has.insert(rest); }},
            {"mended", [&] { machine.has.clear(); }},
            {"screen", [&] { machine.screen = {std::stoi(name), std::stoi(text)}; }},
            {"clock", [&] { machine.ticks = std::stoi(rest); }},
            {"tool", [&] { machine.registry[rest] = "tool.exe"; }},
            {"toolNumber", [&] { machine.registry[rest] = "#\x5a\xb1\x02"; }},
            {"toolFolder", [&] { machine.registry[rest] = folder.path().string(); }},
            {"setting", [&] { settings.values[name] = text; }},
            {"faults", [&] { faults = rest; }},
            {"readonly", [&] { settings.isReadOnly = true; }},
            {"folder", [&] { fs::create_directory(file); }},
            {"write", [&] { folder.write(rest, ""); }},
            {"remove", [&] { fs::remove_all(file); }},
            {"list", [&] { files.emplace(settings).BaseName(rest); }},
            {"rename",
             [&] {
                 files->BaseName(rest);
                 machine.log += files->BaseName();
             }},
            {"add", [&] { files->addFile(rest); }},
            {"clear", [&] { files->clearList(); }},
            {"close", [&] { files.reset(); }}};
        acts.at(act)();
    }

    TemporaryFolder folder;
    Machine machine;
    MemorySettings settings;
    Globals globals;
    std::string faults;
    Form main{{.name = "frmMain"}};
    frmSplash splash{{.appFolder = folder.path(),
                      .programFolder = folder.path() / "program",
                      .desktop = machine,
                      .settings = settings,
                      .clock = machine,
                      .sounds = machine,
                      .pictures = machine,
                      .programs = machine,
                      .globals = globals,
                      .catalogueFaults = [this] { return faults; },
                      .mainWindow = [this]() -> Form& { return main; },
                      .isMainWindowLoaded = [this] { return !machine.has.contains("slow"); }}};
    frmExtras extras{{.desktop = machine,
                      .globals = globals,
                      .settings = settings,
                      .nameShip =
                          [this](const std::string& designer, const std::string& ship) {
                              machine.log += "name " + designer + '+' + ship + "; ";
                          },
                      .clearRecentFiles = [this] { machine.log += "clear; "; }}};
    frmAbout about{{.desktop = machine, .programs = machine, .registry = machine}};
    std::vector<Form*> forms = {&main, &splash, &extras, &about};
    std::optional<clsMRUFiles> files;
    std::map<std::string, Control*> m_controls;
    std::vector<Connection> m_connections;
};

TEST(ShellWindows, ShowAndAskForWhatIsDone) {
    expectCases("shell/golden/windows.txt", [](const Case& each) { return World().run(each); });
}

}  // namespace
