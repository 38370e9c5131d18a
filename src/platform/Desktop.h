#pragma once

#include <string>

namespace fleetwright {

class Form;
class MenuEntry;

enum class Buttons { Ok, YesNo };
enum class Icon { None, Information, Critical };
enum class Answer { Ok, Yes, No };

/// What the rules ask of the desktop around their windows.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows a message box and waits for the answer. An empty title is the program's own.
    virtual Answer showMessage(const std::string& text, const std::string& title = {},
                               Buttons buttons = Buttons::Ok, Icon icon = Icon::None) = 0;
    /// Shows a menu at the pointer and waits until an entry was chosen or none.
    virtual void popUp(MenuEntry& menu) = 0;
    /// Shows a form above its owner and waits until it is unloaded.
    virtual void showModal(Form& form, Form& owner) = 0;
    /// Unloads every form of the program that is loaded.
    virtual void unloadAllForms() = 0;
};

/// Thrown by a step of the start that has failed and has said so: the program ends.
struct EndOfProgram {};

}  // namespace fleetwright
