#include "Program.h"

#include "CatalogueCheck.h"
#include "ControlTexts.h"
#include "DrawingPack.h"
#include "Error.h"
#include "FleetTools.h"
#include "Globals.h"
#include "PictureCache.h"
#include "QtClipboard.h"
#include "QtClock.h"
#include "QtDesktop.h"
#include "QtPagePrinter.h"
#include "QtPictureFiles.h"
#include "QtPrinter.h"
#include "QtPrograms.h"
#include "QtRegistry.h"
#include "QtSettingsStore.h"
#include "QtSounds.h"
#include "QtTrash.h"
#include "ReadableStyle.h"
#include "RecoveryFolder.h"
#include "SheetOutput.h"
#include "applicationFolder.h"
#include "checkPicturesAtStart.h"
#include "designCode.h"
#include "frmAbout.h"
#include "frmExtras.h"
#include "frmFleet.h"
#include "frmMain.h"
#include "frmMapper.h"
#include "frmPutAside.h"
#include "frmSSDMapCreator.h"
#include "frmSSDView.h"
#include "frmSplash.h"
#include "leftovers.h"
#include "paths.h"
#include "programIcon.h"
#include "saveFile.h"
#include "sheetShip.h"
#include "shipAtHand.h"
#include "svgFile.h"
#include "windowApplication.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <array>
#include <exception>
#include <string>
#include <vector>

