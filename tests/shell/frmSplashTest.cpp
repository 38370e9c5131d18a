#include "frmSplash.h"

#include "Clock.h"
#include "FileLock.h"
#include "Globals.h"
#include "Programs.h"
#include "SheetPictures.h"
#include "Sounds.h"
#include "TemporaryFolder.h"
#include "fakeServices.h"

#include <gtest/gtest.h>

#include <optional>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

/// A machine that writes down what the start asks of it.
class StartingMachine : public NoDesktop,
                        public Clock,
                        public Sounds,
                        public PictureFiles,
                        public Programs {
public:
    std::string log;
    std::int32_t ticks = 0;
    ScreenSize screen = {800, 600};
    bool hasSound = true;
    bool archiveWorks = true;
    bool hasLibrary = true;

    Answer showMessage(const std::string& text, const std::string& title, Buttons,
                       Icon icon) override {
        log += "box " + text + '/' + title + (icon == Icon::Critical ? " critical; " : "; ");
        return Answer::Ok;
    }
    ScreenSize screenSize() override { return screen; }

    std::int32_t tickCount() override { return ticks; }
    void sleep(int milliseconds) override { log += "sleep " + std::to_string(milliseconds) + "; "; }

    bool hasDevice() override { return hasSound; }
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
        log += "run " + program.lexically_relative(folder).string() + ' ' + argument + " for " +
               std::to_string(milliseconds) + "; ";
        EXPECT_TRUE(fs::exists(program));
        for (const std::string& name : sheetPictures()) {
            fs::copy_file(program, folder / name);
        }
        onWait();
        return archiveWorks;
    }
    bool start(const fs::path&) override { return false; }
    void* loadLibrary(const fs::path& file) override {
        log += "library " + file.filename().string() + "; ";
        return hasLibrary ? this : nullptr;
    }
    void* function(void*, const std::string& name) override {
        return name == "formula_calculate" ? reinterpret_cast<void*>(&formula_calculate) : nullptr;
    }
    void freeLibrary(void*) override {}
};

/// A main window that only writes down what happens to it.
class PlainForm : public Form {
public:
    explicit PlainForm(std::string& log) : Form({.name = "frmMain"}), m_log(log) {}

    bool isReady = true;

protected:
    void Form_Load() override { m_log += "load main; "; }

private:
    std::string& m_log;
};

class Start : public testing::Test {
protected:
    Start() {
        folder.write("images.exe", "archive");
        // Only texts: the bar also changes its place.
        said = splash.sbInfo.Changed.connect([this] {
            if (!splash.sbInfo.text().empty()) {
                machine.log += splash.sbInfo.text() + "; ";
            }
        });
    }

    /// All that was logged while the start-up ran to its end.
    std::string run() {
        try {
            splash.load();
        } catch (const EndOfProgram&) {
            machine.log += "end";
        }
        return machine.log;
    }

    TemporaryFolder folder;
    StartingMachine machine;
    MemorySettings settings;
    Globals globals;
    std::string faults;
    PlainForm mainWindow{machine.log};
    frmSplash splash{{.appFolder = folder.path(),
                      .desktop = machine,
                      .settings = settings,
                      .clock = machine,
                      .sounds = machine,
                      .pictures = machine,
                      .programs = machine,
                      .globals = globals,
                      .catalogueFaults = [this] { return faults; },
                      .mainWindow = [this]() -> Form& { return mainWindow; },
                      .isMainWindowLoaded = [this] { return mainWindow.isReady; }}};
    Connection said;
};

TEST_F(Start, TakesItsStepsInOrderAndGoesWithASoundWhenTheMainWindowIsReady) {
    mainWindow.isReady = false;
    EXPECT_EQ(run(), "Unpacking the pictures... 1; run images.exe -o for 10000; Unpacking the "
                     "pictures... " +
                         std::to_string(sheetPictures().size() + 1) +
                         "; library w_dll.dll; Loading SSD Maps....; Finished Loading SSD "
                         "Maps....; load main; ");
    EXPECT_TRUE(fs::is_directory(folder.path() / "images"));
    EXPECT_FALSE(fs::exists(folder.path() / "images" / "images.exe"));
    EXPECT_TRUE(fs::exists(folder.path() / "images.exe"));
    machine.log.clear();

    splash.pressKey();
    EXPECT_EQ(machine.log, "") << "a key while the main window is still loading";
    EXPECT_TRUE(splash.isVisible());
    mainWindow.isReady = true;
    splash.Timer1.tick();
    EXPECT_EQ(machine.log, "play blaster.wav; sleep 500; play blaster.wav; ");
    EXPECT_TRUE(mainWindow.isVisible());
    EXPECT_FALSE(splash.isLoaded());
}

