#pragma once

#include "Actor.h"
#include "QtPrograms.h"
#include "QtRegistry.h"
#include "frmAbout.h"

namespace fleetwright {

/// Does something with all windows but that of the start: those that the actor has as they are, the
/// dialogs as they open.
template <typename Task>
void forEachWindow(Actor& actor, const Task& task) {
    QtPrograms programs;
    QtRegistry registry;
    frmAbout about({.desktop = actor.test.desktop(), .programs = programs, .registry = registry});
    frmAmountSlider amount;
    std::vector<Form*> forms = actor.windows();
    forms.insert(forms.end(), {&about, &amount});
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
