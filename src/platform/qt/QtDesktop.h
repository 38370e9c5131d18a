#pragma once

#include "Desktop.h"
#include "Signal.h"
#include "Zoom.h"
#include "whatsThis.h"

#include <map>
#include <memory>
#include <vector>

class QWidget;

namespace fleetwright {

class Control;
class Drawings;
class FormWindow;
class SettingsStore;

/// The desktop of the running Qt application.
class QtDesktop : public Desktop {
public:
    /// What is told of the controls of all windows.
    explicit QtDesktop(WhatsThisText whatsThis = {});
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;
    ~QtDesktop() override;

    /// What windows use, if this is called before they are made: it keeps how far they are zoomed,
    /// and has the drawings of their pictures. Both outlive the windows.
    void equip(SettingsStore& settings, const Drawings& drawings);

    /// Gives a form a window, which shows and hides with it. It is made when it is first shown: a
    /// form that is still loading changes too often for being drawn.
    void present(Form& form);
    /// Takes a form's window away; before the form itself goes.
    void dismiss(Form& form);

    Answer showMessage(const std::string& text, const std::string& title, Buttons buttons,
                       Icon icon) override;
    std::optional<std::string> chooseFileToOpen(const FileDialog& dialog) override;
    std::vector<std::string> chooseFilesToOpen(const FileDialog& dialog) override;
    std::optional<std::string> chooseFileToSave(const FileDialog& dialog) override;
    void popUp(MenuEntry& menu) override;
    void showModal(Form& form, Form& owner) override;
    void askWhatsThis() override;
    bool openDocument(const std::filesystem::path& document) override;
    void unloadAllForms() override;
    ScreenSize screenSize() override;

private:
    const QWidget* windowWith(const Control& control) const;
    Connection keepZoom(Form& form, Zoom otherwise = Zoom());

    WhatsThisText m_whatsThis;
    struct Presented {
        Connection changed;
        Connection zoomed;
        bool isMade = false;
        std::unique_ptr<FormWindow> window;
    };
    SettingsStore* m_settings = nullptr;
    const Drawings* m_drawings = nullptr;
    std::map<Form*, Presented> m_presented;
    std::vector<Form*> m_dialogs;  ///< the modal ones that are open
};

}  // namespace fleetwright
