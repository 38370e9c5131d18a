#pragma once

// "What's This?": the texts of controls on their widgets, for pointer, keyboard and screen reader.

#include <functional>
#include <string>

class QWidget;

namespace fleetwright {

class Container;
class Control;

/// Says what a control is; empty where there is nothing to say.
using WhatsThisText = std::function<std::string(const Control&)>;

/// Gives a control's widget its text. Screen readers say it where the control has neither a
/// description nor a tool tip.
void explainWidget(QWidget* widget, Control& control, const WhatsThisText& textOf);
/// Gives the entries of the menus in a form's window their texts.
void explainMenus(const QWidget& window, const Container& form, const WhatsThisText& textOf);
/// Shows the text of what has the keyboard. Where that has none, the pointer asks.
void explainFocused();

}  // namespace fleetwright
