#include "frmMain.h"

#include "ActScope.h"
#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "StartUpProgress.h"
#include "explainShip.h"
#include "wholeNumber.h"

#include <stdexcept>
#include <utility>

namespace fleetwright {

frmMain::frmMain(MainWindowServices services)
    : frmMainMenus({.name = "frmMain",
                    .caption = "Fleet Wright",
                    .width = 10830,
                    .height = 8115,
                    .border = Border::FixedMin}),
      m_services(std::move(services)) {
    txtMass.onLostFocus = [this] { raiseMassToSmallest(); };
    txtMass.onMouseDown = [this](const MousePress&) { txtMass_MouseDown(); };
    txtShipName.onDblClick = [this] { txtShipName_DblClick(); };
    txtShipName.onKeyPress = [this](int key) { return txtShipName_KeyPress(key); };
    txtDesigner.onDblClick = [this] { txtDesigner_DblClick(); };
    txtDesigner.onKeyPress = [this](int key) { return txtDesigner_KeyPress(key); };
    tvWeapons.onClick = [this] { tvWeapons_Click(); };
    tvWeapons.onDblClick = [this] { tvWeapons_DblClick(); };
    tvWeapons.onMouseDown = [this](const MousePress& press) { tvWeapons_MouseDown(press); };
    tvWeapons.onMouseMove = [this](const MousePress& press) { tvWeapons_MouseMove(press); };
    tvWeapons.onMouseUp = [this](const MousePress& press) { tvWeapons_MouseUp(press); };
    lvCurrentWeapons.onDragDrop = [this](Control& source) { lvCurrentWeapons_DragDrop(source); };
    lvCurrentWeapons.onClick = [this] { lvCurrentWeapons_Click(); };
    lvCurrentWeapons.onDblClick = [this] { lvCurrentWeapons_DblClick(); };
    lvCurrentWeapons.onMouseDown = [this](const MousePress& press) {
        lvCurrentWeapons_MouseDown(press);
    };
    // Lets the player see what a figure is made of by pointing at it.
    const std::array<Control*, 3> figures = {&txtCost, &txtDP, &lblMassLeft};
    for (std::size_t i = 0; i < figures.size(); ++i) {
        figures[i]->askToolTip = [this, i] {
            std::string sum = g_Ship ? textOf(explainShip(*g_Ship)[i]) : std::string();
            return sum.substr(0, sum.find_last_not_of('\n') + 1);
        };
    }
    tvWeapons.nodeToolTip = [this](const TreeView::Node& node) {
        const std::string system =
            node.children.empty() ? describeSystem(*g_Ship, node.key, 1) : std::string();
        return system.empty()
                   ? system
                   : system + "\n\nDouble-click, press Enter or drag it to the list to fit one";
    };
    lvCurrentWeapons.rowToolTip = [this](const ListView::Row& row) {
        return describeSystem(*g_Ship, row.key, wholeNumber(row.subItem)) +
               "\n\nDouble-click, or press Delete, to take one away; right-click for more";
    };
}

Label frmMain::figureLabel(const std::string& name, const std::string& caption, int top, int left,
                           int width) {
    return Label(fraInfo, {.name = name, .place = {left, top, width, 288}, .caption = caption});
}

TextBox frmMain::figureBox(const std::string& name, const std::string& spoken, int top,
                           bool isLocked) {
    return TextBox(fraInfo, {.name = name,
                             .place = {1365, top, 1455, 288},
                             .accessibleName = spoken,
                             .isFlat = true,
                             .isLocked = isLocked});
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
    noteSafe();
    m_services.progress.setText("Preparing to load weapons");
    g_bLoaded = false;
    for (const std::string_view root : catalogueRoots) {
        tvWeapons.add("", std::string(root));
    }
    const int listWidth = lvCurrentWeapons.place().width;
    lvCurrentWeapons.addColumn("Weapon Name", listWidth / 2);
    lvCurrentWeapons.addColumn("Count", listWidth / 3);
    if (m_services.hasScreen) {
        addOwnPictures();
        LoadWeaponTree();
    }
    loadStep(m_services.desktop, "Error Creating MRU File Object",
             [this] { CMRUList = std::make_unique<clsMRUFiles>(m_services.settings); });
    loadStep(m_services.desktop, "Error Setting App.Title in MRU File Object",
             [this] { CMRUList->BaseName(applicationTitle); });
    loadStep(m_services.desktop, "Error filling MRU File Object", [this] { fillMRU(); });
    m_services.progress.setText("Weapons Loaded");
    RefreshScreen();
    showRecovered();
    g_bLoaded = true;
}

void frmMain::Form_Unload(bool& cancel) {
    if (m_actDepth > 0) {
        // The ship is at work; it cannot go before that has ended.
        cancel = true;
        whenIdle([this] { unload(); });
        return;
    }
    if (m_services.globals.g_bConfirmExit && !g_Ship->g_bSaved) {
        cancel =
            m_services.desktop.showMessage("Ship not saved, continue with exit?", "Ship not saved!",
                                           Buttons::YesNo, Icon::Information) == Answer::No;
    }
    if (!cancel && !giveUpDesign()) {
        cancel = true;
    }
    if (cancel) {
        return;
    }
    m_shipEvents.clear();
    g_Ship.reset();
    m_services.freeFormulaLibrary();
    m_services.desktop.unloadAllForms();
    setState(WindowState::Minimized);
}

void frmMain::g_Ship_CloakAndMerchant() {
    sbStatus.setText("Cannot have cloak and other weapons on a merchant hull...");
}

void frmMain::g_Ship_WeaponNotFound() {
    // The timer ticks behind the box, also in the middle of a load; each time there would be more.
    if (!std::exchange(m_saysNotFound, true)) {
        letActsIn([this] { m_services.desktop.showMessage("Couldn 't find the weapon"); });
        m_saysNotFound = false;
    }
}

void frmMain::g_Ship_AutoMassUnsettled() {
    sbStatus.setText("AutoMass found no fitting mass");
}

void frmMain::g_Ship_ShipSaved() {
    RefreshScreen();
    sbStatus.setText("Saved...");
}

void frmMain::g_Ship_ShipLoaded() {
    showButtons();
    showSystems();
    // A file without systems has worked nothing out yet. What this still changes counts as loaded.
    RefreshScreen();
}

void frmMain::act(const std::function<void()>& change) {
    if (!g_Ship) {
        return;  // the window is closing
    }
    if (m_actDepth > 0 && !m_isInTurn) {
        change();
        return;
    }
    runUndoable(change);
    runWaiting();
}

/// Runs what has waited for the acts to end. Behind the end of the window nothing is left to do.
void frmMain::runWaiting() {
    while (g_Ship && m_actDepth == 0 && !m_whenIdle.empty()) {
        const std::function<void()> task = std::move(m_whenIdle.front());
        m_whenIdle.erase(m_whenIdle.begin());
        task();
    }
}

void frmMain::runUndoable(const std::function<void()>& change) {
    const ActScope scope(*this);
    const ShipClass::State before = g_Ship->state();
    try {
        change();
    } catch (const OverflowError&) {
        g_Ship->restore(before);
        showSystems();
        try {
            RefreshScreen();
        } catch (const OverflowError&) {
            // A ship that a file has brought out of range is shown as far as it goes.
        }
        g_Ship->g_bSaved = before.isSaved;
        sbStatus.setText("Number too large");
    }
}

void frmMain::whenIdle(std::function<void()> task) {
    if (m_actDepth > 0) {
        m_whenIdle.push_back(std::move(task));
    } else {
        task();
        runWaiting();
    }
}

/// AutoMass lets the user act in the middle of its own work.
void frmMain::giveTurn() {
    if (m_services.eventLoopTurn) {
        letActsIn(m_services.eventLoopTurn);
    }
}

/// Runs what runs the event loop. An act that comes in there is one of its own.
void frmMain::letActsIn(const std::function<void()>& turn) {
    const bool wasInTurn = std::exchange(m_isInTurn, true);
    turn();
    m_isInTurn = wasInTurn;
}

void frmMain::RefreshScreen() {
    const std::optional<std::size_t> row = lvCurrentWeapons.selected();
    mnuSave.setEnabled(!g_Ship->g_sSaveName.empty());
    mnuSSD.setEnabled(g_Ship->mass() <= m_services.globals.g_iLargestSSD);
    if (m_services.recovery != nullptr && !tmrRecovery.isEnabled()) {
        tmrRecovery.restart();
    }
    showFigures();
    showButtons();
    // What cannot be previewed stays as it was, without a word.
    if (tvWeapons.selected() == nullptr) {
        return;
    }
    previewNode();
    if (lvCurrentWeapons.rows().empty()) {
        lblWeapMass[1].setCaption("");
        lblWeapCost[1].setCaption("");
    } else if (row) {
        previewRow(*row);
    }
}

void frmMain::showFigures() {
    txtCost.setText(std::to_string(g_Ship->g_lCost));
    txtDP.setText(std::to_string(g_Ship->g_iDP));
    txtDamRows.setText(std::to_string(g_Ship->g_iDamRows));
    lblMassLeft.setCaption(std::to_string(g_Ship->g_iMassLeft));
    txtMass.setText(std::to_string(g_Ship->mass()));
    txtDCP.setText(std::to_string(g_Ship->g_iDCP));
    txtFireCon.setText(std::to_string(g_Ship->g_iFCS));
    txtRelSize.setText(std::string(g_Ship->relSize()));
    txtClass.setText(std::string(g_Ship->Class()));
    txtShipName.setText(g_Ship->g_sShipName);
    txtDesigner.setText(g_Ship->g_sDesignerName);
}

void frmMain::tmrRefreshScreen_Timer() {
    act([this] {
        if (sbStatus.text() == sLastStatus) {
            sbStatus.setText("");
        }
        sLastStatus = sbStatus.text();
        RefreshScreen();
    });
    keepFindable();
}

}  // namespace fleetwright
