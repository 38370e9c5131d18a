#pragma once

#include "Actor.h"

namespace fleetwright {

/// Does something with all windows but that of the start: those that the actor has as they are, the
/// dialogs as they open.
template <typename Task>
void forEachWindow(Actor& actor, const Task& task) {
    frmAmountSlider amount;
    std::vector<Form*> forms = actor.windows();
    forms.push_back(&amount);
    actor.test.inDialog = [&](Form& form) {
        task(form);
        form.unload();
    };
    actor.main.windows.mnuExtrasPage.choose();
    actor.main.recovery.mnuPutAside.choose();
    for (Form* const form : forms) {
        task(*form);
    }
}

}  // namespace fleetwright
