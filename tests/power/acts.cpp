// What the window does to files without being asked, as a program without a window.

#include "FleetDocument.h"
#include "QtSettingsStore.h"
#include "RecoveryFolder.h"
#include "Trash.h"
#include "applicationFolder.h"
#include "clsMRUFiles.h"
#include "overwriteFile.h"
#include "readFile.h"

#include <QCoreApplication>

#include <filesystem>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

namespace fs = std::filesystem;

void report() {
    fs::create_directory("reported");
    fs::remove("reported");
}

/// For designs that are thrown away; none of these acts does that.
class NoTrash : public Trash {
    bool moveToTrash(const fs::path&) override { return false; }
};

void putAside(RecoveryFolder& folder, const fs::path& ships) {
    const auto put = [&](const char* name, const char* file) {
        RecoveryFolder::Aside design = {name, 50, readBytes(ships / file),
                                        std::string("steps of ") + file};
        folder.put(design);
        report();
        return design;
    };
    put("Provost", "Provost.shp");
    put("Provost", "Amaranth.shp");
    folder.keep(put("Larkfield", "Larkfield.shp"));
    report();
    put("Glowworm", "Glowworm.shp");
    folder.forget();
}

/// Puts a fleet aside as its window does, and saves it.
void workOnFleet(RecoveryFolder& folder, const fs::path& file) {
    FleetDocument fleet(fs::current_path());
    fleet.open(file);
    for (const char* const name : {"First", "Second"}) {
        fleet.act({"Name"}, [name](Fleet& changed) { changed.name = name; }, 0);
        folder.put({.shipName = name,
                    .mass = 3,
                    .shipFile = fleet.textIn(folder.folder()),
                    .steps = fleet.steps(),
                    .kind = RecoveryKind::Fleet});
        report();
    }
    fleet.save(file, {}, "1-2");
    report();
    folder.forget(RecoveryKind::Fleet);
    report();
}

void lookAround(RecoveryFolder& folder) {
    std::vector<RecoveryFolder::Design> designs = folder.lookAround();
    folder.noteSeen(designs);
}

class ReportingStore : public QtSettingsStore {
    void write(const std::string& section, const std::string& key,
               const std::string& value) override {
        QtSettingsStore::write(section, key, value);
        report();
    }
};

void setSettings() {
    ReportingStore store;
    SettingsStore& settings = store;
    settings.write("Names", "Designer", "Né, Né");
    settings.write("Settings", "Sounds", "False");
    clsMRUFiles recent(settings);
    recent.BaseName("FleetWright");
    recent.addFile("Provost.shp");
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName("FleetWright");
    const std::string act = argc > 1 ? argv[1] : "";
    NoTrash trash;
    RecoveryFolder folder(RecoveryFolder::ofUser(), [] { return "2026-05-01 17.03.59"; }, trash);
    if (act == "aside") {
        putAside(folder, argv[2]);
    } else if (act == "fleet") {
        workOnFleet(folder, fs::absolute(argv[2]));
    } else if (act == "look") {
        lookAround(folder);
    } else if (act == "start") {
        applicationFolder(argv[2]);
    } else if (act == "overwrite") {
        overwriteFile("file", "new");
    } else if (act == "settings") {
        setSettings();
    }
}
