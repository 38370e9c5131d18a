#pragma once

#include "Desktop.h"

#include <map>
#include <memory>
#include <vector>

namespace fleetwright {

class FormWindow;

/// The desktop of the running Qt application.
class QtDesktop : public Desktop {
public:
    QtDesktop();
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;
    ~QtDesktop() override;

    /// Gives a form its window, which shows and hides with it.
    void present(Form& form);
    /// Takes a form's window away; before the form itself goes.
    void dismiss(Form& form);

    Answer showMessage(const std::string& text, const std::string& title, Buttons buttons,
                       Icon icon) override;
    std::optional<std::string> chooseFileToOpen(const FileDialog& dialog) override;
    std::optional<std::string> chooseFileToSave(const FileDialog& dialog) override;
    void popUp(MenuEntry& menu) override;
    void showModal(Form& form, Form& owner) override;
    void unloadAllForms() override;
    ScreenSize screenSize() override;

private:
    std::map<Form*, std::unique_ptr<FormWindow>> m_windows;
    std::vector<Form*> m_dialogs;  ///< the modal ones that are open
};

}  // namespace fleetwright
