#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

class FileError;
class Form;
class MenuEntry;

enum class Buttons { Ok, YesNo };
enum class Icon { None, Information, Critical };
enum class Answer { Ok, Yes, No };

/// A dialog in which the user chooses a file.
struct FileDialog {
    /// Labels and patterns in turn, parted by "|": "All Files (*.*)|*.*|Ship Files(*.shp)|*.shp". A
    /// label without a pattern takes all files.
    std::string filter;
    int filterIndex = 1;  ///< the pair that is chosen at first, counted from 1
    std::filesystem::path initialFolder;
    std::string fileName = {};  ///< the name that is suggested, if any
    /// What the rules add to a name that lacks it. The desktop asks before that file is replaced.
    std::string extension = {};
    /// Where the user chooses a kind of file: its ending for each pair of the filter, and others
    /// that a name may have. One that has none of them gets that of the chosen pair.
    std::vector<std::string> endings = {};
};

/// The dialog in which a picture is chosen, which opens in this folder.
inline FileDialog pictureDialog(std::filesystem::path folder) {
    return {.filter = "All Files (*.*)|*.*|Bitmaps(*.bmp)|*.bmp|Gif Files (*.gif)|*.gif|"
                      "Jpeg Files (*.jpg)|*.jpg",
            .filterIndex = 2,
            .initialFolder = std::move(folder)};
}

/// What the rules ask of the desktop around their windows.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a message box and waits for the answer. An empty title is the program's own.
    virtual Answer showMessage(const std::string& text, const std::string& title = {},
                               Buttons buttons = Buttons::Ok, Icon icon = Icon::None) = 0;
    /// The file chosen, or nothing when the dialog was cancelled.
    virtual std::optional<std::string> chooseFileToOpen(const FileDialog& dialog) = 0;
    /// Any number of files; none when the dialog was cancelled.
    virtual std::vector<std::string> chooseFilesToOpen(const FileDialog& dialog);
    virtual std::optional<std::string> chooseFileToSave(const FileDialog& dialog) = 0;
    /// Shows a menu at the pointer and waits until an entry was chosen or none.
    virtual void popUp(MenuEntry& menu) = 0;
    /// Shows a form above its owner and waits until it is unloaded.
    virtual void showModal(Form& form, Form& owner) = 0;
    /// Has the pointer ask: the next click tells what a control is instead of acting on it.
    virtual void askWhatsThis() = 0;
    /// Opens a document with the desktop's own program for it; false if there is none.
    virtual bool openDocument(const std::filesystem::path& document) = 0;
    /// Unloads every form of the program that is loaded.
    virtual void unloadAllForms() = 0;

    struct ScreenSize {
        int width;
        int height;
    };
    /// Of the screen as a whole, task bars included, in device-independent pixels.
    virtual ScreenSize screenSize() = 0;
};

/// Shows which file failed and why, in a message box.
void showFileError(Desktop& desktop, const FileError& error);

/// Asks the user whether a file may be saved that parts from its other names by that. True, without
/// a question, if it has none.
bool maySave(Desktop& desktop, const std::filesystem::path& file);

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
    void askWhatsThis() override {}
    bool openDocument(const std::filesystem::path&) override { return false; }
    void unloadAllForms() override {}
    ScreenSize screenSize() override { return {}; }
};

}  // namespace fleetwright
