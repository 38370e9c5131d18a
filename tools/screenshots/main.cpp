// Takes pictures of the program's windows in their states, without a screen: looks at what a user
// sees, and makes the pictures of the guides.

#include "Clock.h"
#include "Error.h"
#include "FormWindow.h"
#include "PictureDesktop.h"
#include "QtPictureFiles.h"
#include "QtPrograms.h"
#include "QtRegistry.h"
#include "ReadableStyle.h"
#include "SSDMaps.h"
#include "SilentServices.h"
#include "fleetPictures.h"
#include "frmAbout.h"
#include "frmExtras.h"
#include "frmFindings.h"
#include "frmMain.h"
#include "frmMapper.h"
#include "frmPutAside.h"
#include "frmSSDMapCreator.h"
#include "frmSSDView.h"
#include "guidePictures.h"
#include "paths.h"
#include "saveFile.h"
#include "sheetPages.h"
#include "sheetShip.h"

#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

using namespace fleetwright;
namespace fs = std::filesystem;

QPalette darkPalette() {
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::Highlight, QColor(60, 110, 170));
    return palette;
}

/// Shows a ship with a system of it selected in the tree.
void showShip(frmMain& window, const fs::path& ship, const std::string& system) {
    if (!window.files.loadFile(ship.string())) {
        throw FileError(ship, "does not load");
    }
    TreeView::Node* const node = window.tree.tvWeapons.find(system);
    for (TreeView::Node* above = node->parent; above != nullptr; above = above->parent) {
        window.tree.tvWeapons.setExpanded(*above, true);
    }
    window.tree.tvWeapons.select(*node);
    window.aboard.lvCurrentWeapons.select(1);
    window.tmrRefreshScreen.tick();
}

/// The window of sheets before and after the ship of the main window is drawn.
void takeMapper(PictureDesktop& desktop, const frmMain& form, const fs::path& appFolder) {
    QtPictureFiles files;
    const SheetImages images = programImages(appFolder, files, form.tree.ilWeapons);
    const SSDMaps maps = loadMaps(appFolder).maps;
    frmMapper mapper({.appFolder = appFolder,
                      .desktop = desktop,
                      .outlines = outlinesIn(files),
                      .encoder = files,
                      .images = images,
                      .g_colSSDMaps = maps,
                      .lvCurrentWeapons = form.aboard.lvCurrentWeapons,
                      .ship = [&form] { return sheetShip(form); }});
    mapper.load();
    const std::unique_ptr<FormWindow> window = desktop.windowOf(mapper);
    mapper.show();
    desktop.take(*window, "mapper-empty");
    mapper.cboMapSelection.type("Cruiser Warship - Halberd");
    mapper.cmdDrawIt.press();
    desktop.take(*window, "mapper");
}

/// The question after a crash.
void takePutAside(PictureDesktop& desktop, Form& owner) {
    frmPutAside putAside({.desktop = desktop, .moveToTrash = {}});
    for (const char* const name : {"Provost, mass 24, 2026-05-01 17.03.59 #12.shp~7",
                                   "Saltmarsh, mass 60, 2026-04-28 09.10.11 #11.shp",
                                   "Larkfield 2026-03-28 21.45.00.shp", "My own.shp"}) {
        putAside.designs.push_back(RecoveryDesign::in(name).value());
        putAside.designs.back().isLeftBehind = putAside.designs.size() == 1;
    }
    desktop.showModal(putAside, owner);
}

/// A design beside another ship.
void takeComparison(PictureDesktop& desktop, frmMain& form, const fs::path& other) {
    frmCompare& comparison = form.compare.beside;
    form.compare.mnuCompare.choose();
    desktop.choice = other;
    comparison.cmdChoose.press();
    desktop.take(*desktop.windowOf(comparison), comparison.name());
    comparison.unload();
}

/// The list of what is wrong with a design.
void takeFindings(PictureDesktop& desktop, Form& owner) {
    frmFindings findings([](std::size_t) {});
    findings.setFindings(
        {{.key = "1",
          .text = "Overloaded: the systems are 2 mass units too heavy for the hull",
          .subItem = "Mass"},
         {.key = "2", .text = "Unknown system \"Ram\"", .subItem = "Larkfield.shp, line 9"}});
    desktop.showModal(findings, owner);
}

/// A clock by which each look is so late that the event loop gets its turn.
class LateClock : public Clock {
public:
    std::int32_t tickCount() override { return m_now += 30; }
    void sleep(int) override {}

private:
    std::int32_t m_now = 0;
};