TEST_F(Start, PicksItsPictureByTheClock) {
    machine.ticks = -3;
    run();
    EXPECT_EQ(splash.width(), 348 * 15);
    EXPECT_EQ(splash.height(), 288 * 15 + splash.sbInfo.place().height);
    EXPECT_FALSE(splash.Picture1.isVisible() || splash.Picture2.isVisible());
    splash.unload();
    machine.ticks = 4;
    run();
    EXPECT_EQ(splash.picture().width(), 351);
    splash.unload();
    EXPECT_TRUE(mainWindow.isVisible()) << "whoever closes it does not mean the program";
}

TEST_F(Start, TakesOnlyTheWordTrueForOn) {
    settings.values = {
        {"Settings/Hide", "true"}, {"Settings/Sounds", ""}, {"Names/Designer", "Somebody"}};
    run();
    EXPECT_TRUE(globals.g_bConfirmExit) << "nothing is stored";
    EXPECT_FALSE(globals.g_bHide || globals.g_bSounds);
    EXPECT_EQ(globals.g_sDefaultDesigner, "Somebody");
    machine.log.clear();
    splash.unload();
    EXPECT_EQ(machine.log, "sleep 500; ");
}

TEST_F(Start, TakesAHalfMadeFolderOfPicturesAwayAgainAndThoseOfKilledStarts) {
    fs::create_directories(folder.path() / "images.unpacking-1");
    fs::create_directories(folder.path() / "images.unpacking-2");
    std::optional<FileLock> other(folder.path() / "images.unpacking-2");
    run();
    EXPECT_EQ(folder.entries(), 3) << "images, their archive, and what another start is at";
    fs::remove_all(folder.path() / "images");
    other.reset();
    machine.log.clear();
    splash.unload();

    machine.archiveWorks = false;
    const std::string images = (folder.path() / "images").string();
    EXPECT_TRUE(
        run().ends_with("box " + images + ": the pictures could not be unpacked/ critical; end"));
    EXPECT_EQ(folder.entries(), 1);
}

/// What goes wrong behind the pictures, and what is said of it.
TEST_F(Start, EndsWithAMessageWhereItCannotGoOn) {
    fs::create_directory(folder.path() / "images");
    fs::remove(folder.path() / "images.exe");  // an empty folder of pictures will do
    const std::string closing = "play blaster.wav; sleep 500; play blaster.wav; ";
    EXPECT_EQ(run(), "library w_dll.dll; Loading SSD Maps....; Finished Loading SSD Maps....; load "
                     "main; ");
    const auto again = [this] {
        splash.unload();
        globals.formula = nullptr;
        machine.log.clear();
        return run();
    };
    mainWindow.isReady = false;
    machine.hasLibrary = false;
    EXPECT_EQ(again(), "library w_dll.dll; box Can't Open DLL " + folder.path().string() +
                           "/File Open Error critical; " + closing + "end");
    machine.hasLibrary = true;
    faults = "weaps.dat:3: no parent\nweaps.dat:9: no picture\n";
    EXPECT_EQ(again(), "library w_dll.dll; box " + faults + "/ critical; end");
    EXPECT_TRUE(splash.isLoaded()) << "the end comes at once, without the closing";
    for (const Desktop::ScreenSize tooSmall : {Desktop::ScreenSize{1024, 599}, {799, 768}}) {
        machine.screen = tooSmall;
        EXPECT_EQ(again(),
                  "box Need to have 800x600 resolution to run./Screen Size Error critical; end");
    }
}

}  // namespace
