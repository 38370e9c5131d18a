#pragma once

// Services of a desktop that exist in memory only. Whoever includes this links `platform`.

#include "Clipboard.h"
#include "Clock.h"
#include "Desktop.h"
#include "Error.h"
#include "PictureFiles.h"
#include "SettingsStore.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace fleetwright {

/// A user who chooses the file that the test says, or cancels; messages are written down.
class ChoosingDesktop : public NoDesktop {
public:
    std::optional<std::string> choice;
    FileDialog asked;  ///< the last dialog
    std::string log;   ///< "text/title; " or "text/title critical; " for each message
    Answer answer = Answer::Ok;

    Answer showMessage(const std::string& text, const std::string& title, Buttons,
                       Icon icon) override {
        log += text + '/' + title + (icon == Icon::Critical ? " critical; " : "; ");
        return answer;
    }
    std::optional<std::string> chooseFileToOpen(const FileDialog& dialog) override {
        asked = dialog;
        return choice;
    }
    std::optional<std::string> chooseFileToSave(const FileDialog& dialog) override {
        return chooseFileToOpen(dialog);
    }
};

/// Settings by "section/key".
class MemorySettings : public SettingsStore {
public:
    std::map<std::string, std::string> values;
    bool isReadOnly = false;

    std::string read(const std::string& section, const std::string& key,
                     const std::string& otherwise) const override {
        const auto found = values.find(section + '/' + key);
        return found == values.end() ? otherwise : found->second;
    }
    void write(const std::string& section, const std::string& key,
               const std::string& value) override {
        if (isReadOnly) {
            throw FileError("settings", "cannot be written");
        }
        values[section + '/' + key] = value;
    }
};

class MemoryClipboard : public Clipboard {
public:
    std::string held;

    std::string text() override { return held; }
    void setText(const std::string& text) override { held = text; }
};

/// A file as its folder names it: on some systems it may have been asked for in another case.
inline std::filesystem::path asItsFolderNamesIt(std::filesystem::path file) {
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(file.parent_path(), none)) {
        if (std::filesystem::equivalent(entry, file, none)) {
            file = entry.path();
        }
    }
    return file.make_preferred();
}

/// Pictures by the paths of their files.
class PicturesByName : public PictureFiles {
public:
    std::map<std::string, Raster> files;

    Raster load(const std::filesystem::path& file) override {
        const auto found = files.find(asItsFolderNamesIt(file).string());
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
