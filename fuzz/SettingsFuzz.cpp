// The user's settings and the list of recent files. An input is the bytes of the file in which the
// desktop keeps them; its lines are then the names of ship files that are opened.

#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "QtSettingsStore.h"
#include "TemporaryFolder.h"
#include "clsMRUFiles.h"
#include "frmExtras.h"
#include "inputLines.h"
#include "require.h"

#include <QCoreApplication>
#include <QSettings>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

using namespace fleetwright;

namespace {

using Names = std::vector<std::string>;

Names namesIn(const clsMRUFiles& list) {
    Names names;
    for (std::int16_t i = 1; i <= list.MaxFiles(); ++i) {
        names.push_back(list.getFile(i));
    }
    return names;
}

/// Opens the files; what the list must then be.
Names openAll(SettingsStore& store, const Names& opened) {
    clsMRUFiles list(store);
    list.BaseName(applicationTitle);
    Names wanted = namesIn(list);
    for (const std::string& name : opened) {
        list.addFile(name);
        const auto found = std::ranges::find(wanted, name);
        wanted.erase(found == wanted.end() ? std::prev(found) : found);
        wanted.insert(wanted.begin(), name);
        require(namesIn(list) == wanted, "a name goes to the top, and is in the list once");
    }
    return wanted;
}

/// All settings as the page of settings shows them.
std::string shown(const frmExtras& extras) {
    return std::to_string(extras.chkSounds.isTicked()) +
           std::to_string(extras.chkMinimized.isTicked()) +
           std::to_string(extras.chkConfirmExit.isTicked()) + extras.txtDesigner.text();
}

/// Looks at the page of settings, and saves others.
void checkExtras(SettingsStore& store, clsMRUFiles& list, const std::string& designer) {
    const auto isOn = [&store](const char* key) {
        return std::to_string(store.read("Settings", key, "True") == "True");
    };
    NoDesktop desktop;
    Globals globals;
    frmExtras extras(
        {.desktop = desktop, .globals = globals, .settings = store, .clearRecentFiles = [&list] {
             list.clearList();
         }});
    const auto open = [&] {
        extras.unload();
        globals.readSettings(store);
        extras.show();
    };
    open();
    requireSame(shown(extras),
                isOn("Sounds") + isOn("Hide") + isOn("ConfirmExit") + globals.g_sDefaultDesigner,
                "the page shows the settings, and only \"True\" is on");
    extras.chkSounds.press();
    extras.txtDesigner.type(designer);
    extras.cmdSaveSettings.press();
    const std::string saved = shown(extras);
    open();
    requireSame(shown(extras), saved, "settings that were saved come back");
    extras.cmdClearMRU.press();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const TemporaryFolder folder;  // a new one, since Qt remembers files by their paths
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path().c_str());
    QCoreApplication::setApplicationName("FleetWright");
    folder.write("FleetWright/FleetWright.conf", {reinterpret_cast<const char*>(data), size});
    Names lines = inputLines(data, size);
    for (std::string& line : lines) {
        line = QString::fromStdString(line).toStdString();  // what is no UTF-8 cannot come back
    }
    QtSettingsStore store;
    const Names wanted = openAll(store, lines);
    clsMRUFiles list(store);
    list.BaseName(applicationTitle);
    require(namesIn(list) == wanted, "the list comes back at the next start");
    checkExtras(store, list, lines.empty() ? "" : lines.back());
    require(namesIn(list) == Names(wanted.size()), "a list that was cleared is empty");
    return 0;
}
