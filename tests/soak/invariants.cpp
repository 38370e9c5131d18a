// What has to hold of the program whenever it is at rest. A new invariant is a row of the table.

#include "Actor.h"
#include "Error.h"
#include "TemporaryFile.h"
#include "bringInOrder.h"
#include "paths.h"
#include "readFile.h"
#include "readShip.h"

#include <algorithm>
#include <set>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

/// Looks at a window and writes down what is wrong with it.
class Look {
public:
    Look(TestWindow& test, const TypedTexts& typed) : m_test(test), m_typed(typed) {}

    std::string faults() {
        struct Invariant {
            const char* about;
            void (Look::*look)();
        };
        constexpr Invariant invariants[] = {{"figures on the screen", &Look::lookAtFigures},
                                            {"buttons", &Look::lookAtButtons},
                                            {"list of systems", &Look::lookAtList},
                                            {"menus", &Look::lookAtMenus},
                                            {"rules", &Look::lookAtRules},
                                            {"files", &Look::lookAtFiles},
                                            {"steps", &Look::lookAtSteps}};
        for (const Invariant& invariant : invariants) {
            m_about = invariant.about;
            (this->*invariant.look)();
        }
        return m_faults;
    }

private:
    void expect(bool isAsMeant, const std::string& fault) {
        if (!isAsMeant) {
            m_faults += m_about + ": " + fault + '\n';
        }
    }

    void expectText(const std::string& what, const std::string& shown, const std::string& meant) {
        expect(shown == meant, what + " is \"" + shown + "\" and not \"" + meant + '"');
    }

    void lookAtFigures() {
        const FiguresPanel& panel = m_window.figures;
        const std::pair<const TextBox*, std::string> boxes[] = {
            {&panel.txtCost, std::to_string(m_ship.g_lCost)},
            {&panel.txtDP, std::to_string(m_ship.g_iDP)},
            {&panel.txtDamRows, std::to_string(m_ship.g_iDamRows)},
            {&panel.txtDCP, std::to_string(m_ship.g_iDCP)},
            {&panel.txtFireCon, std::to_string(m_ship.g_iFCS)},
            {&panel.txtClass, std::string(m_ship.Class())},
            {&panel.txtRelSize, std::string(m_ship.relSize())},
            {&m_window.mass.txtMass, std::to_string(m_ship.mass())},
            {&m_window.names.txtShipName, m_ship.g_sShipName},
            {&m_window.names.txtDesigner, m_ship.g_sDesignerName}};
        for (const auto& [box, meant] : boxes) {
            const auto typed = m_typed.find(box);
            if (typed == m_typed.end() || box->text() != typed->second) {
                expectText(box->name(), box->text(), meant);
            }
        }
        expectText("lblMassLeft", m_window.mass.lblMassLeft.caption(),
                   std::to_string(m_ship.g_iMassLeft));
    }

    /// Of each group the one button is on that stands for the ship.
    void lookAtButtons() {
        const auto expectOn = [this](const Container& group, std::size_t number) {
            std::size_t place = 0;
            for (const Control* const control : group.controls()) {
                if (const auto* const button = dynamic_cast<const OptionButton*>(control)) {
                    expect(button->isOn() == (place++ == number),
                           button->name() + " is not as the ship is");
                }
            }
        };
        expectOn(m_window.hull.fraHull, static_cast<std::size_t>(m_ship.Hull() - 1));
        expectOn(m_window.hull.fraStreamling, static_cast<std::size_t>(m_ship.Streamline()));
        expectOn(m_window.hull.fraArmor, static_cast<std::size_t>(m_ship.Armor()));
        expectOn(m_window.hull.fraFTL, static_cast<std::size_t>(std::min(m_ship.FTL(), 2)));
        if (m_ship.THRUST() >= 0 && m_ship.THRUST() <= mostThrust) {
            expectOn(m_window.hull.fraThrust, static_cast<std::size_t>(m_ship.THRUST()));
        }
        for (const Control* const group :
             {&m_window.hull.fraStreamling, &m_window.hull.fraFTL, &m_window.hull.fraThrust}) {
            expect(group->isEnabled() != isBase(m_ship.Hull()), group->name() + " is open or not");
        }
    }

    void lookAtList() {
        std::multiset<std::string> shown, aboard;
        for (const ListView::Row& row : m_window.aboard.lvCurrentWeapons.rows()) {
            shown.insert(row.key + ' ' + row.subItem + ", ");
        }
        for (const WeapRec& system : m_ship.systemsAboard()) {
            aboard.insert(std::string(system.name) + ' ' + std::to_string(system.amount) + ", ");
        }
        expect(shown == aboard, "other systems are shown than are aboard:\n" + m_ship.shipFile());
        const auto selected = m_window.aboard.lvCurrentWeapons.selected();
        expect(!selected || *selected < m_window.aboard.lvCurrentWeapons.rows().size(),
               "the selected row is none");
        expect(selected || m_window.previews.lblWeapMass[1].caption().empty(),
               "a mass is shown of no row");
    }

