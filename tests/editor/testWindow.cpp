#include "testWindow.h"

#include "Error.h"

#include <utility>

namespace fleetwright {

const std::string_view windowCatalogue =
    "CATEGORY,0,0,beam,Guns,O,guns.gif\n"
    "Gun,2 * amount,6 * amount,BEAM,guns,FPS,gun.gif\n"
    "Screen,roundup(mass * 0.1) * amount,3 * mass * amount,x,DEFENSE,O,screen.gif\n"
    "Cloaking Field,roundup(mass / 10),mass,x,SPECIAL,6,cloak.gif\n"
    "Ballast,amount,0,x,SYSTEMS,O,ballast.gif\n"
    "Sponge,roundup(mass * 0.6),1,x,SYSTEMS,O,sponge.gif\n"
    "Giant,2000000000,2000000000,x,HEAVY,F,giant.gif\n";

class TestWindow::Desk : public Desktop {
public:
    explicit Desk(TestWindow& test) : m_test(test) {}

    Answer showMessage(const std::string& text, const std::string& title, Buttons buttons,
                       Icon icon) override {
        m_test.m_log += "box: " + text + (title.empty() ? "" : " / " + title) +
                        (buttons == Buttons::YesNo ? " yes-no" : "") +
                        (icon == Icon::Information ? " info" : "") + "; ";
        return buttons == Buttons::YesNo ? m_test.answer : Answer::Ok;
    }
    void popUp(MenuEntry& menu) override { m_test.m_log += "menu: " + menu.name() + "; "; }
    void showModal(Form& form, Form& owner) override {
        m_test.m_log += "dialog: " + form.name() + " of " + owner.name() + "; ";
        form.show();
        form.activate();
        if (m_test.inDialog) {
            m_test.inDialog(form);
        }
    }
    std::optional<std::string> chooseFileToOpen(const FileDialog&) override { return {}; }
    std::optional<std::string> chooseFileToSave(const FileDialog&) override { return {}; }
    void unloadAllForms() override { m_test.m_log += "unload all; "; }
    ScreenSize screenSize() override { return {1024, 768}; }

private:
    TestWindow& m_test;
};

class TestWindow::Pictures : public PictureFiles {
public:
    explicit Pictures(TestWindow& test) : m_test(test) {}

    Raster load(const std::filesystem::path& file) override {
        if (file.filename() == "missing.gif") {
            throw FileError(file, "cannot be read");
        }
        m_test.m_log +=
            "picture: " + file.lexically_relative(m_test.m_folder.path()).string() + "; ";
        return Raster(32, 32);
    }
    Raster builtIn(const std::string&) override { return Raster(32, 32); }

private:
    TestWindow& m_test;
};

class TestWindow::Progress : public StartUpProgress {
public:
    explicit Progress(TestWindow& test) : m_test(test) {}

    void setText(const std::string& text) override { m_test.m_log += text + "; "; }
    void repaint() override { m_test.m_log += "paint; "; }

private:
    TestWindow& m_test;
};

TestWindow::TestWindow(std::string_view catalogue)
    : m_desk(std::make_unique<Desk>(*this)), m_pictures(std::make_unique<Pictures>(*this)),
      m_progress(std::make_unique<Progress>(*this)) {
    globals.formula = formula_calculate;
    globals.g_sDefaultDesigner = "Somebody";
    m_folder.write("weaps.dat", catalogue);
    m_window = std::make_unique<frmMain>(
        MainWindowServices{.appFolder = m_folder.path(),
                           .eventLoopTurn =
                               [this] {
                                   if (inTurn) {
                                       std::exchange(inTurn, {})();
                                   }
                               },
                           .freeFormulaLibrary = [this] { m_log += "free library; "; },
                           .desktop = *m_desk,
                           .pictures = *m_pictures,
                           .progress = *m_progress,
                           .globals = globals});
}

TestWindow::~TestWindow() = default;

std::string TestWindow::takeLog() {
    return std::exchange(m_log, {});
}

void TestWindow::selectNode(std::string_view key) {
    window().tvWeapons.select(*window().tvWeapons.find(key));
}

std::string TestWindow::list() {
    std::string text;
    const ListView& list = window().lvCurrentWeapons;
    for (std::size_t row = 0; row < list.rows().size(); ++row) {
        text += (row == 0 ? "" : ", ") + list.rows()[row].text + ' ' + list.rows()[row].subItem +
                (list.selected() == row ? "*" : "");
    }
    return text;
}

std::string TestWindow::previews() {
    return window().lblWeapMass[0].caption() + ' ' + window().lblWeapCost[0].caption() + " | " +
           window().lblWeapMass[1].caption() + ' ' + window().lblWeapCost[1].caption();
}

}  // namespace fleetwright
