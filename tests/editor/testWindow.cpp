#include "testWindow.h"

#include "Error.h"
#include "FileStamp.h"
#include "PngChunks.h"
#include "Trash.h"
#include "fingerprint.h"
#include "shipAtHand.h"

#include <algorithm>
#include <cmath>
#include <thread>
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
        m_test.takeTurn();
        raise(m_test.inMessage);
        return buttons == Buttons::YesNo ? m_test.answer : Answer::Ok;
    }
    void popUp(MenuEntry& menu) override {
        m_test.m_log += "menu: " + menu.name() + "; ";
        if (m_test.inPopUp) {
            m_test.inPopUp(menu);
        }
    }
    void showModal(Form& form, Form& owner) override {
        m_test.m_log += "dialog: " + form.name() + " of " + owner.name() + "; ";
        form.show();
        const std::string place = std::to_string(form.left()) + ',' + std::to_string(form.top());
        m_test.m_log += place == "0,0" ? "" : "at " + place + "; ";
        form.activate();
        if (m_test.inDialog) {
            m_test.inDialog(form);
        }
    }
    std::optional<std::string> chooseFileToOpen(const FileDialog& dialog) override {
        return choose(dialog);
    }
    std::optional<std::string> chooseFileToSave(const FileDialog& dialog) override {
        return choose(dialog);
    }
    void askWhatsThis() override { m_test.m_log += "what's this; "; }
    bool openDocument(const std::filesystem::path& document) override {
        m_test.m_log += "document: " + document.filename().string() + "; ";
        return m_test.hasTrash;  // a desktop without the one has no browser, either
    }
    void unloadAllForms() override {
        m_test.m_log += "unload all; ";
        raise(m_test.atEnd);
    }
    ScreenSize screenSize() override { return {1024, 768}; }

private:
    std::optional<std::string> choose(const FileDialog& dialog) {
        const std::vector<std::string> filter = partsOf(dialog.filter, "|");
        // The last kind may have no pattern.
        const std::size_t pattern =
            std::min(static_cast<std::size_t>(2 * dialog.filterIndex), filter.size()) - 1;
        m_test.m_log +=
            "asked: " + filter.at(pattern) + " in " +
            dialog.initialFolder.lexically_relative(m_test.m_folder.path()).generic_string() +
            (dialog.extension.empty() ? "" : " as " + dialog.extension) +
            (dialog.fileName.empty() ? "" : " suggested: " + dialog.fileName) + "; ";
        raise(m_test.inFileDialog);
        return m_test.file;
    }

    TestWindow& m_test;
};

class TestWindow::Pictures : public PictureFiles {
public:
    explicit Pictures(TestWindow& test) : m_test(test) {}

