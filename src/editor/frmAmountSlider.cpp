#include "frmAmountSlider.h"

#include <algorithm>

namespace fleetwright {

frmAmountSlider::frmAmountSlider()
    : Form({.name = "frmAmountSlider", .caption = "Adjust Amount", .width = 3975, .height = 930}) {}

void frmAmountSlider::Form_Load() {
    sliCount.setRange(0, iOriginal);
    sliCount.setValue(iOriginal);
    const std::int32_t step = std::max(1, iOriginal / 10);
    sliCount.setSteps(step, step);
    moveTo(iX, iY);
}

void frmAmountSlider::Form_Activate() {
    moveTo(iX, iY);
}

void frmAmountSlider::sliCount_Change() {
    lblAmount.setCaption(std::to_string(sliCount.value()));
}

/// AutoMass lets the user act while the pieces go: the dialog stays as it is until they are gone.
void frmAmountSlider::Form_Unload(bool& cancel) {
    cancel = m_isTaking;
}

void frmAmountSlider::cmdOK_Click() {
    if (m_isTaking) {
        return;
    }
    if (sliCount.value() != iOriginal) {
        m_isTaking = true;
        CountChanged.raise(iOriginal - sliCount.value());
        m_isTaking = false;
    }
    unload();
}

void frmAmountSlider::cmdCancel_Click() {
    unload();
}

}  // namespace fleetwright
