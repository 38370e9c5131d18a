#include "ComparePanel.h"

#include "Desktop.h"
#include "Error.h"
#include "Globals.h"
#include "bringInOrder.h"
#include "paths.h"
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
    return shownText(pathText(nativePath(m_source).filename()));
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
        m_source = *file;
        m_other.reset();
        window().acts.whenIdle([this] { look(); });
    }
}

/// Only with the design at rest: loads read their lines with what they share.
void ComparePanel::look() {
    if (!window().g_Ship) {
        return;
    }
    if (m_source.empty()) {
        beside.showNone("Choose a ship file or a sheet to see this design beside its ship.");
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
    const std::optional<FileStamp> stamp = fileStamp(nativePath(m_source));
    if (m_other && stamp && !stamp->isFresh && stamp == m_stamp &&
        m_other->catalogueText() == ship().catalogueText()) {
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
        m_fault = complaint(otherName(), *m_other->fileFault());
    } catch (const OverflowError& error) {
        m_fault = complaint(otherName(), {0, error.what()});
    }
    m_other.reset();
}

}  // namespace fleetwright
