#pragma once

#include "Button.h"
#include "Form.h"
#include "Label.h"
#include "Slider.h"

#include <cstdint>

namespace fleetwright {

/// The dialog in which the player says how many pieces of a system are to remain. The creator sets
/// the public fields before it shows the window.
class frmAmountSlider : public Form {
public:
    frmAmountSlider();

    std::int32_t iOriginal = 0;  ///< the count when the dialog opens
    std::int16_t iX = 0;         ///< left edge of the window, in twips of the owner
    std::int16_t iY = 0;         ///< upper edge of the window, in twips of the owner

    /// So many pieces are to go; at least 1.
    Signal<std::int32_t> CountChanged;

    Slider sliCount{*this,
                    {.name = "sliCount",
                     .place = {105, 105, 3795, 330},
                     .toolTip = "How many are to remain",
                     .accessibleName = "Amount"},
                    [this] { sliCount_Change(); }};
    Label lblAmount{*this, {.name = "lblAmount", .place = {210, 630, 1065, 225}, .isFramed = true}};
    Button cmdOK{
        *this,
        {.name = "cmdOK", .place = {1995, 630, 750, 225}, .caption = "OK", .isDefault = true},
        [this] { cmdOK_Click(); }};
    Button cmdCancel{*this,
                     {.name = "cmdCancel",
                      .place = {3045, 630, 750, 225},
                      .caption = "Cancel",
                      .isCancel = true},
                     [this] { cmdCancel_Click(); }};

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    void Form_Activate() override;

private:
    void sliCount_Change();
    void cmdOK_Click();
    void cmdCancel_Click();

    bool m_isTaking = false;  ///< what is to go is going
};

}  // namespace fleetwright
