// The program with its windows: builds the services and the main window, joins them, and runs the
// event loop.

#include "CatalogueCheck.h"
#include "Error.h"
#include "Globals.h"
#include "PictureCheck.h"
#include "QtDesktop.h"
#include "QtPictureFiles.h"
#include "StartUpProgress.h"
#include "TextFile.h"
#include "commands.h"
#include "frmMain.h"

#include <QApplication>
#include <QIcon>
#include <QLibrary>

#include <exception>

namespace {

using namespace fleetwright;

/// The faults of the catalogue in one text, up to ten of them. A catalogue that cannot be read at
/// all has none: the main window has a message of its own for that.
std::string catalogueFaults(const std::filesystem::path& file) {
    constexpr std::size_t most = 10;
    std::vector<Fault> faults;
    try {
        const std::string catalogue = readTextFile(file);
        faults = checkCatalogue(catalogue, CatalogueCheck::Start);
        PictureCheck pictures(file.parent_path() / "images");
        for (Fault& fault : pictures.checkCatalogue(catalogue)) {
            faults.push_back(std::move(fault));
        }
        sortByLine(faults);
    } catch (const FileError&) {
        return {};
    }
    std::string text;
    for (std::size_t i = 0; i < faults.size() && i < most; ++i) {
        text += complaint(file.string(), faults[i]) + '\n';
    }
    return text;
}

int run(QtDesktop& desktop) {
    const std::filesystem::path appFolder =
        nativePath(QApplication::applicationDirPath().toStdString());
    if (!std::filesystem::is_directory(appFolder / "images")) {
        Options options;
        options.appFolder = appFolder;
        runUnpack(options);
    }
    QLibrary library(QString::fromStdString((appFolder / "w_dll.dll").string()));
    Globals globals;
    globals.formula = reinterpret_cast<FormulaFunction>(library.resolve("formula_calculate"));
    if (globals.formula == nullptr) {
        desktop.showMessage("Can't Open DLL " + appFolder.string(), "File Open Error", Buttons::Ok,
                            Icon::Critical);
        return 1;
    }
    if (const std::string faults = catalogueFaults(appFolder / "weaps.dat"); !faults.empty()) {
        desktop.showMessage(faults, "", Buttons::Ok, Icon::Critical);
        return 1;
    }
    QtPictureFiles pictures;
    NoProgress progress;
    frmMain window({.appFolder = appFolder,
                    .eventLoopTurn = [] { QApplication::processEvents(); },
                    .freeFormulaLibrary = [&library] { library.unload(); },
                    .desktop = desktop,
                    .pictures = pictures,
                    .progress = progress,
                    .globals = globals});
    window.load();
    desktop.present(window);
    window.show();
    const int status = QApplication::exec();
    desktop.dismiss(window);
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(applicationTitle);
    QApplication::setWindowIcon(QIcon(":/pictures/icon.svg"));
    QApplication::setQuitOnLastWindowClosed(false);
    QtDesktop desktop;
    try {
        return run(desktop);
    } catch (const EndOfProgram&) {
        return 1;
    } catch (const FileError& error) {
        desktop.showMessage(error.file().string() + ": " + error.what(), "", Buttons::Ok,
                            Icon::Critical);
        return 1;
    } catch (const std::exception& error) {
        desktop.showMessage(error.what(), "", Buttons::Ok, Icon::Critical);
        return 1;
    }
}
