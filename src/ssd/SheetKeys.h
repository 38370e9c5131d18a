#pragma once

#include "Shortcut.h"
#include "StatusBar.h"

#include <string>
#include <utility>

namespace fleetwright {

/// What can be done with a sheet that a window shows.
struct SheetActs {
    Handler print;
    Handler exportFile;
};

/// The keys for that, in a window that has no menu, and the line at its lower edge that says what
/// has come of it. The keys are off while there is no sheet, the line is there when it has a text.
class SheetKeys {
public:
    explicit SheetKeys(Container& form) : m_form(form) {}

    /// For tool tips and screen readers.
    static constexpr const char* help =
        "Ctrl+P prints the sheet, Ctrl+E exports it as PDF, SVG or PNG";

    void offer(SheetActs acts) {
        m_acts = std::move(acts);
        keyPrint.setEnabled(static_cast<bool>(m_acts.print));
        keyExport.setEnabled(static_cast<bool>(m_acts.exportFile));
    }

    /// Says something until something else is said; an empty text takes the line away.
    void say(const std::string& text) { sbSheet.showOnlyWith(text); }
    /// The room below a sheet that the line needs, in twips.
    int lineHeight() const { return sbSheet.roomTaken(); }

private:
    Container& m_form;
    SheetActs m_acts;

public:
    Shortcut keyPrint{m_form,
                      {.name = "keyPrint", .shortcut = "Ctrl+P", .isEnabled = false},
                      [this] { raise(m_acts.print); }};
    Shortcut keyExport{m_form,
                       {.name = "keyExport", .shortcut = "Ctrl+E", .isEnabled = false},
                       [this] { raise(m_acts.exportFile); }};
    StatusBar sbSheet{m_form,
                      {.name = "sbSheet", .accessibleDescription = "Status", .isVisible = false}};
};

}  // namespace fleetwright
