#include "controlWidgets.h"

#include "Button.h"
#include "CheckBox.h"
#include "ComboBox.h"
#include "DragImage.h"
#include "Frame.h"
#include "Label.h"
#include "Line.h"
#include "ListView.h"
#include "Menu.h"
#include "OptionButton.h"
#include "PictureBox.h"
#include "Shortcut.h"
#include "Slider.h"
#include "StatusBar.h"
#include "TextBox.h"
#include "TrayIcon.h"
#include "TreeView.h"
#include "UpDown.h"
#include "widgetTools.h"

#include <QMainWindow>
#include <QPushButton>
#include <QShortcut>

namespace fleetwright {

namespace {

/// Makes the widget of a control that is of the given kind.
template <typename Kind>
QWidget* widgetIf(Control& control, QWidget* parent, const Scale& scale) {
    auto* const model = dynamic_cast<Kind*>(&control);
    return model == nullptr ? nullptr : makeWidget(*model, parent, scale);
}

template <typename... Kinds>
QWidget* makeFirst(Control& control, QWidget* parent, const Scale& scale) {
    QWidget* widget = nullptr;
    static_cast<void>(
        ((widget = widgetIf<Kinds>(control, parent, scale), widget != nullptr) || ...));
    return widget;
}

/// The keys that press a window's default button and its cancel button.
void addKeys(Control& control, QMainWindow& window) {
    if (auto* const box = dynamic_cast<CheckBox*>(&control); box && box->design().isCancel) {
        new QShortcut(Qt::Key_Escape, &window, [box] { box->press(); });
    }
    auto* const button = dynamic_cast<Button*>(&control);
    if (button == nullptr) {
        return;
    }
    if (button->design().isDefault) {
        const auto press = [&window, button] {
            // Enter belongs to the button that has the keyboard, if one has.
            if (auto* const focused = qobject_cast<QPushButton*>(window.focusWidget())) {
                focused->click();
            } else {
                button->press();
            }
        };
        new QShortcut(Qt::Key_Return, &window, press);
        new QShortcut(Qt::Key_Enter, &window, press);
    }
    if (button->design().isCancel) {
        new QShortcut(Qt::Key_Escape, &window, [button] { button->press(); });
    }
}

}  // namespace

QWidget* makeWidget(Control& control, QWidget* parent, const Scale& scale, QMainWindow& window) {
    if (auto* const menu = dynamic_cast<MenuEntry*>(&control)) {
        addMenu(*menu, window);
    } else if (auto* const tray = dynamic_cast<TrayIcon*>(&control)) {
        addTrayIcon(*tray, &window);
    } else if (auto* const shortcut = dynamic_cast<Shortcut*>(&control)) {
        auto* const keys = new QShortcut(QKeySequence(toQt(control.design().shortcut)), &window,
                                         [shortcut] { shortcut->press(); });
        // Keys that are off are those of whatever else has them.
        keepInStep(&window, control, [keys, shortcut] { keys->setEnabled(shortcut->isEnabled()); });
    } else if (auto* const image = dynamic_cast<DragImage*>(&control)) {
        keepAttached(&window, image->DragWanted.connect(
                                  [image, &window, scale] { dragImage(*image, &window, scale); }));
    }
    addKeys(control, window);
    return makeFirst<Frame, Label, TextBox, Button, OptionButton, CheckBox, ComboBox, UpDown,
                     TreeView, ListView, Slider, StatusBar, PictureBox, Line>(control, parent,
                                                                              scale);
}

}  // namespace fleetwright
