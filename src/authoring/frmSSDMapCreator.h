#pragma once

#include "Button.h"
#include "CheckBox.h"
#include "Form.h"
#include "PictureBox.h"
#include "StatusBar.h"
#include "TextBox.h"

#include <cstdint>
#include <filesystem>
#include <functional>

namespace fleetwright {

class Clock;
class Desktop;
class PictureFiles;
class SSDMaps;

/// The window in which a map is made: it scans a marked ship outline, shows the text of its map,
/// which can be edited, and saves that.
class frmSSDMapCreator : public Form {
public:
    struct Services {
        std::filesystem::path appFolder;
        Desktop& desktop;
        PictureFiles& pictures;
        Clock& clock;
        /// Lets everything that waits in the event loop happen.
        std::function<void()> eventLoopTurn;
        /// New maps are added to it.
        SSDMaps& g_colSSDMaps;
    };

    explicit frmSSDMapCreator(Services services);

    Button cmdSelect{
        *this,
        {.name = "cmdSelect", .place = {105, 105, 1050, 435}, .caption = "Select File"},
        [this] { cmdSelect_Click(); }};
    Button cmdDoit{*this,
                   {.name = "cmdDoit", .place = {1245, 105, 1050, 435}, .caption = "Do It"},
                   [this] { cmdDoit_Click(); }};
    CheckBox chkCancel{*this,
                       {.name = "chkCancel",
                        .place = {2385, 105, 1050, 435},
                        .caption = "Cancel",
                        .toolTip = "Ends the scan",
                        .isGraphical = true}};
    Button cmdSaveIt{*this,
                     {.name = "cmdSaveIt", .place = {3525, 105, 1050, 435}, .caption = "Save It"},
                     [this] { cmdSaveIt_Click(); }};
    PictureBox picImage{*this,
                        {.name = "picImage", .place = pictureBox, .accessibleName = "Outline"}};
    // So wide that the buttons stay in the window beside the narrowest picture.
    TextBox txtOutput{
        *this,
        {.name = "txtOutput", .place = textBox, .accessibleName = "Map", .isMultiline = true}};

    StatusBar sbCreator{
        *this, {.name = "sbCreator", .accessibleDescription = "Status", .isVisible = false}};

    /// Keeps the window above all others, or no longer.
    void OnTop() { setTopmost(true); }
    void notOnTop() { setTopmost(false); }

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    /// Pixels that a scan takes at least between two looks at the clock.
    static constexpr int pixelsToALook = 16384;
    /// Bytes of text after which the event loop gets its turn at the latest: showing them takes
    /// longer than finding them.
    static constexpr std::size_t textToATurn = 32768;
    static constexpr Place pictureBox = {105, 645, 1275, 4815};
    static constexpr Place textBox = {1480, 645, 4200, 4815};

    void cmdSelect_Click();
    void cmdDoit_Click();
    void cmdSaveIt_Click();
    void selectNothing(const std::string& why);
    void refuse(const std::string& file, const std::exception& error);
    void say(const std::string& text);
    Raster loadImage(const std::string& file) const;
    Raster currentImage() const;
    void resetImage(Raster picture);
    void fitWindow();
    Raster emptyBox() const;
    bool isTextEdited() const;
    bool scan();
    bool giveTurn();
    void setScanning(bool isScanning);
    std::string suggestedName() const;
    void saveMap(const std::string& file);
    std::string offer(const std::string& file);

    Services m_services;
    std::string m_sImageFile;  ///< path of the picture that is selected; empty without one
    std::string m_safeText;    ///< of the map, as it was scanned or saved last
    bool m_isScanning = false;
    bool m_isClosing = false;     ///< the user has closed the window during a scan
    std::int32_t m_lastTurn = 0;  ///< when the event loop's last turn ended, in ticks of the clock
    std::uint32_t m_turnLength = 0;  ///< how long it took, in milliseconds
};

}  // namespace fleetwright