    Raster load(const std::filesystem::path& picture) override {
        const auto name = asItsFolderNamesIt(picture).lexically_relative(m_test.m_folder.path());
        m_test.m_log += "picture: " + name.generic_string() + "; ";
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

class TestWindow::Paper : public Printer {
public:
    explicit Paper(TestWindow& test) : m_test(test) {}

    void setTitle(const std::string& title) override { m_test.m_log += "title " + title + "; "; }
    std::optional<int> choose() override { return m_test.copies; }
    std::string fontName() const override { return m_font; }
    void setFontName(const std::string& name) override {
        m_font = name;
        m_test.m_log += "font " + name + "; ";
    }
    int fontSize() const override { return m_size; }
    void setFontSize(int points) override {
        m_size = points;
        m_test.m_log += "size " + std::to_string(points) + "; ";
    }
    void printLine(std::string_view) override { ++m_lines; }
    void endDocument() override {
        if (m_test.printerFails) {
            throw Error("no paper");
        }
        m_test.m_log += std::to_string(std::exchange(m_lines, 0)) + " lines; ";
    }

private:
    TestWindow& m_test;
    std::string m_font = "Sans";
    int m_size = 12;
    int m_lines = 0;
};

/// Writes down which pages it gets. Its files say that, too; no picture has a drawing.
class TestWindow::Sheets : public PagePrinter, public PictureEncoder, public Drawings {
public:
    explicit Sheets(TestWindow& test) : m_test(test) {}

    Printout print(const Layout& layout) override {
        m_test.m_log += "print " + textOf(layout(paperLetter)) + "; ";
        return m_test.printerFails ? throw Error("no paper") : printout();
    }
    Printout preview(const Layout& layout) override {
        m_test.m_log += "preview " + textOf(layout(paperLetter)) + "; ";
        return printout();
    }
    void writePdf(const PageDocument& pages, const FileOut& out) override {
        out("PDF ");
        out(textOf(pages));
    }
    std::string encode(const Raster& picture, const std::string& format) override {
        return std::string(pngSignature) + pngChunk("IHDR", format) +
               pngChunk("IEND", std::to_string(picture.width()));
    }
    std::shared_ptr<const Drawing> of(const Raster&) const override { return nullptr; }

    static std::string textOf(const PageDocument& pages) {
        return std::to_string(pages.pages.size()) + " of " + pages.title + " on " +
               std::to_string(std::lround(pages.size.width)) + (pages.date ? " dated" : "");
    }

private:
    Printout printout() const {
        return m_test.copies ? Printout{.way = Printout::Way::Paper}
               : m_test.file ? Printout{Printout::Way::File, *m_test.file, paperLetter}
                             : Printout();
    }

    TestWindow& m_test;
};

/// A folder of the test.
class TestWindow::Bin : public Trash {
public:
    explicit Bin(TestWindow& test) : m_test(test) {}

    bool moveToTrash(const std::filesystem::path& design) override {
        m_test.m_log += "trash; ";
        if (!m_test.hasTrash) {
            return false;
        }
        const std::filesystem::path bin = m_test.m_folder.path() / "trash";
        std::filesystem::create_directory(bin);
        std::error_code error;
        std::filesystem::rename(design, bin / design.filename(), error);
        return !error;
    }

private:
    TestWindow& m_test;
};

TestWindow::TestWindow(std::string_view catalogue)
    : m_desk(std::make_unique<Desk>(*this)), m_pictures(std::make_unique<Pictures>(*this)),
      m_progress(std::make_unique<Progress>(*this)), m_paper(std::make_unique<Paper>(*this)),
      m_sheets(std::make_unique<Sheets>(*this)),
      m_extras(
          {.desktop = *m_desk,
           .globals = globals,
           .settings = m_settings,
           .nameShip = [this](const std::string& designer,
                              const std::string& ship) { window().names.nameShip(designer, ship); },
           .clearRecentFiles =
               [this] {
                   window().CMRUList->clearList();
                   window().fillMRU();
               }}),
      m_bin(std::make_unique<Bin>(*this)),
      m_recovery(
          m_folder.path() / "recovered", [this] { return "time " + std::to_string(++m_time); },
          *m_bin),
      m_putAside({.desktop = *m_desk, .moveToTrash = [this](const RecoveryDesign& design) {
                      return m_recovery.moveToTrash(design);
                  }}) {
    clock.step = 2000;
    globals.formula = formula_calculate;
    globals.g_sDefaultDesigner = "Somebody";
    m_folder.write("weaps.dat", catalogue);
    m_window = std::make_unique<frmMain>(
        MainWindowServices{.appFolder = m_folder.path(),
                           .guide = m_folder.path() / "guide" / "index.html",
                           .eventLoopTurn =
                               [this] {
                                   takeTurn();
                                   raise(inEachTurn);
                               },
                           .freeFormulaLibrary = [this] { m_log += "free library; "; },
                           .catalogueFaults = [this] { return catalogueFaults; },
                           .desktop = *m_desk,
                           .pictures = *m_pictures,
                           .progress = *m_progress,
                           .globals = globals,
                           .settings = m_settings,
                           .printer = *m_paper,
                           .extras = [this]() -> frmExtras& { return m_extras; },
                           .showAbout = [this] { openOther("about"); },
                           .showMapper = [this] { openOther("mapper"); },
                           .showViewer = [this] { openOther("viewer"); },
                           .showMapCreator = [this] { openOther("map creator"); },
                           .recovery = &m_recovery,
                           .putAside = [this]() -> frmPutAside& { return m_putAside; },
                           .sheets = [this] { return m_output.get(); },
                           .clipboard = &clipboard,
                           .fleet = [this] { return m_fleet.get(); },
                           .isStartOver = [this] { return isStartOver; },
                           .clock = &clock});
    m_cached = std::make_unique<PictureCache>(*m_pictures);
    m_images = programImages(m_folder.path(), *m_cached, window().tree.ilWeapons);
    m_output = std::make_unique<SheetOutput>(SheetOutput::Services{
        .appFolder = m_folder.path(),
        .desktop = *m_desk,
        .printer = *m_sheets,
        .encoder = *m_sheets,
        .svgFile = [](const PageDocument& pages) { return "SVG " + Sheets::textOf(pages); },
        .sources = {outlinesIn(*m_cached), m_images, *m_sheets},
        .g_colSSDMaps = globals.g_colSSDMaps,
        .g_iLargestSSD = globals.g_iLargestSSD,
        .newShip = [this] { return newShip(); },
        .say = [this](const std::string& text) { window().sbStatus.setText(text); }});
    makeFleet();
}

void TestWindow::makeFleet() {
    m_fleet = std::make_unique<frmFleet>(FleetServices{
        .appFolder = m_folder.path(),
        .desktop = *m_desk,
        .clock = clock,
        .confirmsExit = globals.g_bConfirmExit,
        .recovery = m_recovery,
        .canReadShips = [this] { return window().isAtRest(); },
        .readShip =
            [this](const std::string& name) {
                try {
                    return readShip(name);
                } catch (const Error& error) {  // the catalogue cannot be read
                    FleetRow row;
                    row.faults.push_back({0, error.what()});
                    return row;
                }
            },
        .catalogue =
            [this] { return "catalogue of " + std::to_string(m_folder.read("weaps.dat").size()); },
        .shipAtHand = [this] { return shipAtHand(window()); },
        .openShip = [this](const std::string& name) { window().files.openFiles({name}); },
        .sheets = [this]() -> const SheetOutput& { return *m_output; },
        .pages =
            [](const Fleet& fleet, const FleetRows&, const std::filesystem::path&) {
                return [fleet](const PageSize& paper) {
                    PageDocument pages;
                    pages.title = fleet.name;
                    pages.size = paper;
                    pages.pages.resize(fleet.ships.size());
                    return pages;
                };
            },
        .playPage = [](const Fleet& fleet,
                       const std::filesystem::path&) { return "To play: " + fleet.name; },
        .leftOut =
            [this] {
                const bool isThere = std::filesystem::exists(m_folder.path() / "ships/big.shp");
                return std::string(isThere ? "big.shp (there is no map)" : "");
            }});
}

std::unique_ptr<ShipClass> TestWindow::newShip() const {
    return std::make_unique<ShipClass>(
        ShipServices{CatalogueFile(m_folder.path() / "weaps.dat"), globals.formula, {}});
}

FleetRow TestWindow::readShip(const std::string& name) const {
    FleetRow row;
    const auto ship = newShip();
    if (!ship->loadShip(name)) {
        row.faults.push_back(*ship->fileFault());
        return row;
    }
    row.fingerprint = fingerprint(ship->shipFile());
    ship->weapChange();
    row.figures = shipFigures(*ship);
    for (const RefusedLine& line : ship->refusedLines()) {
        row.faults.push_back(line.fault);
    }
    return row;
}

std::vector<std::string> partsOf(const std::string& text, const std::string& separator) {
    std::vector<std::string> found;
    for (std::size_t at = 0; !text.empty() && at <= text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        found.push_back(text.substr(at, end - at));
        at = end + separator.size();
    }
    return found;
}

TestWindow::~TestWindow() = default;

void TestWindow::scanMaps() {
    const LoadedMaps maps = loadMaps(m_folder.path());
    globals.droppedMaps = maps.dropped;
    globals.g_colSSDMaps = maps.maps;
    globals.g_iLargestSSD = maps.g_iLargestSSD;
}

void TestWindow::letFilesGetOld() {
    std::this_thread::sleep_for(FileStamp::coarsest);
}

void TestWindow::takeTurn() {
    raise(std::exchange(inTurn, {}));
}

void TestWindow::openOther(const std::string& name) {
    m_log += name + "; ";
    showOther(name);
}

Desktop& TestWindow::desktop() {
    return *m_desk;
}

std::string TestWindow::takeLog() {
    return std::exchange(m_log, {});
}

void TestWindow::selectNode(std::string_view key) {
    window().tree.tvWeapons.select(*window().tree.tvWeapons.find(key));
}

}  // namespace fleetwright
