#include "ComparePanel.h"

#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "bringInOrder.h"
#include "designCode.h"
#include "pastedCode.h"
#include "paths.h"
#include "readShip.h"
#include "text.h"

namespace fleetwright {

namespace {

/// How many lines of its file a ship has passed over, as a sentence.
std::string refusedBy(const ShipClass& ship) {
    const std::size_t count = ship.refusedLines().size();
    return count == 0   ? ""
           : count == 1 ? " It lacks a system that its file names."
                        : " It lacks " + std::to_string(count) + " systems that its file names.";
}

}  // namespace

std::string ComparePanel::otherName() const {
    return isDesignCode(m_source) ? "the pasted one" : shownText(shipSourceName(m_source));
}

void ComparePanel::show() {
    if (beside.isLoaded()) {
        tmrCompare.restart();
    }
}

void ComparePanel::lookAgain() {
    if (beside.isLoaded()) {
        window().acts.whenIdle([this] { look(); });
    }
}

void ComparePanel::mnuCompare_Click() {
    window().acts.whenIdle([this] {
        look();
        beside.show();
    });
}

void ComparePanel::tmrCompare_Timer() {
    if (window().acts.isIdle()) {
        tmrCompare.setEnabled(false);
        look();
    }
}

void ComparePanel::chooseFile() {
    const auto file = services().desktop.chooseFileToOpen(
        {.filter = "Ships and Sheets|*.shp *.svg *.pdf *.png|All Files (*.*)|*.*",
         .initialFolder = services().appFolder / "ships"});
    if (file) {
        take(*file);
    }
}

void ComparePanel::pasteCode() {
    try {
        take(pastedCode(*services().clipboard));
    } catch (const DesignCodeError& error) {
        beside.say(nothingPasted(error));
    }
}

void ComparePanel::take(const std::string& source) {
    m_source = source;
    m_other.reset();
    window().acts.whenIdle([this] { look(); });
}

/// Only with the design at rest: loads read their lines with what they share.
void ComparePanel::look() {
    if (!window().g_Ship) {
        return;
    }
    if (m_source.empty()) {
        beside.showNone(
            "Choose a ship file or a sheet, or paste a code, to see its ship beside this one.");
        return;
    }
    readOther();
    if (m_other) {
        beside.showShips(profileOf(ship()), profileOf(*m_other),
                         "This design beside " + otherName() + '.' + refusedBy(*m_other));
    } else {
        beside.showNone(m_fault);
    }
}

/// Reads the other ship, unless it is read already: with the catalogue of the one at hand, so that
/// what differs is the design.
void ComparePanel::readOther() {
    const bool isCode = isDesignCode(m_source);
    const auto stamp = isCode ? std::nullopt : fileStamp(nativePath(m_source));
    const bool isSame = isCode || (stamp && !stamp->isFresh && stamp == m_stamp);
    if (m_other && isSame && m_other->catalogueText() == ship().catalogueText()) {
        return;
    }
    m_stamp = stamp;
    m_other = std::make_unique<ShipClass>(
        ShipServices{.catalogueFile = CatalogueFile::holding(ship().catalogueText()),
                     .formula = services().globals.formula,
                     .eventLoopTurn = {}});
    try {
        if (m_other->loadShip(m_source)) {
            bringInOrder(*m_other);
            return;
        }
        m_fault = complaint(shipSourceName(m_source), *m_other->fileFault());
    } catch (const OverflowError& error) {
        m_fault = complaint(shipSourceName(m_source), {0, error.what()});
    }
    m_other.reset();
}

}  // namespace fleetwright
