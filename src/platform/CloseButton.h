#pragma once

#include "Button.h"
#include "Form.h"

namespace fleetwright {

/// The button that closes its window, as Escape does.
class CloseButton : public Button {
public:
    CloseButton(Form& form, const Place& place)
        : Button(form, {.name = "cmdClose", .place = place, .caption = "&Close", .isCancel = true},
                 [&form] { form.unload(); }) {}
};

}  // namespace fleetwright
