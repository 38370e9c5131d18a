#pragma once

#include "caseFile.h"
#include "formTexts.h"
#include "testWindow.h"

#include <map>
#include <string>
#include <vector>

namespace fleetwright {

/// Plays a case: does on a window what its lines say.
class Play {
public:
    /// `before` is done before the window is shown; what that says is left to be seen.
    explicit Play(const std::string& catalogue, const std::string& before = {});

    /// Does what the lines say; what each has changed, as `playActs` has it.
    std::string run(const std::string& acts);
    /// The design as "write" takes it.
    std::string shipFile() { return replaced(m_test.ship().shipFile(), "\r\n", "; "); }
    /// What can be seen, by its names.
    std::map<std::string, std::string> look();
    /// Does what one line says.
    void doLine(const std::string& line);

private:
    /// The window "Compare", whose names are those of other windows in part.
    void collectCompare();
    /// Words as paths in the folder of the test.
    std::vector<std::string> paths(const std::string& names);
    std::string amountInList(std::string_view name);
    void set(const std::string& what);
    /// Writes down what screen readers say.
    void listen();
    /// What is done in the next turn of the event loop, a box's included, or in the next dialog.
    void doLater(const std::string& where, const std::string& what);
    void actOnForm(const std::string& how);
    /// An act that a control of its kind takes.
    void actOn(Control& control, const std::string& how);
    void actOnPointed(PointedControl& control, const std::string& how);

    TestWindow m_test;
    frmMain& m_window = m_test.window();
    Controls m_controls;
    Controls m_dialog;  ///< those of the dialog that is open
    bool m_hasTray = false;
    std::string m_says;
    Connection m_dragged;
    std::vector<Connection> m_told;
    std::vector<Connection> m_focused;
    Connection m_counting;
};

}  // namespace fleetwright
