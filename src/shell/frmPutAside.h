#pragma once

#include "Button.h"
#include "Form.h"
#include "Label.h"
#include "ListView.h"
#include "RecoveryListing.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace fleetwright {

class Desktop;

/// Shows the designs that were put aside, and lets the user open one: the question after a crash,
/// and a look at any other time. Whoever opens it sets `designs` and shows it above the main
/// window; then `chosen` is the answer.
class frmPutAside : public Form {
public:
    struct Services {
        Desktop& desktop;
        std::function<bool(const RecoveryDesign&)> moveToTrash;  ///< whether it is there
    };

    explicit frmPutAside(Services services);

    std::vector<RecoveryDesign> designs;
    std::optional<std::size_t> chosen;  ///< which of them is to be opened, if one is

    Label lblAbout{*this, {.name = "lblAbout", .place = {150, 120, 9000, 285}}};
    ListView lvDesigns{*this,
                       {.name = "lvDesigns",
                        .place = {150, 465, 9000, 4170},
                        .accessibleName = "Designs put aside",
                        .accessibleDescription = "Enter opens a design, Delete moves it to the "
                                                 "trash"}};
    Button cmdTrash{*this,
                    {.name = "cmdTrash",
                     .place = {150, 4785, 1950, 375},
                     .caption = "Move to &Trash",
                     .toolTip = "Moves the selected design to the trash of the desktop"},
                    [this] { cmdTrash_Click(); }};
    Button cmdOpen{*this,
                   {.name = "cmdOpen",
                    .place = {5850, 4785, 1575, 375},
                    .caption = "&Open",
                    .toolTip = "Opens the selected design, which is not saved then",
                    .isDefault = true},
                   [this] { cmdOpen_Click(); }};
    Button cmdNotNow{*this,
                     {.name = "cmdNotNow",
                      .place = {7575, 4785, 1575, 375},
                      .caption = "&Not Now",
                      .toolTip = "Leaves all designs where they are",
                      .isCancel = true},
                     [this] { unload(); }};

protected:
    void Form_Load() override;
    void Form_Opened() override { lvDesigns.setFocus(); }
    void Form_Unload(bool& cancel) override;

private:
    void cmdOpen_Click();
    void cmdTrash_Click();
    void showDesigns(std::size_t selected);

    Services m_services;
};

}  // namespace fleetwright
