#pragma once

// One ship design, with its own copy of the catalogue. Every change of a design goes through
// this object, which works the ship's figures out anew and raises events; it shows nothing.
//
// An operation whose figures leave the width of a field throws OverflowError, and the ship is as
// it was before; so it is when a listener throws, but for what listeners have added to it. Texts
// that a ship hands out as views live as long as the ship. While it is at work (`isBusy`), as a
// listener or a turn of the event loop can find it, it must not be destroyed. One thread at a time
// may use a ship; several ships may be used in parallel.

#include "Catalogue.h"
#include "Fault.h"
#include "HullRules.h"
#include "ShipDesign.h"
#include "ShipFileLine.h"
#include "ShipState.h"
#include "Signal.h"
#include "formula_calculate.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fleetwright {

class ReportPrinter;

/// What a ship needs of the world around it.
struct ShipServices {
    /// The catalogue file `weaps.dat`. Ships that are given the same object share what it has read.
    CatalogueFile catalogueFile;
    /// Evaluates mass and cost formulas.
    FormulaFunction formula = nullptr;
    /// Lets pending events of the user interface run; AutoMass calls it. May be empty.
    std::function<void()> eventLoopTurn;
};

class ShipClass : public ShipNames, private ShipNumbers {
public:
    /// A new design: a warship of mass 2 with a normal drive and thrust 2, without systems.
    /// Has the catalogue as it is now; throws FileError when it cannot be read.
    explicit ShipClass(ShipServices services);
    ShipClass(const ShipClass&) = delete;
    ShipClass& operator=(const ShipClass&) = delete;
    ~ShipClass() = default;

    // What ShipState.h says of them. Writing one of these, or one of the names, does nothing else:
    // no recalculation, no event.
    using ShipNumbers::g_bAutoMass;
    using ShipNumbers::g_bSaved;
    using ShipNumbers::g_iDamRows;
    using ShipNumbers::g_iDCP;
    using ShipNumbers::g_iDP;
    using ShipNumbers::g_iFCS;
    using ShipNumbers::g_iMassLeft;
    using ShipNumbers::g_lCost;
    std::int32_t g_lWeapCount = 0;  ///< number of catalogue records

    Signal<> Recalculated;      ///< the figures are new
    Signal<> Recalculating;     ///< they are about to be worked out; for users of this class
    Signal<> WeaponNotFound;    ///< a name is in no catalogue record
    Signal<> CloakAndMerchant;  ///< the cloak rule has refused a system
    Signal<> ShipSaved;         ///< what a listener throws is dropped: the file is written
    Signal<> ShipLoaded;
    Signal<> AutoMassUnsettled;  ///< AutoMass found no fitting mass; the ship has its old one

    // The design. Each write recalculates.
    std::int32_t mass() const { return hull.mass; }
    void mass(std::int32_t i_iArg);                    ///< at least 2
    std::int32_t Armor() const { return hull.armor; }  ///< level 0 to 2
    void Armor(std::int32_t i_iArg);                   ///< another level than 0 to 2 leaves it
    std::int16_t Streamline() const;                   ///< level 0 to 2
    void Streamline(std::int16_t i_iArg);              ///< another level than 0 to 2 leaves it
    std::int32_t Hull() const { return hull.hullType; }
    void Hull(std::int32_t i_htArg);  ///< a HullType; unchecked
    std::int32_t FTL() const { return hull.ftl; }
    void FTL(std::int32_t i_ftArg);  ///< a FtlDrive; unchecked
    /// Throws OverflowError if a ship file has brought a thrust that 16 bits do not hold.
    std::int16_t THRUST() const;
    void THRUST(std::int16_t i_iArg);  ///< held to 0 to 8

    /// The value of a formula for one piece on this ship, for users of this class.
    std::int32_t weapCalc(std::string& in_arg);
    /// Recalculates.
    void weapChange();
    /// Whether all figures are what the rules make of the systems, and of the hull that the last
    /// recalculation has found.
    bool isWorkedOut();
    /// Whether an operation of this ship is under way, further out.
    bool isBusy() const { return m_passDepth > 0; }

    // Systems. A name stands for the first record that has it, exactly.

    /// Adds so many pieces, or takes them away if negative, and recalculates. False, and no
    /// change, if the cloak rule refuses it or the name is in no record.
    bool addWeap(std::string_view name, std::int32_t amount);
    /// Delivers the record at `ndx`, which must be inside the catalogue, and steps to the next;
    /// true if there is a next one.
    bool listWeap(std::int32_t& ndx, WeapRec& record) const;
    /// The records of which a piece is aboard, in the order of the catalogue.
    std::vector<WeapRec> systemsAboard() const;
    /// Index of the record, or -1.
    std::int32_t weapNameToIndex(std::string_view in_sName) const;
    /// Cost of so many pieces on this ship as it is; 0 for an unknown name.
    std::int32_t previewWeapCost(std::string_view in_sWeapName, std::int32_t amount);
    /// Mass of so many pieces on this ship as it is; 0 for an unknown name.
    std::int32_t previewWeapMass(std::string_view in_sWeapName, std::int32_t amount);
    // The same as they count in the figures. A file can bring a thrust that no recalculation has
    // taken up yet.
    std::int32_t countedCost(std::string_view name, std::int32_t amount);
    std::int32_t countedMass(std::string_view name, std::int32_t amount);