/// The windows around maps: new, with an outline whose scan is on its way, and with its map.
void takeAuthoring(const fs::path& pictures, PictureDesktop& desktop) {
    QtPictureFiles files;
    LateClock clock;
    SSDMaps maps;
    FormWindow* shown = nullptr;
    int turns = 0;
    frmSSDMapCreator creator({.appFolder = pictures,
                              .desktop = desktop,
                              .pictures = files,
                              .clock = clock,
                              .eventLoopTurn =
                                  [&] {
                                      constexpr int middle = 20;
                                      if (++turns == middle) {
                                          desktop.take(*shown, "map-creator-scanning");
                                      }
                                  },
                              .g_colSSDMaps = maps});
    creator.load();
    const std::unique_ptr<FormWindow> creatorWindow = desktop.windowOf(creator);
    shown = creatorWindow.get();
    desktop.take(*creatorWindow, "map-creator-new");
    desktop.choice = pictures / "shipimages" / "Capital Warship - Sovereign.gif";
    creator.cmdSelect.press();
    creator.cmdDoit.press();
    desktop.take(*creatorWindow, "map-creator");

    frmSSDView viewer({.appFolder = pictures, .desktop = desktop, .pictures = files});
    viewer.show();
    const std::unique_ptr<FormWindow> viewerWindow = desktop.windowOf(viewer);
    desktop.take(*viewerWindow, "viewer-new");
    viewer.cmdSelect.press();
    desktop.take(*viewerWindow, "viewer");
}

void takeAll(const fs::path& data, const fs::path& pictures, const fs::path& output) {
    fs::create_directories(output);
    const QTemporaryDir temporary;
    const fs::path appFolder = temporary.path().toStdString();
    fs::copy_file(data / "weaps.dat", appFolder / "weaps.dat");
    for (const char* const folder : {"images", "maps", "shipimages"}) {
        fs::create_directory_symlink(fs::absolute(pictures) / folder, appFolder / folder);
    }
    fs::create_symlink(fs::absolute(pictures) / "drawings.dat", appFolder / "drawings.dat");
    drawSheets(appFolder, data / "ships", output);

    PictureDesktop desktop(pictures, output);
    QtPictureFiles files;
    QtPrograms programs;
    QtRegistry registry;
    SilentServices silent(desktop);
    MainWindowServices services = silent.services(appFolder, files);
    frmExtras extras({.desktop = desktop,
                      .globals = services.globals,
                      .settings = services.settings,
                      .nameShip = {},
                      .clearRecentFiles = {}});
    services.extras = [&extras]() -> frmExtras& { return extras; };
    frmMain form(services);
    form.load();
    const auto take = [&](const std::string& name) {
        const std::unique_ptr<FormWindow> window = desktop.windowOf(form);
        window->show();
        if (const TreeView::Node* const selected = form.tree.tvWeapons.selected()) {
            form.tree.tvWeapons.SightWanted.raise(*selected);  // of a window that is new
        }
        desktop.take(*window, name);
        auto* const menu = window->findChild<QMenu*>("mnuDesign");
        menu->resize(menu->sizeHint());
        desktop.take(*menu, name + "-menu");
    };
    frmAbout about({.desktop = desktop, .programs = programs, .registry = registry});
    const auto takeDialogs = [&] {
        form.windows.mnuExtrasPage.choose();
        takePutAside(desktop, form);
        takeFindings(desktop, form);
        desktop.showModal(about, form);
        takeAuthoring(pictures, desktop);
        takeMapper(desktop, form, appFolder);
        takeFleets(desktop, appFolder, data);
        takeComparison(desktop, form, data / "ships" / "Rook.shp");
    };
    form.setVisible(true);
    take("main-new");
    buildFirstShip(form, appFolder / "first");
    take("first-ship");
    drawSheets(appFolder, appFolder / "first", output / "guide");
    showShip(form, data / "ships" / "Provost.shp", "Pulse Cannon III (FPS)");
    take("main");
    form.aboard.lvCurrentWeapons.pressMouse({.button = RightButton});
    const QPalette light = QApplication::palette();
    for (const bool isDark : {false, true}) {
        QApplication::setPalette(isDark ? darkPalette() : light);
        for (const int percent : {75, 100, 150, 200, 300}) {
            desktop.zoom = Zoom(percent);
            desktop.ending = (isDark ? "-dark" : "") +
                             (percent == Zoom::actual ? "" : '-' + std::to_string(percent));
            take("main");
            takeDialogs();
        }
    }
    desktop.zoom = Zoom();
    QApplication::setPalette(light);
    desktop.ending = "-large-font";
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    QApplication::setFont(large);
    take("main");
    takeAuthoring(pictures, desktop);
    desktop.ending = "";
    form.hull.optStarBase.choose();
    form.mass.mnuAutoMass.choose();
    take("main-base");
}

/// Has Qt draw on a screen in memory that has room for every window: on a smaller one they scroll.
void useLargeScreen(const QString& description) {
    saveFile(description.toStdString(),
             R"({"screens": [{"name": "large", "x": 0, "y": 0, "width": 2400, "height": 2400,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.toLocal8Bit());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("Usage: window-screenshots DATA PICTURES OUTPUT\n", stderr);
        return 2;
    }
    const QTemporaryDir settings;  // the pictures are nobody's in particular
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    useLargeScreen(settings.filePath("screen.json"));
    const QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    useReadableStyle();
    try {
        takeAll(argv[1], argv[2], argv[3]);
    } catch (const FileError& error) {
        std::fprintf(stderr, "%s\n", complaint(error).c_str());
        return 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "window-screenshots: %s\n", error.what());
        return 1;
    }
    return 0;
}
