#pragma once

#include "Control.h"

namespace fleetwright {

/// An entry of a menu bar or of a menu, with entries of its own if it is a menu itself. At the top
/// level a hidden entry is one that is shown as a pop-up.
class MenuEntry : public Container {
public:
    MenuEntry(Container& container, ControlDesign design, Handler click = {})
        : Container(&container, std::move(design)), onClick(std::move(click)) {}

    bool isSeparator() const { return design().caption == "-" && !design().isVerbatim; }
    const std::string& caption() const { return design().caption; }
    void setCaption(const std::string& caption);
    /// Names what it would do its work on, as "Undo Thrust"; where there is nothing, it is off.
    void setObject(const std::string& verb, const std::string& object);
    bool isChecked() const { return design().isOn; }
    void setChecked(bool isChecked);

    /// The user has chosen it. It takes that also from a pop-up, whose menu is hidden otherwise.
    void choose();

    Handler onClick;
};

}  // namespace fleetwright
