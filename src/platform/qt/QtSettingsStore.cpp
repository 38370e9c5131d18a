#include "QtSettingsStore.h"

#include "Error.h"
#include "fileCalls.h"
#include "paths.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace fleetwright {

namespace {

/// Throws FileError where a pipe or the like stands in the place of settings: Qt would wait there.
void checkSettingsFiles() {
    const QString name = QApplication::applicationName();
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/';
    for (const QString& file : {folder + name + '/' + name + ".conf", folder + name + ".conf"}) {
        const std::filesystem::path path = nativePath(file.toStdString());
        std::error_code unknown;
        if (const std::error_code why = whyNoFile(std::filesystem::status(path, unknown))) {
            throw FileError(path, "cannot be read: " + why.message());
        }
    }
}

/// Opened anew each time: another program that runs may have written meanwhile. Throws FileError.
QSettings store() {
    checkSettingsFiles();
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, QApplication::applicationName(),
                     QApplication::applicationName());
}

/// The folder of the file that settings are kept in; empty if they are kept by the system.
std::filesystem::path folderOf(const std::string& settings) {
    const std::filesystem::path file = nativePath(settings);
    return file.is_absolute() ? file.parent_path() : std::filesystem::path();
}

QString pathOf(const std::string& section, const std::string& key) {
    return QString::fromStdString(section + '/' + key);
}

/// What a hand has put there may read as a list, which is no text of ours but looks like one.
std::string textOf(const QVariant& value) {
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(", ").toStdString()
                                                    : value.toString().toStdString();
}

}  // namespace

std::string QtSettingsStore::read(const std::string& section, const std::string& key,
                                  const std::string& otherwise) const {
    return textOf(store().value(pathOf(section, key), QString::fromStdString(otherwise)));
}

void QtSettingsStore::write(const std::string& section, const std::string& key,
                            const std::string& value) {
    // What is there already is not written once more: each write goes through to the disk.
    const QString path = pathOf(section, key);
    std::string file;
    {
        const QSettings before = store();
        if (before.contains(path) && textOf(before.value(path)) == value) {
            return;
        }
        file = before.fileName().toStdString();
    }
    const std::filesystem::path folder = folderOf(file);
    if (!folder.empty()) {
        makeFolder(folder);
    }
    const auto put = [&] {
        QSettings settings = store();
        settings.setValue(path, QString::fromStdString(value));
        settings.sync();
        return settings.status() == QSettings::NoError;
    };
    // A line that nobody can read is an error, too, but gone from the file with the first write.
    if (!put() && !put()) {
        throw FileError(nativePath(file), "cannot be written");
    }
    // Qt syncs the new file, but not the name that it gives it.
    const std::error_code error = folder.empty() ? std::error_code() : syncFolder(folder);
    if (error) {
        throw FileError(nativePath(file), "cannot be written: " + error.message());
    }
}

}  // namespace fleetwright
