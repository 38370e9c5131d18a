#include "drawSSD.h"

#include "SSDMap.h"
#include "Sheet.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "arcWords.h"
#include "checkedArithmetic.h"
#include "designWords.h"
#include "text.h"
#include "wholeNumber.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

namespace fleetwright {

namespace {

std::int16_t number(std::string_view text) {
    return narrow<std::int16_t>(wholeNumber(text));
}

class SheetDrawing {
public:
    SheetDrawing(Sheet& sheet, const SheetImages& images, const SSDMap& map, SheetLists& lists,
                 const SheetShip& ship)
        : m_sheet(sheet), m_images(images), m_map(map), m_lists(lists), m_figures(ship),
          m_ship(ship.ship),
          m_furtherParties(std::count(lists.lstShipWeap.begin(), lists.lstShipWeap.end(),
                                      Catalogue::partyName)) {}

    void draw() {
        paintDamageTrack();
        paintSystems();
        paintParties();
        paintFireControls();
        paintDrives();
        coverWhatIsLeft();
        printText();
        trim();
    }

private:
    void paintDamageTrack();
    void paintSystems();
    void paintSystem(const std::string& name);
    void paintParties();
    void paintFireControls();
    void paintDrives();
    void coverWhatIsLeft();
    void printText();
    void trim();

    std::string text() const;
    static std::optional<std::int16_t> take(PointList& list, std::ptrdiff_t position);
    std::int16_t takeParty(std::ptrdiff_t position);
    std::int16_t takeFireControl(std::ptrdiff_t position);
    [[noreturn]] void failFor(const char* what, std::ptrdiff_t points, std::ptrdiff_t needed) const;
    std::string mapName() const { return "the map " + quote(m_map.sDisplayName); }
    Raster file(std::string_view name, const std::string& what) const;
    const Raster& system(std::string_view name) const;
    // No name means that it is no piece of a system.
    void paintAtWeapon(const Raster& picture, std::int16_t point, std::string_view name = {}) {
        m_sheet.paintPiece(picture, m_map.getWeapPntX(point), m_map.getWeapPntY(point), name);
    }
    void paintAtParty(const Raster& picture, std::int16_t point, std::string_view name = {}) {
        m_sheet.paintPiece(picture, m_map.getDCPPntX(point), m_map.getDCPPntY(point), name);
    }
    void paintAtFireControl(const Raster& picture, std::int16_t point, std::string_view name = {}) {
        m_sheet.paintPiece(picture, m_map.getFIRECONPntX(point), m_map.getFIRECONPntY(point), name);
    }

