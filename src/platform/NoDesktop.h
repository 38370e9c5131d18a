#pragma once

#include "Desktop.h"

namespace fleetwright {

/// A desktop in front of which nobody sits.
class NoDesktop : public Desktop {
public:
    Answer showMessage(const std::string&, const std::string&, Buttons, Icon) override {
        return Answer::Ok;
    }
    std::optional<std::string> chooseFileToOpen(const FileDialog&) override { return {}; }
    std::optional<std::string> chooseFileToSave(const FileDialog&) override { return {}; }
    void popUp(MenuEntry&) override {}
    void showModal(Form&, Form&) override {}
    void unloadAllForms() override {}
    ScreenSize screenSize() override { return {}; }
};

}  // namespace fleetwright
