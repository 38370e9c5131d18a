#pragma once

#include "CatalogueFile.h"
#include "ShipClass.h"
#include "formula_calculate.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace fleetwright {

class frmMain;

/// A ship as the freshly started program shows it. This is the program without its screen: it
/// drives the main window itself, so that no figure can differ from the one in the window.
class ShipOnScreen {
public:
    explicit ShipOnScreen(const std::filesystem::path& appFolder);
    /// The same, with that folder's catalogue, which is to be one that is read once, and with what
    /// works formulas out.
    ShipOnScreen(std::filesystem::path appFolder, CatalogueFile catalogueFile,
                 FormulaFunction formula = formula_calculate);
    ShipOnScreen(const ShipOnScreen&) = delete;
    ShipOnScreen& operator=(const ShipOnScreen&) = delete;
    ~ShipOnScreen();

    /// Loads a ship file as the Load command does in a program that has just been started, and lets
    /// one tick of the refresh timer pass. Returns why the file does not load, or nothing. Throws
    /// FileError when the catalogue cannot be used. Many ships are best loaded one after the other:
    /// to start the program takes longer.
    std::optional<Fault> load(const std::string& file);

    /// Chooses AutoMass from the menu.
    void switchAutoMassOn();

    /// The ship that was loaded last.
    ShipClass& ship();
    /// The main window, which shows it.
    const frmMain& window() const;

private:
    class Program;

    std::unique_ptr<Program> startedProgram() const;

    std::filesystem::path m_appFolder;
    CatalogueFile m_catalogueFile;
    FormulaFunction m_formula;
    std::unique_ptr<Program> m_program;
    bool m_isForNext = false;  ///< whether the next ship comes out there as in a new program
};

}  // namespace fleetwright
