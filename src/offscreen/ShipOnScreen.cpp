#include "ShipOnScreen.h"

#include "Error.h"
#include "PictureFiles.h"
#include "SilentServices.h"

#include <utility>

namespace fleetwright {

namespace {

class NoPictures : public PictureFiles {
public:
    Raster load(const std::filesystem::path&) override { return {}; }
    Raster builtIn(const std::string&) override { return {}; }
};

}  // namespace

class ShipOnScreen::Program {
public:
    Program(const std::filesystem::path& appFolder, const CatalogueFile& catalogueFile,
            FormulaFunction formula)
        : window(withoutScreen(m_silent.services(appFolder, m_pictures, formula), catalogueFile)) {}

private:
    static MainWindowServices withoutScreen(MainWindowServices services,
                                            const CatalogueFile& catalogueFile) {
        services.catalogueFile = catalogueFile;
        services.hasScreen = false;
        return services;
    }

    NoPictures m_pictures;
    SilentServices m_silent;

public:
    frmMain window;
};

ShipOnScreen::ShipOnScreen(const std::filesystem::path& appFolder)
    : ShipOnScreen(appFolder, CatalogueFile::readOnce(appFolder / "weaps.dat")) {}

ShipOnScreen::ShipOnScreen(std::filesystem::path appFolder, CatalogueFile catalogueFile,
                           FormulaFunction formula)
    : m_appFolder(std::move(appFolder)), m_catalogueFile(std::move(catalogueFile)),
      m_formula(formula) {}

ShipOnScreen::~ShipOnScreen() = default;

std::optional<Fault> ShipOnScreen::load(const std::string& file) {
    // A load has the window start from a new ship, whatever it has shown. Only where somebody has
    // acted on it, or where a load has failed, there is another one.
    if (!std::exchange(m_isForNext, false)) {
        m_program = startedProgram();
    }
    frmMain& window = m_program->window;
    if (!window.files.loadFile(file)) {
        return window.files.fileFault;
    }
    window.tmrRefreshScreen.tick();
    m_isForNext = true;
    return std::nullopt;
}

std::unique_ptr<ShipOnScreen::Program> ShipOnScreen::startedProgram() const {
    m_catalogueFile.read();  // the window would not say what is wrong with it
    auto program = std::make_unique<Program>(m_appFolder, m_catalogueFile, m_formula);
    try {
        program->window.show();
    } catch (const EndOfProgram&) {
        throw FileError(m_catalogueFile.path(), "no ship can be made of it");
    }
    return program;
}

void ShipOnScreen::switchAutoMassOn() {
    m_isForNext = false;
    m_program->window.mass.mnuAutoMass.choose();
}

ShipClass& ShipOnScreen::ship() {
    return *m_program->window.g_Ship;
}

const frmMain& ShipOnScreen::window() const {
    return m_program->window;
}

}  // namespace fleetwright
