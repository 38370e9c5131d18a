#pragma once

#include "Button.h"
#include "Form.h"
#include "Label.h"
#include "Line.h"
#include "PictureBox.h"

namespace fleetwright {

class Desktop;
class Programs;
class Registry;

/// Says what program this is, and offers to start the desktop's system information tool.
class frmAbout : public Form {
public:
    struct Services {
        Desktop& desktop;
        Programs& programs;
        Registry& registry;
    };

    explicit frmAbout(Services services);

    PictureBox picIcon{*this,
                       {.name = "picIcon",
                        .place = {240, 240, 720, 720},
                        .picture = "icon-48",
                        .accessibleName = "Icon"}};
    Label lblTitle{*this,
                   {.name = "lblTitle",
                    .place = {1200, 210, 4290, 480},
                    .caption = "Application Title",
                    .isHeading = true}};
    Label lblVersion{*this,
                     {.name = "lblVersion", .place = {1200, 735, 4290, 285}, .caption = "Version"}};
    Label lblAuthor{*this,
                    {.name = "lblAuthor",
                     .place = {1200, 1080, 4290, 285},
                     .caption = "The FleetWright developers"}};
    Line Line1{*this, {.name = "Line1", .place = {240, 1560, 5250, 30}}};
    Button cmdOK{*this,
                 {.name = "cmdOK",
                  .place = {3990, 1710, 1500, 345},
                  .caption = "OK",
                  .isDefault = true,
                  .isCancel = true},
                 [this] { cmdOK_Click(); }};
    Button cmdSysInfo{
        *this,
        {.name = "cmdSysInfo", .place = {3990, 2130, 1500, 345}, .caption = "&System Info..."},
        [this] { cmdSysInfo_Click(); }};

protected:
    void Form_Load() override;

private:
    void cmdOK_Click() { unload(); }
    void cmdSysInfo_Click() { StartSysInfo(); }
    void StartSysInfo();
    bool startTool();
    bool GetKeyValue(const std::string& KeyName, const std::string& SubKeyRef, std::string& KeyVal);

    Services m_services;
};

}  // namespace fleetwright
