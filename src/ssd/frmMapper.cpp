#include "frmMapper.h"

#include "Desktop.h"
#include "Error.h"
#include "PictureFiles.h"
#include "RasterSheet.h"
#include "ShipClass.h"
#include "bestMap.h"
#include "checkedArithmetic.h"
#include "paths.h"
#include "saveFile.h"

#include <algorithm>

namespace fleetwright {

namespace {

constexpr int roomBeside = 200;  // twips

}  // namespace

frmMapper::frmMapper(Services services)
    : Form({.name = "frmMapper",
            .caption = "Create SSD",
            .width = 4935,
            .height = 930,
            .border = Border::Sizable}),
      m_services(std::move(services)), m_firstPlace(place()), m_emptySheet(picSSD.place()) {}

void frmMapper::Form_Load() {
    cboMapSelection.clear();
    startAnew();
    picSSD.setAutoSize(true);
    const ShipClass& ship = m_services.ship().ship;
    m_aboard = m_services.lvCurrentWeapons.rows();
    m_mass = ship.mass();
    m_iShipWeapCount = 0;
    followDesign();
    try {
        m_iShipWeapCount = m_lists.fillShipWeap(m_aboard);
    } catch (const Error& error) {
        // So many pieces of one system are on no map.
        fail("The ship has too many systems for a sheet!!!", "SSD Creation Error", error);
        return;
    }
    for (const std::string& name : fittingMaps(m_services.g_colSSDMaps, m_mass, m_iShipWeapCount)) {
        cboMapSelection.addItem(name);
    }
    m_bestFit = bestMap(m_services.g_colSSDMaps, ship, m_lists.lstShipWeap);
    cboMapSelection.setToolTip(m_bestFit ? "Fits best: " + shownText(m_bestFit->sDisplayName)
                                         : "No map has room for the ship");
}

/// Brings the window to what it is when it opens.
void frmMapper::startAnew() {
    m_bestFit.reset();
    m_drawn.reset();
    keys.offer({});
    keys.say("");
    cboMapSelection.setToolTip("");
    m_lastFault.clear();
    cmdDrawIt.setEnabled(true);
    picSSD.setAutoSize(false);
    picSSD.setPicture({});
    picSSD.setPlace(m_emptySheet);
    setState(WindowState::Normal);
    resize(m_firstPlace.width + frameWidth, m_firstPlace.height + frameHeight);
}

void frmMapper::followDesign() {
    if (!isLoaded()) {
        return;
    }
    const std::string earlier = whatIsEarlier();
    lblOther.setCaption(earlier);
    lblOther.setVisible(!earlier.empty());
    const std::string remedy =
        earlier.empty() ? "" : earlier + ": close this window and choose Create SSD again";
    lblOther.setToolTip(remedy);
    cmdDrawIt.setToolTip(remedy);
}

/// What the window has of a ship that is another one by now, as a sentence; empty if nothing. The
/// systems and the offer of maps are of the ship with which it was opened. All else is read when
/// the sheet is drawn, which mixes the two.
std::string frmMapper::whatIsEarlier() const {
    const std::vector<ListView::Row>& rows = m_services.lvCurrentWeapons.rows();
    if (!std::is_permutation(rows.begin(), rows.end(), m_aboard.begin(), m_aboard.end())) {
        return "Lists the systems of an earlier design";  // in whatever order: a load sorts them
    }
    const ShipClass& ship = m_services.ship().ship;
    if (m_drawn) {
        return m_drawn->shipFile == ship.shipFile() ? "" : "Shows an earlier design";
    }
    const auto offerFor = [this](std::int32_t mass) {
        return fittingMaps(m_services.g_colSSDMaps, mass, m_iShipWeapCount);
    };
    return ship.mass() == m_mass || offerFor(ship.mass()) == offerFor(m_mass)
               ? ""
               : "Offers the maps for an earlier design";
}

void frmMapper::cmdDrawIt_Click() {
    followDesign();
    say("");
    if (cboMapSelection.text().empty()) {
        say(m_bestFit ? "Choose a map first, best: " + shownText(m_bestFit->sDisplayName)
                      : cboMapSelection.toolTip());
        return;
    }
    if (!layOut() || !showOutline()) {
        return;
    }
    drawSheet();
    cmdDrawIt.setEnabled(false);
    cmdSave.setEnabled(true);
}

/// Lays out the points of the chosen map; false, with a message, if there is no such map.
bool frmMapper::layOut() {
    try {
        m_Map = m_services.g_colSSDMaps.at(cboMapSelection.text());
        m_lists.fillPoints(*m_Map);
        return true;
    } catch (const Error& error) {
        fail("Invalid map file!!!", "Error in map file", error);
        return false;
    }
}

/// Shows the outline of the map; false, with a message, if that fails.
bool frmMapper::showOutline() {
    try {
        picSSD.setPicture(m_services.outlines(*m_Map));
        fitToSheet();
        return true;
    } catch (const Error& error) {
        fail("Couldn't load image file!!!", "Error loading image file", error);
        return false;
    }
}

/// Draws the sheet on the outline. If that fails, the outline stays.
void frmMapper::drawSheet() {
    RasterSheet sheet(picSSD.canvas(), [this] {
        picSSD.showDrawn();
        repaint();
    });
    try {
        const SheetShip ship = m_services.ship();
        drawSSD(sheet, m_services.images, *m_Map, m_lists, ship);
        picSSD.fitToPicture();
        picSSD.showDrawn();
        fitToSheet();
        m_drawn = {ship.txtShipName, ship.ship.shipFile()};
        if (m_services.actsFor) {
            keys.offer(m_services.actsFor(*m_Map, m_aboard, picSSD.picture()));
        }
    } catch (const Error& error) {
        fail("Could not create the SSD!", "SSD Creation Error", error);
        try {
            picSSD.setPicture(m_services.outlines(*m_Map));
        } catch (const Error&) {
            picSSD.setPicture(Raster(sheet.scaleWidth(), sheet.scaleHeight()));
        }
    }
}

void frmMapper::say(const std::string& text) {
    keys.say(text);
    if (!text.empty()) {
        keepMinimumSize(bInResize);
    }
}

void frmMapper::noteFault(const std::exception& cause) {
    const auto* const error = dynamic_cast<const FileError*>(&cause);
    m_lastFault = error == nullptr ? cause.what() : complaint(*error);
    say(m_lastFault);
}

void frmMapper::fail(const std::string& text, const std::string& title,
                     const std::exception& cause) {
    noteFault(cause);
    m_services.desktop.showMessage(text, title, Buttons::Ok, Icon::Critical);
}

void frmMapper::cmdSave_Click() {
    constexpr const char* extension = ".bmp";
    const std::string ship = m_drawn ? m_drawn->name : m_services.ship().txtShipName;
    std::optional<std::string> name =
        m_services.desktop.chooseFileToSave({.filter = "All Files (*.*)|*.*|BitMap Files",
                                             .filterIndex = 2,
                                             .initialFolder = m_services.appFolder / "ssds",
                                             .fileName = fileNameOf(ship) + extension,
                                             .extension = extension});
    if (!name) {
        return;
    }
    if (!name->ends_with(extension)) {
        *name += extension;
    }
    if (!maySave(m_services.desktop, nativePath(*name))) {
        return;
    }
    try {
        const Raster empty(m_emptySheet.width / PictureBox::twipsPerPixel,
                           m_emptySheet.height / PictureBox::twipsPerPixel);
        const Raster& sheet = picSSD.picture().isEmpty() ? empty : picSSD.picture();
        saveFile(nativePath(*name), m_services.encoder.encode(sheet, "bmp"));
    } catch (const std::exception& cause) {
        noteFault(cause);
        return;  // the window stays, and the sheet in it
    }
    if (m_services.say) {
        m_services.say("Saved " + shownText(*name) +
                       (m_drawn ? "" : ": an empty picture, since no sheet was drawn"));
    }
    unload();
}

std::int16_t frmMapper::largerOf(std::int16_t a, std::int16_t b) {
    return std::max(a, b);
}

/// Gives the window the size that shows sheet and frame. Throws Error if one of them is wider than
/// 16 bits hold.
void frmMapper::fitToSheet() {
    constexpr int roomAbove = 100;
    constexpr int roomBelow = 100;
    const Place& sheet = picSSD.place();
    const Place& frame = fraControls.place();
    if (constexpr int most = 32767; sheet.width > most) {
        throw Error("the outline is too wide for a sheet: " +
                    std::to_string(picSSD.picture().width()) + " pixels");
    }
    const std::int16_t widest =
        largerOf(narrow<std::int16_t>(sheet.width), narrow<std::int16_t>(frame.width));
    if (state() == WindowState::Normal) {
        resize(widest + frame.left + roomBeside, sheet.top + roomAbove + sheet.height + roomBelow);
    }
}

/// Keeps the user from making the window smaller than its sheet. `isInside` says that this handler
/// is at work already.
void frmMapper::keepMinimumSize(bool& isInside) {
    if (isInside || state() != WindowState::Normal) {
        return;
    }
    isInside = true;
    const int roomBelow = 500 + keys.lineHeight();
    const Place& sheet = picSSD.place();
    const Place& frame = fraControls.place();
    resize(std::max(width(), frame.left + frame.width + roomBeside),
           std::max(height(), sheet.top + sheet.height + roomBelow));
    isInside = false;
}

}  // namespace fleetwright
