#pragma once

#include "Button.h"
#include "CloseButton.h"
#include "Form.h"
#include "Label.h"
#include "ListView.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace fleetwright {

/// Lists what is wrong with the design at hand. It stays open beside the main window, which keeps
/// the list as the design is.
class frmFindings : public Form {
public:
    /// `goTo` leads the user to what the finding at a place in the list is about.
    explicit frmFindings(std::function<void(std::size_t)> goTo);

    /// Shows these, each with where it is. What was selected stays so, if it is still among them.
    void setFindings(std::vector<ListView::Row> findings);

    Label lblAbout{*this, {.name = "lblAbout", .place = {150, 120, 8850, 285}}};
    ListView lvFindings{
        *this,
        {.name = "lvFindings",
         .place = {150, 465, 8850, 2670},
         .accessibleName = "Findings",
         .accessibleDescription = "Enter goes to the control that a finding is about"}};
    Button cmdGoTo{*this,
                   {.name = "cmdGoTo",
                    .place = {5700, 3285, 1575, 375},
                    .caption = "&Go To",
                    .toolTip = "Goes to the control that the selected finding is about",
                    .isDefault = true},
                   [this] { cmdGoTo_Click(); }};
    CloseButton cmdClose{*this, {7425, 3285, 1575, 375}};

protected:
    void Form_Opened() override { lvFindings.setFocus(); }

private:
    void cmdGoTo_Click();

    std::function<void(std::size_t)> m_goTo;
};

}  // namespace fleetwright