    void lookAtMenus() {
        expectText("the title", m_window.caption(), "Fleet Wright");
        const MassPanel& mass = m_window.mass;
        const std::pair<const char*, bool> facts[] = {
            {"Save", m_window.files.mnuSave.isEnabled() != m_ship.g_sSaveName.empty()},
            {"Create SSD", m_window.windows.mnuSSD.isEnabled() ==
                               (m_ship.mass() <= m_test.globals.g_iLargestSSD)},
            {"AutoMass", mass.mnuAutoMass.isChecked() || !m_ship.g_bAutoMass},
            {"the arrows", mass.mnuAutoMass.isChecked() != mass.fraMassSpinner.isVisible()}};
        for (const auto& [what, isAsMeant] : facts) {
            expect(isAsMeant, std::string(what) + " cannot be reached, or can");
        }
        for (std::int16_t index = 1; index <= m_window.CMRUList->MaxFiles(); ++index) {
            const MenuEntry& entry = m_window.files.mnuMRUFile[static_cast<std::size_t>(index - 1)];
            // A sheet is listed by its path.
            const std::string file =
                pathText(nativePath(m_window.CMRUList->getFile(index)).filename());
            expectText(entry.name(), entry.isVisible() ? entry.caption() : "", file);
        }
    }

    std::unique_ptr<ShipClass> newShip() const {
        return std::make_unique<ShipClass>(
            ShipServices{.catalogueFile = m_test.folder().path() / "weaps.dat",
                         .formula = formula_calculate,
                         .eventLoopTurn = {}});
    }

    /// The figures are those of such a ship.
    void lookAtRules() {
        const auto ship = newShip();
        try {
            ship->restore(m_ship.state());
            ship->g_bAutoMass = false;
            ship->weapChange();
        } catch (const OverflowError& error) {
            expect(false, std::string("the ship has no figures: ") + error.what());
        }
        expectText("the figures", figures(m_ship), figures(*ship));
    }

    /// What a ship is when it is loaded, and it is saved all the same.
    static std::string inOrder(ShipClass& ship) {
        bringInOrder(ship);
        return ship.shipFile();
    }

    static std::string withoutNames(const std::string& shipFile) {
        return shipFile.substr(std::min(shipFile.find("Mass: "), shipFile.size()));
    }

    /// A saved ship is as in its file; another one is put aside, or soon will be.
    void lookAtFiles() {
        const auto safe = newShip();
        const fs::path sheet = m_test.folder().path() / "ships/Sheet.svg";
        const bool isFromSheet = m_ship.g_sSaveName.empty() && !m_ship.g_sTrimmedFileName.empty();
        const std::string home = isFromSheet ? sheet.string() : m_ship.g_sSaveName;
        const fs::path homeFile = nativePath(home);
        if (!home.empty() && !fs::exists(homeFile) &&
            (TemporaryFile::isOne(homeFile) ||
             fs::exists(m_test.folder().path() / "trash" / homeFile.filename()))) {
            return;  // loaded by Load, and since then taken up as put aside, or thrown away
        }
        if (!home.empty() && !safe->loadShip(home)) {
            return expect(false, home + " does not load: " + safe->fileFault()->text);
        }
        const std::string file = m_ship.shipFile();
        // Not all that is in a file comes back from it: a merchant with a cloak besides other
        // systems, a name with a colon.
        const std::string saved = home.empty() ? "" : readShip(home).text;
        const auto ship = newShip();
        ship->restore(m_ship.state());
        ship->g_bAutoMass = false;
        const bool isInFile = saved == file;
        const bool isDesigned = withoutNames(saved) == withoutNames(file) ||
                                withoutNames(inOrder(*ship)) == withoutNames(inOrder(*safe));
        expect(isDesigned || !m_ship.g_bSaved, "the ship counts as saved:\n" + file);
        const bool isSafe =
            isInFile || (isDesigned && (home.empty() || m_ship.g_sShipName == safe->g_sShipName));
        if (!isSafe && !m_window.recovery.tmrRecovery.isEnabled()) {
            const auto aside = RecoveryFolder::list(m_test.folder().path() / "recovered");
            expect(std::any_of(aside.begin(), aside.end(),
                               [&](const auto& each) { return readTextFile(each.file) == file; }),
                   "the ship is not put aside:\n" + file);
        }
    }

    /// Undo and redo start from what is at hand.
    void lookAtSteps() {
        const History& steps = *m_window.history.history();
        expect(steps.now().ship == m_ship.state(), "the ship is another one than was noted");
        expect(m_window.history.mnuUndo.isEnabled() == steps.canUndo() &&
                   m_window.history.mnuRedo.isEnabled() == steps.canRedo(),
               "a step cannot be reached, or can");
    }

    TestWindow& m_test;
    const TypedTexts& m_typed;
    frmMain& m_window = m_test.window();
    ShipClass& m_ship = m_test.ship();
    std::string m_about;
    std::string m_faults;
};

}  // namespace

std::string brokenInvariants(TestWindow& test, const TypedTexts& typed) {
    return Look(test, typed).faults();
}

}  // namespace fleetwright