    Sheet& m_sheet;
    const SheetImages& m_images;
    const SSDMap& m_map;
    SheetLists& m_lists;
    const SheetShip& m_figures;
    const ShipClass& m_ship;
    std::ptrdiff_t m_furtherParties;  // among the systems
    std::string m_unpainted;          // names of the systems that got no picture, a CR behind each
    Pen m_pen;
};

/// Takes the number at a position off a list; nothing if there is no such position.
std::optional<std::int16_t> SheetDrawing::take(PointList& list, std::ptrdiff_t position) {
    if (position < 0 || position >= std::ssize(list)) {
        return {};
    }
    const auto entry = list.begin() + position;
    const std::int16_t point = *entry;
    list.erase(entry);
    return point;
}

/// A map with too few points comes to light when one is taken.
void SheetDrawing::failFor(const char* what, std::ptrdiff_t points, std::ptrdiff_t needed) const {
    throw Error(std::string("too few points for ") + what + " on " + mapName() + ": " +
                std::to_string(points) + ", and the ship needs " + std::to_string(needed));
}

std::int16_t SheetDrawing::takeParty(std::ptrdiff_t position) {
    if (const std::optional<std::int16_t> point = take(m_lists.lstDCP, position)) {
        return *point;
    }
    failFor("damage control parties", m_map.iDCPNDX, m_furtherParties + number(m_figures.txtDCP));
}

std::int16_t SheetDrawing::takeFireControl(std::ptrdiff_t position) {
    if (const std::optional<std::int16_t> point = take(m_lists.lstFirecons, position)) {
        return *point;
    }
    failFor("fire controls", m_map.iFIRECONNDX, number(m_figures.txtFireCon));
}

/// A picture file. A failure says what of the sheet it is for.
Raster SheetDrawing::file(std::string_view name, const std::string& what) const {
    try {
        return m_images.file(name);
    } catch (const FileError& error) {
        throw Error("no picture " + what + ": " + complaint(error));
    }
}

const Raster& SheetDrawing::system(std::string_view name) const {
    try {
        return m_images.system(name);
    } catch (const FileError& error) {
        throw Error("no picture of " + quote(name) + ": " + complaint(error));
    }
}

void SheetDrawing::paintDamageTrack() {
    if (m_map.iMaxMass <= capitalMass) {
        const std::string points(trimmed(m_figures.txtDP));
        m_sheet.paint(file(damageTrackPicture(trackSize(m_map.iMaxMass), points),
                           "for " + points + " damage points on " + mapName()),
                      m_map.getDAMPntX(), m_map.getDAMPntY());
    }
}

void SheetDrawing::paintSystems() {
    while (!m_lists.lstShipWeap.empty()) {
        paintSystem(m_lists.lstShipWeap.back());
        m_lists.lstShipWeap.pop_back();
        m_sheet.refresh();
    }
}

void SheetDrawing::paintSystem(const std::string& name) {
    if (name == Catalogue::partyName) {
        const std::int16_t point = takeParty(std::ssize(m_lists.lstDCP) - 1);
        paintAtParty(system(name), point, name);
    } else if (m_ship.PaintableWeap(name)) {
        if (m_map.iWeapNDX == 0) {
            throw Error("no point for " + quote(name) + " on " + mapName());
        }
        const std::int16_t point = m_lists.pickWeapPoint(m_ship, name);
        paintAtWeapon(system(name), point, name);
    } else {
        m_unpainted += name + '\r';
    }
}

void SheetDrawing::paintParties() {
    for (std::int16_t i = narrow<std::int16_t>(number(m_figures.txtDCP) - 1); i >= 0; --i) {
        const std::int16_t point = takeParty(i);
        paintAtParty(system(Catalogue::partyName), point, Catalogue::partyName);
    }
}

void SheetDrawing::paintFireControls() {
    for (std::int16_t i = narrow<std::int16_t>(number(m_figures.txtFireCon) - 1); i >= 0; --i) {
        const std::int16_t point = takeFireControl(i);
        paintAtFireControl(file(fireControlPicture, "of a fire control"), point, fireControlName);
    }
}

void SheetDrawing::paintDrives() {
    const std::int16_t thrustX = m_map.getThrustPntX();
    const std::int16_t thrustY = m_map.getThrustPntY();
    if (isBase(m_ship.Hull())) {
        m_sheet.paint(system(blankPictureKey), thrustX, thrustY);
    } else {
        const std::int16_t thrust = m_ship.THRUST();
        m_sheet.paintPiece(file(thrustPicture(thrust), "for thrust " + std::to_string(thrust)),
                           thrustX, thrustY, thrust > 0 ? thrustDriveName(thrust) : std::string());
    }
    m_sheet.paintPiece(file(drivePicture(m_ship.FTL()), "of the FTL drive"), m_map.getFTLPntX(),
                       m_map.getFTLPntY(), ftlDriveName(m_ship.FTL()));
}

void SheetDrawing::coverWhatIsLeft() {
    for (const char arc : sheetArcs) {
        PointList& list = *m_lists.weaponsIn(arc);
        for (; !list.empty(); list.pop_back()) {
            paintAtWeapon(system(blankPictureKey), list.back());
        }
    }
    for (; !m_lists.lstDCP.empty(); m_lists.lstDCP.pop_back()) {
        paintAtParty(system(blankPictureKey), m_lists.lstDCP.back());
    }
    for (; !m_lists.lstFirecons.empty(); m_lists.lstFirecons.pop_back()) {
        paintAtFireControl(file(unusedFireControlPicture, "of an unused fire control"),
                           m_lists.lstFirecons.back());
    }
}

std::string SheetDrawing::text() const {
    std::string text = "\rName: " + m_figures.txtShipName + "\rDesigner: " + m_figures.txtDesigner +
                       "\rPoints: " + m_figures.txtCost + '\r' + m_ship.StreamString() +
                       m_ship.ArmorString() + '\r';
    if (!m_unpainted.empty()) {
        text += "=================================\r" + m_unpainted + '\r';
    }
    return text + '\r';
}

void SheetDrawing::printText() {
    const std::int16_t iTextTop = narrow<std::int16_t>(m_sheet.scaleHeight());
    const std::string block = text();
    constexpr int margin = 15;  // twips
    const std::int64_t added =
        std::int64_t{m_sheet.textHeight(block)} * m_sheet.twipsPerPixel() + margin;
    m_sheet.setControlHeight(narrow<std::int32_t>(m_sheet.controlHeight() + added));
    m_sheet.fill({0, iTextTop}, {m_sheet.scaleWidth(), m_sheet.scaleHeight()}, Sheet::white);
    constexpr int indent = 10;
    m_pen = m_sheet.print(block, {indent, iTextTop});
}

/// Cuts off what is below the lowest ink of the column in which every printed line has some.
void SheetDrawing::trim() {
    constexpr int inkColumn = 2;
    constexpr int roomBelow = 15;
    while (m_sheet.pixel(inkColumn, m_pen.y) != Sheet::black && m_pen.y > 0) {
        --m_pen.y;
    }
    m_sheet.setControlHeight((m_pen.y + roomBelow) * m_sheet.twipsPerPixel());
}

}  // namespace

SheetShip sheetShipOf(ShipClass& ship) {
    return {.txtDP = std::to_string(ship.g_iDP),
            .txtDCP = std::to_string(ship.g_iDCP),
            .txtFireCon = std::to_string(ship.g_iFCS),
            .txtShipName = ship.g_sShipName,
            .txtDesigner = ship.g_sDesignerName,
            .txtCost = std::to_string(ship.g_lCost),
            .ship = ship};
}

void drawSSD(Sheet& sheet, const SheetImages& images, const SSDMap& map, SheetLists& lists,
             const SheetShip& ship) {
    SheetDrawing(sheet, images, map, lists, ship).draw();
}

}  // namespace fleetwright
