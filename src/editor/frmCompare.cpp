#include "frmCompare.h"

#include "fireRose.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace fleetwright {

namespace {

ListView::Row rowOf(const ComparedLine& line) {
    const std::string difference = line.difference(1);
    return {.key = line.key,
            .text = line.title,
            .subItem = line.cells[0].text,
            .moreItems = {line.cells[1].text,
                          difference.empty() && line.differs() ? "differs" : difference},
            .isStrong = line.differs()};
}

}  // namespace

frmCompare::frmCompare(Acts acts)
    : Form({.name = "frmCompare", .caption = "Compare", .width = 12600, .height = 6810}),
      m_acts(std::move(acts)) {
    lvLines.addColumn("", 2400);
    lvLines.addColumn("This design", 1950);
    lvLines.addColumn("Other", 1950);
    lvLines.addColumn("Difference", 2100);
    lvLines.rowToolTip = [](const ListView::Row& row) {
        const std::string& difference = row.moreItems[1];
        return row.text + "\nThis design: " + row.subItem + "\nOther: " + row.moreItems[0] +
               (difference.empty() ? "" : "\nDifference: " + difference);
    };
    for (PictureBox* const box :
         {&picWeaponsHere, &picWeaponsOther, &picPointsHere, &picPointsOther}) {
        box->setAutoSize(false);
    }
    showNone("");
}

void frmCompare::showShips(const ShipProfile& here, const ShipProfile& other,
                           const std::string& about) {
    m_lines = compareShips(std::array{here, other});
    lblAbout.setCaption(about + ' ' + differencesIn(m_lines));
    showLines();
    showFire(here.fire, other.fire);
}

void frmCompare::showNone(const std::string& why) {
    m_lines.clear();
    lblAbout.setCaption(why);
    showLines();
    showFire({}, {});
}

void frmCompare::showLines() {
    ListView::Content content;
    const auto selected = lvLines.selected();
    const std::string key = selected ? lvLines.rows()[*selected].key : "";
    for (const ComparedLine& line : m_lines) {
        if (line.differs() || !chkOnlyDifferences.isTicked()) {
            if (line.key == key) {
                content.selected = content.rows.size();
            }
            content.rows.push_back(rowOf(line));
        }
    }
    lvLines.setContent(std::move(content));
}

/// All four at one scale each, so that the larger area is the larger power.
void frmCompare::showFire(const FirePower& here, const FirePower& other) {
    const auto show = [&](RoseOf measure, PictureBox& boxHere, PictureBox& boxOther) {
        const std::int64_t full = fullSectorOf({&here, &other}, measure);
        for (const auto& [box, power] : {std::pair(&boxHere, &here), {&boxOther, &other}}) {
            box->setDrawing(std::make_shared<const Drawing>(fireRose(*power, measure, full)));
            box->setToolTip(wordsOf(*power));
        }
    };
    show(RoseOf::Weapons, picWeaponsHere, picWeaponsOther);
    show(RoseOf::Points, picPointsHere, picPointsOther);
}

void frmCompare::Form_Opened() {
    (m_lines.empty() ? static_cast<Control&>(cmdChoose) : lvLines).setFocus();
}

}  // namespace fleetwright
