#pragma once

#include "Button.h"
#include "CheckBox.h"
#include "CloseButton.h"
#include "Form.h"
#include "Frame.h"
#include "Label.h"
#include "ListView.h"
#include "PictureBox.h"
#include "compareShips.h"

#include <functional>
#include <string>
#include <vector>

namespace fleetwright {

/// Shows the design at hand and another ship beside each other: all their figures and systems as a
/// table, and what their weapons cover as roses. It stays open beside the main window, which keeps
/// it as the design is.
class frmCompare : public Form {
public:
    /// What the user asks for. `activated`: the window has become the active one.
    struct Acts {
        Handler chooseFile;
        Handler pasteCode;
        Handler activated;
    };

    explicit frmCompare(Acts acts);

    /// Shows these two, the design at hand first. `about` says in a sentence what is beside it.
    void showShips(const ShipProfile& here, const ShipProfile& other, const std::string& about);
    /// Shows the design alone, and why.
    void showNone(const std::string& why);
    /// Says something in the place of what is beside the design, until that is shown again.
    void say(const std::string& text) { lblAbout.setCaption(text); }

    Label lblAbout{*this, {.name = "lblAbout", .place = {150, 120, 12300, 285}}};
    ListView lvLines{*this,
                     {.name = "lvLines",
                      .place = {150, 465, 8700, 5700},
                      .accessibleName = "This design and the other one",
                      .accessibleDescription = "Where the two differ, the last column says by how "
                                               "much"}};
    Frame fraFire{*this,
                  {.name = "fraFire", .place = {9000, 390, 3450, 4470}, .caption = "Fire Power"}};
    Label lblHere{fraFire,
                  {.name = "lblHere", .place = {150, 345, 1500, 255}, .caption = "This design"}};
    Label lblOther{fraFire,
                   {.name = "lblOther", .place = {1800, 345, 1500, 255}, .caption = "Other"}};
    Label lblWeapons{fraFire,
                     {.name = "lblWeapons",
                      .place = {150, 660, 3150, 255},
                      .caption = "By the number of weapons"}};
    PictureBox picWeaponsHere{fraFire,
                              {.name = "picWeaponsHere",
                               .place = {150, 915, 1500, 1500},
                               .accessibleName = "Weapons of this design"}};
    PictureBox picWeaponsOther{fraFire,
                               {.name = "picWeaponsOther",
                                .place = {1800, 915, 1500, 1500},
                                .accessibleName = "Weapons of the other one"}};
    Label lblPoints{
        fraFire,
        {.name = "lblPoints", .place = {150, 2565, 3150, 255}, .caption = "By their points"}};
    PictureBox picPointsHere{fraFire,
                             {.name = "picPointsHere",
                              .place = {150, 2820, 1500, 1500},
                              .accessibleName = "Points of this design's weapons"}};
    PictureBox picPointsOther{fraFire,
                              {.name = "picPointsOther",
                               .place = {1800, 2820, 1500, 1500},
                               .accessibleName = "Points of the other one's weapons"}};
    CheckBox chkOnlyDifferences{*this,
                                {.name = "chkOnlyDifferences",
                                 .place = {150, 6330, 4500, 285},
                                 .caption = "Only what &differs"},
                                [this] { showLines(); }};
    Button cmdPaste{*this,
                    {.name = "cmdPaste",
                     .place = {5100, 6285, 1800, 375},
                     .caption = "&Paste Code",
                     .toolTip = "Compares with the design whose code, or ship file, was copied"},
                    [this] { m_acts.pasteCode(); }};
    Button cmdChoose{*this,
                     {.name = "cmdChoose",
                      .place = {7050, 6285, 1800, 375},
                      .caption = "Choose &File...",
                      .toolTip = "Chooses the ship file or the sheet to compare with",
                      .isDefault = true},
                     [this] { m_acts.chooseFile(); }};
    CloseButton cmdClose{*this, {10875, 6285, 1575, 375}};

protected:
    void Form_Opened() override;
    void Form_Activate() override { raise(m_acts.activated); }

private:
    void showLines();
    void showFire(const FirePower& here, const FirePower& other);

    Acts m_acts;
    std::vector<ComparedLine> m_lines;
};

}  // namespace fleetwright
