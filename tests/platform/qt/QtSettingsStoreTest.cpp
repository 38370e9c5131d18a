#include "QtSettingsStore.h"

#include "TemporaryFolder.h"
#include "faults.h"

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
    EXPECT_TRUE(fileFaultOf([&] {
                    store.write("Names", "Designer", "Me");
                }).starts_with(settings.string() + '/'));
}
