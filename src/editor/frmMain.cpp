#include "frmMain.h"

#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "StartUpProgress.h"

#include <cassert>
#include <stdexcept>
#include <utility>

namespace fleetwright {

frmMain::frmMain(MainWindowServices services)
    : Form({.name = "frmMain",
            .caption = "Fleet Wright",
            .width = 10830,
            .height = 8115,
            .border = Border::FixedMin}),
      m_services(std::move(services)),
      m_acts({.isThere = [this] { return g_Ship != nullptr; },
              .remember = [this] { return [this, before = moment()] { goBackTo(before); }; },
              .overflowed = [this] { sbStatus.setText("Number too large"); },
              .rested =
                  [this](std::string_view kind) {
                      history.rest(kind);
                      sayNotKept();
                      tellNews();
                      Rested.raise();
                  }}),
      m_context{.form = *this,
                .g_Ship = g_Ship,
                .acts = m_acts,
                .services = m_services,
                .RefreshScreen = [this] { RefreshScreen(); },
                .say = [this](const std::string& text) { sbStatus.setText(text); },
                .takeBack = [this](const std::string& text) { sbStatus.takeBack(text); }} {
    onFilesDrop = [this](const std::vector<std::string>& dropped) { files.openFiles(dropped); };
}

/// Runs one of the steps of the load that have a message of their own. After it the program ends.
static void loadStep(Desktop& desktop, const std::string& message,
                     const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception&) {
        desktop.showMessage(message);
        throw EndOfProgram();
    }
}

void frmMain::Form_Load() {
    loadStep(m_services.desktop, "Error Creating Ship Object", [this] { replaceShip(); });
    loadStep(m_services.desktop, "Error Getting Designer Name", [this] {
        if (g_Ship->g_sDesignerName != m_services.globals.g_sDefaultDesigner) {
            g_Ship->g_sDesignerName = m_services.globals.g_sDefaultDesigner;
        }
    });
    recovery.noteSafe();
    m_services.progress.setText("Preparing to load weapons");
    g_bLoaded = false;
    tree.addRoots();
    aboard.addColumns();
    if (m_services.hasScreen) {
        tree.LoadWeaponTree();
    }
    loadStep(m_services.desktop, "Error Creating MRU File Object",
             [this] { CMRUList = std::make_unique<clsMRUFiles>(m_services.settings); });
    loadStep(m_services.desktop, "Error Setting App.Title in MRU File Object",
             [this] { CMRUList->BaseName(applicationTitle); });
    loadStep(m_services.desktop, "Error filling MRU File Object", [this] { fillMRU(); });
    m_services.progress.setText("Weapons Loaded");
    RefreshScreen();
    windows.sayDroppedMaps();
    recovery.askAfterStart();
    history.begin();
    tellNews();  // nothing is, yet
    g_bLoaded = true;
}

void frmMain::Form_Unload(bool& cancel) {
    if (!m_acts.isIdle()) {
        cancel = true;
        m_acts.endWhenIdle([this] { unload(); });
        return;
    }
    if (m_services.globals.g_bConfirmExit && !g_Ship->g_bSaved) {
        cancel =
            m_services.desktop.showMessage("Ship not saved, continue with exit?", "Ship not saved!",
                                           Buttons::YesNo, Icon::Information) == Answer::No;
    }
    cancel = cancel || !fleet.end() || !recovery.giveUpDesign();
    if (cancel) {
        return;
    }
    g_Ship.reset();
    m_services.freeFormulaLibrary();
    m_services.desktop.unloadAllForms();
    setState(WindowState::Minimized);
}

void frmMain::Form_Resize() {
    if (g_Ship) {  // else the window is closing
        tray.followState();
    }
}

void frmMain::RefreshScreen() {
    const std::optional<std::size_t> row = aboard.lvCurrentWeapons.selected();
    files.show();
    windows.show();
    recovery.noteChange();
    figures.show();
    mass.show();
    names.show();
    hull.show();
    findings.show();
    compare.show();
    previews.show(row);
    find.show();
}

DesignMoment frmMain::moment() const {
    return {.ship = g_Ship->state(),
            .rows = aboard.records(),
            .isAutoMassMarked = mass.mnuAutoMass.isChecked(),
            .catalogue = g_Ship->catalogueText()};
}

