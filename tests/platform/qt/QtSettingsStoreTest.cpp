#include "QtSettingsStore.h"

#include "Error.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>

using namespace fleetwright;
namespace fs = std::filesystem;

TEST(QtSettingsStore, SaysWhatItCannotWrite) {
    const TemporaryFolder folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(folder.path().string()));
    QtSettingsStore store;
    store.write("Names", "Designer", "Né, Né");
    EXPECT_EQ(QtSettingsStore().read("Names", "Designer", ""), "Né, Né");

    const fs::path settings = folder.path() / QApplication::applicationName().toStdString();
    ASSERT_TRUE(fs::is_directory(settings));
    fs::remove_all(settings);
    folder.write(settings.filename().string(), "a file where the folder should be");
    try {
        store.write("Names", "Designer", "Me");
        FAIL() << "no fault";
    } catch (const FileError& error) {
        EXPECT_EQ(error.file().parent_path(), settings);
    }
}
