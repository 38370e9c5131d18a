// Loads, edits and saves ships in one program for as long as nobody would sit there, with a sheet
// every hundred rounds, and shows that memory does not grow:
//
//     soak-designs [ROUNDS]     100000 if it is not said

#include "PictureCache.h"
#include "SSDMaps.h"
#include "ToolPictures.h"
#include "files.h"
#include "frmMapper.h"
#include "paths.h"
#include "sheetShip.h"
#include "testWindow.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

constexpr int roundsToASheet = 100;

/// Memory that this program has in use, in KiB.
long residentMemory() {
    long size = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void check(bool isAsMeant, const std::string& what) {
    if (!isAsMeant) {
        throw std::runtime_error(what);
    }
}

/// The window in which sheets are made, beside the main window.
class SheetWindow {
public:
    SheetWindow(const TestWindow& test, const frmMain& main)
        : m_app(test.folder().path()), m_file(m_app / "sheet.bmp"),
          m_images(programImages(m_app, m_pictures, main.tree.ilWeapons)), m_maps(loadMaps(m_app)),
          m_window({.appFolder = m_app,
                    .desktop = m_desktop,
                    .pictures = m_pictures,
                    .encoder = m_decoder,
                    .images = m_images,
                    .g_colSSDMaps = m_maps,
                    .lvCurrentWeapons = main.aboard.lvCurrentWeapons,
                    .ship = [&main] { return sheetShip(main); }}) {
        m_desktop.choice = m_file;
    }

    /// Whether the ship at hand has room on a map; then its sheet is in the file.
    bool draw() {
        m_window.show();
        const bool hasMap = !m_window.cboMapSelection.items().empty();
        if (hasMap) {
            fs::remove(m_file);
            m_window.cboMapSelection.choose(0);
            m_window.cmdDrawIt.press();
            m_window.cmdSave.press();
            check(fs::exists(m_file) && !m_window.isLoaded(),
                  "a sheet was not saved: " + m_desktop.log);
        }
        m_window.unload();
        return hasMap;
    }

private:
    fs::path m_app;
    fs::path m_file;
    ChoosingDesktop m_desktop;
    ToolPictures m_decoder{APP_FOLDER};
    PictureCache m_pictures{m_decoder};
    SheetImages m_images;
    SSDMaps m_maps;
    frmMapper m_window;
};

class DesignRounds {
public:
    DesignRounds() {
        const fs::path& app = m_test.folder().path();
        for (const char* const name : {"maps", "shipimages"}) {
            fs::create_directory_symlink(fs::path(APP_FOLDER) / name, app / name);
        }
        fs::create_directory_symlink(fs::path(PICTURES_FOLDER) / "images", app / "images");
        m_window.show();
        m_sheets.emplace(m_test, m_window);
        for (const TreeView::Node& node : m_window.tree.tvWeapons.nodes()) {
            if (node.children.empty()) {
                m_systems.push_back(node.key);
            }
        }
    }

    void run(int round) {
        const auto number = static_cast<std::size_t>(round);
        const bool isForSheet = round % roundsToASheet == 0;
        do {
            load(m_ships[m_nextShip++ % m_ships.size()]);
        } while (isForSheet && !m_sheets->draw());
        m_window.hull.optThrust[number % 2 + 3].choose();
        m_window.mass.mnuAutoMass.choose();
        m_test.selectNode(m_systems[number % m_systems.size()]);
        m_window.tree.tvWeapons.doubleClick();
        m_window.tree.mnuAddWeap[1].choose();
        if (!m_window.aboard.lvCurrentWeapons.rows().empty()) {
            m_window.aboard.lvCurrentWeapons.select(0);
            m_window.aboard.lvCurrentWeapons.doubleClick();
        }
        m_window.mass.mnuAutoMass.choose();
        m_window.tmrRefreshScreen.tick();
        m_window.recovery.tmrRecovery.tick();
        if (round % 3 == 0) {
            return;  // the next load keeps it among those put aside
        }
        m_test.file = (m_test.folder().path() / ("ship" + std::to_string(round % 8))).string();
        const std::string shipFile = m_test.ship().shipFile();
        m_window.files.mnuSaveAs.choose();
        check(m_test.ship().g_bSaved &&
                  m_test.folder().read("ship" + std::to_string(round % 8) + ".shp") == shipFile,
              "a ship was not saved");
        load(*m_test.file + ".shp");
        check(m_test.ship().shipFile() == shipFile, "a ship was not loaded as it was saved");
        m_test.takeLog();
    }

private:
    void load(const std::string& file) {
        m_test.file = file;
        m_window.files.mnuLoad.choose();
        check(!m_window.files.fileFault, "a ship was not loaded");
    }

    TestWindow m_test{readTextFile(fs::path(APP_FOLDER) / "weaps.dat")};
    frmMain& m_window = m_test.window();
    std::optional<SheetWindow> m_sheets;
    std::vector<std::string> m_ships = [] {
        std::vector<std::string> names;
        for (const fs::path& file : listFolder(fs::path(APP_FOLDER) / "ships", ".shp")) {
            names.push_back(file.string());
        }
        return names;
    }();
    std::size_t m_nextShip = 0;
    std::vector<std::string> m_systems;
};

int soak(int rounds) {
    DesignRounds designs;
    long firstTenth = 0;
    for (int round = 0; round < rounds; ++round) {
        designs.run(round);
        if ((round + 1) % (rounds / 10) == 0) {
            const long resident = residentMemory();
            firstTenth = firstTenth == 0 ? resident : firstTenth;
            std::printf("%7d rounds, %5d sheets: %6ld KiB resident\n", round + 1,
                        round / roundsToASheet + 1, resident);
            std::fflush(stdout);
        }
    }
#ifdef __SANITIZE_ADDRESS__
    return 0;  // what is freed is held back for a while; leaks are found at the end
#else
    constexpr long slack = 1024;  // KiB
    const long growth = residentMemory() - firstTenth;
    std::printf("%ld KiB more than after the first tenth; up to %ld may be\n", growth, slack);
    return growth <= slack ? 0 : 1;
#endif
}

}  // namespace

int main(int argc, char** argv) {
    constexpr int usual = 100'000;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : usual;
    if (rounds < 10) {
        std::fprintf(stderr, "Usage: soak-designs [ROUNDS], 10 at the least\n");
        return 2;
    }
    // Each save waits for its disk; one in memory answers at once.
    if (fs::is_directory("/dev/shm")) {
        setenv("TMPDIR", "/dev/shm", 0);
    }
    try {
        return soak(rounds);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "soak-designs: %s\n", error.what());
        return 1;
    }
}
