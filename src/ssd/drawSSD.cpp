#include "drawSSD.h"

#include "SSDMap.h"
#include "Sheet.h"
#include "SheetImages.h"
#include "SheetPictures.h"
#include "ShipClass.h"
#include "checkedArithmetic.h"
#include "text.h"
#include "wholeNumber.h"

#include <cstddef>
#include <iterator>

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
          m_ship(ship.ship) {}

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
    static std::int16_t take(PointList& list, std::ptrdiff_t position, const char* what);
    void paintAtWeapon(const Raster& picture, std::int16_t point) {
        m_sheet.paint(picture, m_map.getWeapPntX(point), m_map.getWeapPntY(point));
    }
    void paintAtParty(const Raster& picture, std::int16_t point) {
        m_sheet.paint(picture, m_map.getDCPPntX(point), m_map.getDCPPntY(point));
    }
    void paintAtFireControl(std::string_view file, std::int16_t point) {
        m_sheet.paint(m_images.file(file), m_map.getFIRECONPntX(point),
                      m_map.getFIRECONPntY(point));
    }

    Sheet& m_sheet;
    const SheetImages& m_images;
    const SSDMap& m_map;
    SheetLists& m_lists;
    const SheetShip& m_figures;
    const ShipClass& m_ship;
    std::string m_unpainted;  // names of the systems that got no picture, a CR behind each
    Pen m_pen;
};

/// Takes the number at a position off a list. A map with too few points comes to light here.
std::int16_t SheetDrawing::take(PointList& list, std::ptrdiff_t position, const char* what) {
    if (position < 0 || position >= std::ssize(list)) {
        throw Error(std::string("the map has too few points for the ship's ") + what);
    }
    const auto entry = list.begin() + position;
    const std::int16_t point = *entry;
    list.erase(entry);
    return point;
}

void SheetDrawing::paintDamageTrack() {
    if (m_map.iMaxMass <= capitalMass) {
        const std::string file =
            damageTrackPicture(trackSize(m_map.iMaxMass), trimmed(m_figures.txtDP));
        m_sheet.paint(m_images.file(file), m_map.getDAMPntX(), m_map.getDAMPntY());
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
        const std::ptrdiff_t last = std::ssize(m_lists.lstDCP) - 1;
        const std::int16_t point = take(m_lists.lstDCP, last, "extra damage control parties");
        paintAtParty(m_images.system(name), point);
    } else if (m_ship.PaintableWeap(name)) {
        const std::int16_t point = m_lists.pickWeapPoint(m_ship, name);
        paintAtWeapon(m_images.system(name), point);
    } else {
        m_unpainted += name + '\r';
    }
}

void SheetDrawing::paintParties() {
    for (std::int16_t i = narrow<std::int16_t>(number(m_figures.txtDCP) - 1); i >= 0; --i) {
        const std::int16_t point = take(m_lists.lstDCP, i, "damage control parties");
        paintAtParty(m_images.system(Catalogue::partyName), point);
    }
}

void SheetDrawing::paintFireControls() {
    for (std::int16_t i = narrow<std::int16_t>(number(m_figures.txtFireCon) - 1); i >= 0; --i) {
        paintAtFireControl(fireControlPicture, take(m_lists.lstFirecons, i, "fire controls"));
    }
}

void SheetDrawing::paintDrives() {
    const std::int16_t thrustX = m_map.getThrustPntX();
    const std::int16_t thrustY = m_map.getThrustPntY();
    if (isBase(m_ship.Hull())) {
        m_sheet.paint(m_images.system(SheetImages::blank), thrustX, thrustY);
    } else {
        m_sheet.paint(m_images.file(thrustPicture(m_ship.THRUST())), thrustX, thrustY);
    }
    m_sheet.paint(m_images.file(drivePicture(m_ship.FTL())), m_map.getFTLPntX(),
                  m_map.getFTLPntY());
}

void SheetDrawing::coverWhatIsLeft() {
    for (const char arc : mapArcs) {
        PointList& list = *m_lists.weaponsIn(arc);
        for (; !list.empty(); list.pop_back()) {
            paintAtWeapon(m_images.system(SheetImages::blank), list.back());
        }
    }
    for (; !m_lists.lstDCP.empty(); m_lists.lstDCP.pop_back()) {
        paintAtParty(m_images.system(SheetImages::blank), m_lists.lstDCP.back());
    }
    for (; !m_lists.lstFirecons.empty(); m_lists.lstFirecons.pop_back()) {
        paintAtFireControl(unusedFireControlPicture, m_lists.lstFirecons.back());
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

void drawSSD(Sheet& sheet, const SheetImages& images, const SSDMap& map, SheetLists& lists,
             const SheetShip& ship) {
    SheetDrawing(sheet, images, map, lists, ship).draw();
}

}  // namespace fleetwright