    // Names by mass.
    std::string_view Class() const;
    std::string_view relSize() const;

    // The ship file. Where these fail they return false, and `fileFault` says why.

    /// The name of a ship file: with the extension ".shp", also if it lacks it.
    static std::string withExtension(std::string fileName);
    /// Saves the design; the name gets the extension ".shp" if it lacks it.
    bool saveShip(std::string& in_sFileName);
    /// Loads a design into this ship, which should be new, from a ship file, from a sheet that
    /// carries one, or from a design code in the place of a name. Those two are no file to save to:
    /// the ship then has no file, and one from a code is not saved. After a failure the ship holds
    /// what was read before the fault.
    bool loadShip(const std::string& in_sFileName);
    /// The same from the text of a ship file, in UTF-8. The ship gets no file.
    bool loadText(std::string_view shipFile);
    /// What a ship file tells of the ship.
    ShipDesign design() const;
    /// The design as a ship file.
    std::string shipFile() const;
    const std::optional<Fault>& fileFault() const { return m_fileFault; }
    /// The lines that the last load has passed over: unknown systems, and those that the cloak
    /// rule refuses.
    const std::vector<RefusedLine>& refusedLines() const { return m_refusedLines; }

    // The report, and texts for the ship's sheet.
    void PrintShip(ReportPrinter& printer) const;
    std::string StreamString() const;  ///< the streamlining line and a CR, or nothing
    std::string ArmorString() const;   ///< the armor line and a CR, or nothing
    /// Whether a system gets a place on an arc of the sheet.
    bool PaintableWeap(std::string_view in_sWeapName) const;
    /// The system's arc letters; nothing for an unknown name.
    std::string_view GimmeWeapArc(std::string_view in_sWeapName) const;
    /// How the system is played, in the words of the catalogue; nothing if it has none or does not
    /// know the name.
    std::string_view rulesOf(std::string_view name) const;

    /// The catalogue that the ship has its records from, one a line.
    const std::shared_ptr<const CatalogueText>& catalogueText() const { return m_catalogue.text(); }
    /// All that the ship is now.
    ShipState state() const;
    /// Makes the ship what it was, or what another one with the same catalogue is, without an
    /// event.
    void restore(const ShipState& state);

    /// The hull as it is designed, and what the last recalculation has made of it.
    const HullDesign& hullDesign() const { return hull; }
    const HullFigures& hullFigures() const { return lastHull; }

private:
    class Pass;

    ShipNumbers& numbers() { return *this; }
    void change(std::int32_t& field, std::int32_t value);
    void recalcShip();
    ShipNumbers workOut(const HullDesign& design);
    void fitMass();
    void restoreMass(std::int32_t mass);
    std::int32_t evaluate(std::string_view& text, const HullDesign& design, std::int32_t hullCost,
                          std::int32_t amount);
    std::int32_t preview(std::string_view name, std::int32_t amount,
                         std::string_view WeapRec::* formula, const HullDesign& design);
    bool cloakRuleRefuses(std::string_view name) const;
    std::int32_t& amountOf(std::size_t record);

    bool succeeds(const std::function<void(int& line)>& fileOperation);
    void readShipFile(std::string_view text, int& lineNumber);
    void readShipLine(std::string& line, int lineNumber);
    void takeFileName(const std::string& fileName);

    void printBanner(ReportPrinter& printer) const;
    void printShipInfo(ReportPrinter& printer) const;
    void printSystems(ReportPrinter& printer) const;

    /// How far AutoMass has come in the recalculation that runs, nested passes included.
    enum class AutoMassRun { Working, GivenUp, Restoring };

    ShipServices m_services;
    Catalogue m_catalogue;
    std::optional<Fault> m_fileFault;
    std::vector<RefusedLine> m_refusedLines;
    std::vector<char> m_formulaBuffer;
    /// Ascending; every record whose amount is not 0 is among them. A catalogue can be large, and
    /// a ship carries little of it.
    std::vector<std::size_t> m_touched;
    mutable std::size_t m_lastFound = 0;  ///< the record of the last look-up by name

    AutoMassRun m_autoMassRun = AutoMassRun::Working;
    int m_passDepth = 0;
    int m_passCount = 0;
};

}  // namespace fleetwright
