#include "NamesPanel.h"

#include "text.h"

namespace fleetwright {

namespace {

constexpr const char* nameIsOpen = "Enter keeps the name, Escape the former one";

}  // namespace

NamesPanel::NamesPanel(const PanelContext& context, Container& fraInfo, Handler changed)
    : Panel(context), m_fraInfo(fraInfo), m_changed(std::move(changed)) {
    txtShipName.onDblClick = [this] { txtShipName_DblClick(); };
    txtShipName.onKeyPress = [this](int key) { return txtShipName_KeyPress(key); };
    txtDesigner.onDblClick = [this] { txtDesigner_DblClick(); };
    txtDesigner.onKeyPress = [this](int key) { return txtDesigner_KeyPress(key); };
}

void NamesPanel::show() {
    show(nameOfShip());
    show(nameOfDesigner());
}

/// What is being typed gives way to the name of the design, but not without a word.
void NamesPanel::show(const Name& name) {
    const std::string& held = ship().*name.name;
    if (const std::string typed = name.box.text();
        name.isEditing && typed != name.shown && typed != held) {
        m_notKept = "Not kept: " + quote(typed) + ". Enter keeps what is typed";
        window().say(m_notKept);
    }
    name.box.setText(held);
    name.shown = held;
}

void NamesPanel::nameShip(const std::string& designer, const std::string& shipName) {
    act([&] {
        ship().g_sDesignerName = designer;
        ship().g_sShipName = shipName;
    });
}

void NamesPanel::openOrCommit(const Name& name) {
    if (name.isEditing) {
        commit(name);
    } else {
        name.box.setLocked(false);
        name.isEditing = true;
        window().say(nameIsOpen);
    }
}

bool NamesPanel::leaveByKey(const Name& name, int KeyAscii) {
    if (name.isEditing && KeyAscii == EnterKey) {
        commit(name);
    } else if (name.isEditing && KeyAscii == EscapeKey) {
        name.box.setText(ship().*name.name);
        close(name);
    } else if (!name.isEditing && isTyping(KeyAscii)) {
        window().say("A double-click or F2 opens the name");
    }
    return false;
}

void NamesPanel::commit(const Name& name) {
    close(name);
    act([&] { ship().*name.name = name.box.text(); }, name.box.name());
    m_changed();
}

void NamesPanel::close(const Name& name) {
    name.box.setLocked(true);
    name.isEditing = false;
    window().takeBack(nameIsOpen);
}

}  // namespace fleetwright
