// Settings, programs and time.

#include "QtClock.h"
#include "QtPrograms.h"
#include "QtSettingsStore.h"
#include "QtSounds.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "faults.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>

#include <sys/stat.h>

using namespace fleetwright;
namespace fs = std::filesystem;

TEST(QtSettingsStore, SaysWhatItCannotWrite) {
    const TemporaryFolder folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(folder.path().string()));
    const std::string name = QApplication::applicationName().toStdString();
    folder.write(name + '/' + name + ".conf", "[Names\n");  // a line that nobody can read
    QtSettingsStore store;
    store.write("Names", "Designer", "Né, Né");
    EXPECT_EQ(QtSettingsStore().read("Names", "Designer", ""), "Né, Né");

    const fs::path settings = folder.path() / name;
    ASSERT_TRUE(fs::is_directory(settings));
    fs::remove_all(settings);
    folder.write(settings.filename().string(), "a file where the folder should be");
    EXPECT_EQ(fileFaultOf([&] { store.write("Names", "Designer", "Me"); }),
              settings.string() + ": cannot be made: Not a directory");
}

TEST(QtServices, WaitAtNoPipe) {
    const TemporaryFolder folder;
    const std::string name = QApplication::applicationName().toStdString();
    const std::string settings = folder.write(name + '/' + name + ".conf", "");
    qputenv("XDG_CONFIG_HOME", folder.path().c_str());
    for (const std::string& pipe : {settings, (folder.path() / "sound.wav").string()}) {
        fs::remove(pipe);
        ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    }
    EXPECT_EQ(fileFaultOf([] { QtSettingsStore().read("Names", "Designer", ""); }),
              settings + ": cannot be read: Not a plain file");
    EXPECT_THROW(QtSounds(folder.path()).play(folder.path() / "sound.wav"), FileError);
    qunsetenv("XDG_CONFIG_HOME");
}

TEST(QtPrograms, WaitAsLongAsTheyMayForAProgramThatEndsWell) {
    const TemporaryFolder folder;
    QtPrograms programs;
    int waits = 0;
    const auto run = [&](const char* program, const char* argument, int longest) {
        return programs.run(program, argument, folder.path(), longest, [&] { ++waits; });
    };
    EXPECT_TRUE(run("mkdir", "made", 10000));
    EXPECT_TRUE(fs::is_directory(folder.path() / "made"));
    EXPECT_FALSE(run("mkdir", "made", 10000)) << "it has ended with a fault";
    EXPECT_FALSE(run((folder.path() / "none").c_str(), "", 10000));
    waits = 0;
    EXPECT_FALSE(run("sleep", "20", 200));
    EXPECT_GT(waits, 0);
    EXPECT_FALSE(programs.start(folder.path() / "none"));
}

TEST(QtClock, CountsTheMillisecondsThatItSleeps) {
    QtClock clock;
    const std::int32_t before = clock.tickCount();
    clock.sleep(20);
    const std::int32_t slept = clock.tickCount() - before;
    EXPECT_TRUE(slept >= 20 && slept < 5000) << slept;
}
