#pragma once

#include "Clock.h"
#include "Desktop.h"
#include "Error.h"
#include "PictureFiles.h"

#include <map>
#include <utility>

namespace fleetwright {

/// A user who chooses what the test says, or cancels.
class ChoosingDesktop : public Desktop {
public:
    std::optional<std::string> choice;
    FileDialog asked;
    int questions = 0;

    Answer showMessage(const std::string&, const std::string&, Buttons, Icon) override {
        ++questions;
        return Answer::Ok;
    }
    std::optional<std::string> chooseFileToOpen(const FileDialog& dialog) override {
        asked = dialog;
        return choice;
    }
    std::optional<std::string> chooseFileToSave(const FileDialog& dialog) override {
        asked = dialog;
        return choice;
    }
    void popUp(MenuEntry&) override {}
    void showModal(Form&, Form&) override {}
    void unloadAllForms() override {}
    ScreenSize screenSize() override { return {1920, 1080}; }
};

/// Pictures by the names of their files.
class PicturesByName : public PictureFiles {
public:
    std::map<std::string, Raster> files;

    Raster load(const std::filesystem::path& file) override {
        const auto found = files.find(file.string());
        if (found == files.end()) {
            throw FileError(file, "cannot be read");
        }
        return found->second;
    }
    Raster builtIn(const std::string& name) override { return load(name); }
};

/// Each look at it takes a while.
class SteppingClock : public Clock {
public:
    std::int32_t now = 0x7FFFFFF0;  // comes round soon
    std::int32_t step = 1;          ///< milliseconds between two looks

    std::int32_t tickCount() override {
        now = static_cast<std::int32_t>(static_cast<std::uint32_t>(now) +
                                        static_cast<std::uint32_t>(step));
        return now;
    }
    void sleep(int) override {}
};

}  // namespace fleetwright
