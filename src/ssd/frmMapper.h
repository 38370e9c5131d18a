#pragma once

#include "Button.h"
#include "ComboBox.h"
#include "Form.h"
#include "Frame.h"
#include "Label.h"
#include "PictureBox.h"
#include "SSDMaps.h"
#include "SheetImages.h"
#include "SheetKeys.h"
#include "SheetLists.h"
#include "drawSSD.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

class Desktop;
class PictureEncoder;

/// The window in which a ship's sheet is drawn and saved. Each time it is loaded it begins anew
/// with the ship as it then stands.
class frmMapper : public Form {
public:
    /// What the window needs of the world around it. All of it outlives the window.
    struct Services {
        std::filesystem::path appFolder;
        Desktop& desktop;
        OutlineFinder outlines;
        PictureEncoder& encoder;
        const SheetImages& images;
        const SSDMaps& g_colSSDMaps;
        const ListView& lvCurrentWeapons;  ///< the main window's list of systems aboard
        /// The current ship and its figures as the main window shows them.
        std::function<SheetShip()> ship;
        /// What can be done with the sheet that was just drawn, of these systems aboard. Empty if
        /// nothing can.
        std::function<SheetActs(const SSDMap&, const std::vector<ListView::Row>&, const Raster&)>
            actsFor = {};
        /// Says something in the main window, when this one closes.
        std::function<void(const std::string&)> say = {};
    };

    explicit frmMapper(Services services);

    Frame fraControls{*this, {.name = "fraControls", .place = {105, 0, 4635, 645}}};
    ComboBox cboMapSelection{fraControls,
                             {.name = "cboMapSelection",
                              .place = {105, 210, 2115, 315},
                              .text = "Selection",
                              .accessibleName = "Map"}};
    /// Says that what the window has of the ship is of an earlier design by now.
    Label lblOther{fraControls,
                   {.name = "lblOther",
                    .place = {105, 15, 4425, 195},
                    .caption = "Lists the systems of an earlier design",
                    .isVisible = false}};
    Button cmdDrawIt{fraControls,
                     {.name = "cmdDrawIt", .place = {2310, 210, 1065, 330}, .caption = "Draw It!"},
                     [this] { cmdDrawIt_Click(); }};
    Button cmdSave{fraControls,
                   {.name = "cmdSave",
                    .place = {3465, 210, 1065, 330},
                    .caption = "Save It!",
                    .toolTip = "Saves the sheet as a bitmap and closes the window",
                    .accessibleDescription = SheetKeys::help},
                   [this] { cmdSave_Click(); }};
    /// The sheet.
    PictureBox picSSD{*this,
                      {.name = "picSSD",
                       .place = {105, 735, 4635, 120},
                       .toolTip = SheetKeys::help,
                       .accessibleName = "Sheet",
                       .accessibleDescription = SheetKeys::help}};
    SheetKeys keys{*this};  ///< on once a sheet was drawn

    /// Says something at the lower edge of the window, which makes room for it.
    void say(const std::string& text);
    /// The design may have become another one.
    void followDesign();

    /// What was behind the message that was shown last.
    const std::string& lastFault() const { return m_lastFault; }

protected:
    void Form_Load() override;
    void Form_Activate() override { followDesign(); }
    void Form_Paint() override { keepMinimumSize(bInPaint); }
    void Form_Resize() override { keepMinimumSize(bInResize); }

private:
    /// The ship as it was when its sheet was drawn.
    struct Drawn {
        std::string name;
        std::string shipFile;
    };

    void cmdDrawIt_Click();
    void cmdSave_Click();

    void startAnew();
    std::string whatIsEarlier() const;
    bool layOut();
    bool showOutline();
    void drawSheet();
    void noteFault(const std::exception& cause);
    void fail(const std::string& text, const std::string& title, const std::exception& cause);
    static std::int16_t largerOf(std::int16_t a, std::int16_t b);
    void fitToSheet();
    void keepMinimumSize(bool& isInside);

    Services m_services;
    Place m_firstPlace;  ///< of the window's inside
    Place m_emptySheet;  ///< of `picSSD` before a map is chosen
    SSDMaps::Map m_bestFit;
    SSDMaps::Map m_Map;  ///< the map of this sheet
    SheetLists m_lists;
    // The ship when the window has opened: its systems, how many of them need a weapon point, mass.
    std::vector<ListView::Row> m_aboard;
    std::int32_t m_iShipWeapCount = 0;
    std::int32_t m_mass = 0;
    std::optional<Drawn> m_drawn;
    bool bInPaint = false;   ///< the paint handler is at work
    bool bInResize = false;  ///< the resize handler is at work
    std::string m_lastFault;
};

}  // namespace fleetwright