namespace fleetwright {

namespace {

/// The time as it stands in the name of a design put aside.
std::string currentTime() {
    return QDateTime::currentDateTime().toString("yyyy-MM-dd HH.mm.ss").toStdString();
}

/// Where a start notes that all pictures are well; a user without a home has no such place.
std::filesystem::path pictureMemory() {
    try {
        return userCacheFolder() / "pictures";
    } catch (const FileError&) {
        return {};
    }
}

/// What keeps the catalogue in an application folder from being used, and its pictures where they
/// are given, as one text to show: a line for each fault, up to ten. Empty if nothing does. A
/// catalogue that cannot be read at all has no faults: the main window has messages of its own for
/// that.
std::string catalogueFaults(const CatalogueFile& file, PictureFiles* pictures = nullptr) {
    constexpr std::size_t most = 10;
    std::vector<Fault> faults;
    try {
        const std::shared_ptr<const CatalogueText> catalogue = file.read();
        faults = checkCatalogue(*catalogue, CatalogueCheck::Start);
        if (pictures != nullptr) {
            for (Fault& fault :
                 checkPicturesAtStart(*catalogue, file.path().parent_path() / "images", *pictures,
                                      pictureMemory())) {
                faults.push_back(std::move(fault));
            }
        }
        sortByLine(faults);
    } catch (const FileError&) {
        return {};
    }
    std::string text;
    for (std::size_t i = 0; i < std::min(faults.size(), most); ++i) {
        text += complaint(file.path().string(), faults[i]) + '\n';
    }
    return text;
}

/// The files, or the code, that the program was started with. Some launchers name files by URLs.
std::vector<std::string> filesOnCommandLine() {
    std::vector<std::string> files;
    for (const QString& word : QApplication::arguments().mid(1)) {
        if (isDesignCode(word.toStdString())) {
            files.push_back(word.toStdString());
            continue;
        }
        const QUrl url(word);
        files.push_back(QFileInfo(url.isLocalFile() ? url.toLocalFile() : word)
                            .absoluteFilePath()
                            .toStdString());
    }
    return files;
}

/// The services and the windows of the running program, joined.
class Program {
public:
    Program(QtDesktop& desktop, bool isMeasured)
        : m_programFolder(nativePath(QApplication::applicationDirPath().toStdString())),
          m_appFolder(applicationFolder(m_programFolder)), m_desktop(desktop),
          m_sounds(m_programFolder), m_recovery(RecoveryFolder::ofUser(), currentTime, m_trash),
          m_splash(
              {.appFolder = m_appFolder,
               .programFolder = m_programFolder,
               .desktop = desktop,
               .settings = m_settings,
               .clock = m_clock,
               .sounds = m_sounds,
               .pictures = m_pictures,
               .programs = m_programs,
               .globals = m_globals,
               .catalogueFaults = [this] { return catalogueFaults(m_catalogueFile, &m_pictures); },
               .mainWindow = [this]() -> Form& { return m_main; },
               .isMainWindowLoaded = [this] { return m_main.g_bLoaded; }}),
          m_main({.appFolder = m_appFolder,
                  .guide = m_programFolder / "guide" / "index.html",
                  .catalogueFile = m_catalogueFile,
                  .eventLoopTurn = [] { QApplication::processEvents(); },
                  .freeFormulaLibrary = [this] { freeFormulaLibrary(); },
                  .catalogueFaults = [this] { return catalogueFaults(m_catalogueFile); },
                  .desktop = desktop,
                  .pictures = m_pictures,
                  .progress = m_splash,
                  .globals = m_globals,
                  .settings = m_settings,
                  .printer = m_printer,
                  .extras = [this]() -> frmExtras& { return m_extras; },
                  .showAbout = [this] { m_about.show(); },
                  .showMapper = [this] { bringUp(m_mapper); },
                  .showViewer = [this] { bringUp(m_viewer); },
                  .showMapCreator = [this] { bringUp(m_mapCreator); },
                  .recovery = &m_recovery,
                  .putAside = [this]() -> frmPutAside& { return m_putAside; },
                  .sheets = [this] { return &m_sheets; },
                  .clipboard = &m_clipboard,
                  .fleet = [this] { return &m_fleet; },
                  .isStartOver = [this] { return !m_splash.isLoaded() && m_main.isVisible(); },
                  .clock = &m_clock}),
          m_extras({.desktop = desktop,
                    .globals = m_globals,
                    .settings = m_settings,
                    .nameShip =
                        [this](const std::string& designer, const std::string& ship) {
                            m_main.names.nameShip(designer, ship);
                        },
                    .clearRecentFiles =
                        [this] {
                            m_main.CMRUList->clearList();
                            m_main.fillMRU();
                        }}),
          m_putAside({.desktop = desktop,
                      .moveToTrash =
                          [this](const RecoveryDesign& design) {
                              return m_recovery.moveToTrash(design);
                          }}),
          m_images(programImages(m_appFolder, m_pictures, m_main.tree.ilWeapons)),
          m_sheets(
              {.appFolder = m_appFolder,
               .desktop = desktop,
               .printer = m_pagePrinter,
               .encoder = m_pictureFiles,
               .svgFile =
                   [this](const PageDocument& pages) { return svgFile(pages, m_pictureFiles); },
               .sources = {outlinesIn(m_pictures), m_images, m_drawings},
               .g_colSSDMaps = m_globals.g_colSSDMaps,
               .g_iLargestSSD = m_globals.g_iLargestSSD,
               .newShip =
                   [this] {
                       return std::make_unique<ShipClass>(
                           ShipServices{m_catalogueFile, m_globals.formula, {}});
                   },
               .say = [this](const std::string& text) { m_main.sbStatus.setText(text); }}),
          m_mapper({.appFolder = m_appFolder,
                    .desktop = desktop,
                    .outlines = outlinesIn(m_pictures),
                    .encoder = m_pictureFiles,
                    .images = m_images,
                    .g_colSSDMaps = m_globals.g_colSSDMaps,
                    .lvCurrentWeapons = m_main.aboard.lvCurrentWeapons,
                    .ship = [this] { return sheetShip(m_main); },
                    .actsFor =
                        [this](const SSDMap& map, const SheetOutput::Rows& aboard,
                               const Raster& bitmap) {
                            return m_sheets.acts(
                                SheetOutput::madeAtOnce([&] {
                                    return m_sheets.onMap(sheetShip(m_main), aboard, map, bitmap);
                                }),
                                [this](const std::string& text) { m_mapper.say(text); });
                        },
                    .say = [this](const std::string& text) { m_main.sbStatus.setText(text); }}),
          m_about({.desktop = desktop, .programs = m_programs, .registry = m_registry}),
          m_mapCreator({.appFolder = m_appFolder,
                        .desktop = desktop,
                        .pictures = m_pictureFiles,
                        .clock = m_clock,
                        .eventLoopTurn = [] { QApplication::processEvents(); },
                        .g_colSSDMaps = m_globals.g_colSSDMaps}),
          m_viewer({.appFolder = m_appFolder,
                    .desktop = desktop,
                    .pictures = m_pictureFiles,
                    .actsFor =
                        [this](const std::filesystem::path& file, const Raster& picture) {
                            return m_sheets.acts(
                                [this, file, picture] { return m_sheets.ofPicture(file, picture); },
                                [this](const std::string& text) { m_viewer.say(text); });
                        }}),
          m_fleetTools({.appFolder = m_appFolder,
                        .catalogue = m_catalogueFile,
                        .pictures = m_pictures,
                        .encoder = m_pictureFiles,
                        .drawings = m_drawings,
                        .globals = m_globals}),
          m_fleet(
              {.appFolder = m_appFolder,
               .desktop = desktop,
               .clock = m_clock,
               .confirmsExit = m_globals.g_bConfirmExit,
               .recovery = m_recovery,
               .canReadShips = [this] { return m_main.isAtRest(); },
               .readShip = [this](const std::string& ship) { return m_fleetTools.readShip(ship); },
               .catalogue = [this] { return m_fleetTools.catalogue(); },
               .shipAtHand = [this] { return shipAtHand(m_main); },
               .openShip =
                   [this](const std::string& ship) {
                       bringUp(m_main);
                       m_main.files.openFiles({ship});
                   },
               .sheets = [this]() -> const SheetOutput& { return m_sheets; },
               .pages =
                   [this](const Fleet& fleet, const FleetRows& rows,
                          const std::filesystem::path& folder) {
                       return m_fleetTools.pages(fleet, rows, folder);
                   },
               .playPage =
                   [this](const Fleet& fleet, const std::filesystem::path& folder) {
                       return m_fleetTools.playPage(fleet, folder);
                   },
               .leftOut = [this] { return m_fleetTools.leftOut(); }}) {
        desktop.equip(m_settings, m_drawings);
        takeLeftoversAway(m_appFolder);
        for (Form* const form : windows()) {
            if (form != &m_splash || !isMeasured) {
                desktop.present(*form);
            }
        }
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    ~Program() {
        for (Form* const form : windows()) {
            m_desktop.dismiss(*form);
        }
    }

    int run() {
        m_splash.load();
        m_main.files.openAfterStart(filesOnCommandLine());
        return QApplication::exec();
    }

    int runUntilPainted(const std::function<void()>& painted) {
        m_splash.load();
        m_main.show();
        m_main.repaint();
        painted();
        return 0;
    }

private:
    /// The forms with windows of their own. The page of settings and the list of
    /// designs put aside are dialogs of the main window.
    std::array<Form*, 9> windows() {
        return {&m_splash, &m_main,  &m_main.findings.list, &m_main.compare.beside,
                &m_mapper, &m_about, &m_mapCreator,         &m_viewer,
                &m_fleet};
    }

    /// Opens a window or, if it is open, brings it to the front.
    static void bringUp(Form& form) {
        if (form.isLoaded() && form.state() == WindowState::Minimized) {
            form.setState(WindowState::Normal);
        }
        form.show();
    }

    void freeFormulaLibrary() {
        m_globals.formula = nullptr;
        m_programs.freeLibrary(std::exchange(m_globals.g_hFormulaLib, nullptr));
    }

    std::filesystem::path m_programFolder;
    std::filesystem::path m_appFolder;
    CatalogueFile m_catalogueFile{m_appFolder / "weaps.dat"};
    QtDesktop& m_desktop;
    QtSettingsStore m_settings;
    QtClipboard m_clipboard;
    QtClock m_clock;
    QtSounds m_sounds;
    QtPictureFiles m_pictureFiles;
    /// For the application folder alone: what users choose may be large, and would stay for ever.
    PictureCache m_pictures{m_pictureFiles};
    QtPrograms m_programs;
    DrawingPack m_drawings{drawingsFile(m_appFolder)};
    QtPrinter m_printer;
    QtPagePrinter m_pagePrinter;
    QtRegistry m_registry;
    QtTrash m_trash;
    RecoveryFolder m_recovery;
    Globals m_globals;
    frmSplash m_splash;
    frmMain m_main;
    frmExtras m_extras;
    frmPutAside m_putAside;
    SheetImages m_images;
    SheetOutput m_sheets;
    frmMapper m_mapper;
    Connection m_sheetFollows = m_main.Rested.connect([this] { m_mapper.followDesign(); });
    frmAbout m_about;
    frmSSDMapCreator m_mapCreator;
    frmSSDView m_viewer;
    FleetTools m_fleetTools;
    frmFleet m_fleet;
};

}  // namespace

int runProgram(int argc, char** argv, const std::function<void()>& painted) {
    letFileSizeLimitFail();
    const QApplication application = windowApplication(argc, argv);
    useReadableStyle();
    QApplication::setApplicationName(applicationTitle);
    // By this name desktops find the entry that a package has installed, and with it the icon.
    QApplication::setDesktopFileName("org.fleetwright.fleetwright");
    QApplication::setWindowIcon(programIcon());
    QApplication::setQuitOnLastWindowClosed(false);
    QtDesktop desktop(whatsThis);
    try {
        Program program(desktop, painted != nullptr);
        return painted ? program.runUntilPainted(painted) : program.run();
    } catch (const EndOfProgram&) {
        return 1;
    } catch (const FileError& error) {
        showFileError(desktop, error);
        return 1;
    } catch (const std::exception& error) {
        desktop.showMessage(error.what(), "", Buttons::Ok, Icon::Critical);
        return 1;
    }
}

}  // namespace fleetwright
