#pragma once

#include "Button.h"
#include "CheckBox.h"
#include "Form.h"
#include "Frame.h"
#include "PictureBox.h"
#include "SheetKeys.h"

#include <filesystem>
#include <functional>

namespace fleetwright {

class Desktop;
class PictureFiles;

/// The window that shows a saved sheet, or any other picture, at its natural size. It grows with
/// what it shows, and nobody makes it smaller than that.
class frmSSDView : public Form {
public:
    struct Services {
        std::filesystem::path appFolder;
        Desktop& desktop;
        PictureFiles& pictures;
        /// What can be done with the picture in a file. Empty if nothing can.
        std::function<SheetActs(const std::filesystem::path& file, const Raster& picture)> actsFor =
            {};
    };

    explicit frmSSDView(Services services);

    Frame fraCommands{*this, {.name = "fraCommands", .place = {105, 0, 2745, 645}}};
    Button cmdSelect{
        fraCommands,
        {.name = "cmdSelect", .place = {105, 105, 1215, 435}, .caption = "Select File"},
        [this] { cmdSelect_Click(); }};
    CheckBox chkCancel{fraCommands,
                       {.name = "chkCancel",
                        .place = {1425, 105, 1215, 435},
                        .caption = "Cancel",
                        .toolTip = "Closes the window",
                        .isGraphical = true,
                        .isCancel = true},
                       [this] { chkCancel_Click(); }};
    PictureBox picImage{*this,
                        {.name = "picImage",
                         .place = emptyBox,
                         .accessibleName = "Sheet",
                         .accessibleDescription = SheetKeys::help,
                         .isFramed = true}};
    SheetKeys keys{*this};  ///< on once a picture is shown

    /// Says something at the lower edge of the window, which makes room for it.
    void say(const std::string& text);

protected:
    void Form_Load() override;
    void Form_Resize() override { fitWindow(); }
    void Form_Paint() override { fitWindow(); }

private:
    static constexpr Place emptyBox = {105, 735, 2745, 60};

    void cmdSelect_Click();
    void chkCancel_Click();
    void fitWindow();

    Services m_services;
};

}  // namespace fleetwright