/// Shows a design as it was. No control writes anything back.
void frmMain::goBackTo(const DesignMoment& moment) {
    m_acts.showOnly([&] {
        if (!isSameCatalogue(moment.catalogue, g_Ship->catalogueText())) {
            putShip(CatalogueFile::holding(moment.catalogue));
        }
        if (const std::int32_t thrust = moment.ship.hull.thrust;
            thrust < 0 || thrust > mostThrust) {
            g_Ship->restore({});  // the button of a new ship stays on, as in a load
            hull.show();
        }
        g_Ship->restore(moment.ship);
        mass.markAutoMass(moment.isAutoMassMarked);
        aboard.showRows(moment.rows);
        try {
            RefreshScreen();
        } catch (const OverflowError&) {
            // A ship that a file has brought out of range is shown as far as it goes.
        }
    });
}

/// What an act itself says hides that a name which was being typed gave way to it.
void frmMain::sayNotKept() {
    const std::string notKept = names.takeNotKept(), said = sbStatus.text();
    if (!notKept.empty() && said != notKept) {
        const char* const between = said.empty() ? "" : said.ends_with('.') ? " " : ". ";
        sbStatus.setText(said + between + notKept);
    }
}

void frmMain::tellNews() {
    const std::string text = m_news.sinceLastTime(*g_Ship, history.newStep());
    if (g_bLoaded && !text.empty()) {
        sbStatus.tell(text);
    }
}

void frmMain::tmrRefreshScreen_Timer() {
    m_acts.act([this] {
        sbStatus.wipe(sLastStatus);
        RefreshScreen();
    });
    // A window that this has closed, because that was to wait for its end, stays closed.
    if (g_Ship) {
        tray.keepFindable();
    }
}

void frmMain::replaceShip() {
    putShip(m_services.catalogueFile);
    recovery.noteSafe();
    history.noteReplaced();
}

void frmMain::putShip(const CatalogueFile& catalogueFile) {
    assert(!g_Ship || !g_Ship->isBusy());  // whoever comes in between waits with whenIdle
    // What runs the event loop lets acts in, if there is an event loop.
    auto ship =
        std::make_unique<ShipClass>(ShipServices{.catalogueFile = catalogueFile,
                                                 .formula = m_services.globals.formula,
                                                 .eventLoopTurn = [this] {
                                                     if (m_services.eventLoopTurn) {
                                                         m_acts.letActsIn(m_services.eventLoopTurn);
                                                     }
                                                 }});
    m_shipEvents.clear();
    g_Ship = std::move(ship);
    const auto listen = [this](Signal<>& event, void (frmMain::*handler)()) {
        m_shipEvents.push_back(event.connect([this, handler] { (this->*handler)(); }));
    };
    listen(g_Ship->Recalculated, &frmMain::g_Ship_Recalculated);
    listen(g_Ship->CloakAndMerchant, &frmMain::g_Ship_CloakAndMerchant);
    listen(g_Ship->ShipLoaded, &frmMain::g_Ship_ShipLoaded);
    listen(g_Ship->ShipSaved, &frmMain::g_Ship_ShipSaved);
    listen(g_Ship->WeaponNotFound, &frmMain::g_Ship_WeaponNotFound);
    listen(g_Ship->AutoMassUnsettled, &frmMain::g_Ship_AutoMassUnsettled);
}

void frmMain::g_Ship_CloakAndMerchant() {
    sbStatus.setText("Cannot have cloak and other weapons on a merchant hull...");
}

void frmMain::g_Ship_ShipLoaded() {
    hull.show();
    aboard.show();
    // A file without systems has worked nothing out yet. What this still changes counts as loaded.
    RefreshScreen();
}

void frmMain::g_Ship_ShipSaved() {
    fleet.noteSaved();
    RefreshScreen();
    sbStatus.setText("Saved...");
}

void frmMain::g_Ship_WeaponNotFound() {
    // The timer ticks behind the box, also in the middle of a load; each time there would be more.
    if (!std::exchange(m_saysNotFound, true)) {
        m_acts.letActsIn([this] { m_services.desktop.showMessage("Couldn 't find the weapon"); });
        m_saysNotFound = false;
    }
}

void frmMain::g_Ship_AutoMassUnsettled() {
    sbStatus.setText("AutoMass found no fitting mass");
}

}  // namespace fleetwright
