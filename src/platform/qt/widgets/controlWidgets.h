#pragma once

// One function for each kind of control: it makes the widget, keeps it in step with its model, and
// hands what the user does to the model. The widget owns what keeps them together.

#include "Scale.h"

#include <QWidget>

class QMenuBar;

namespace fleetwright {

class Button;
class CheckBox;
class Frame;
class Label;
class Line;
class ListView;
class MenuEntry;
class OptionButton;
class PictureBox;
class Slider;
class StatusBar;
class TextBox;
class TreeView;
class UpDown;

QWidget* makeWidget(Button& button, QWidget* parent, const Scale& scale);
QWidget* makeWidget(CheckBox& box, QWidget* parent, const Scale& scale);
QWidget* makeWidget(Frame& frame, QWidget* parent, const Scale& scale);
QWidget* makeWidget(Label& label, QWidget* parent, const Scale& scale);
QWidget* makeWidget(Line& line, QWidget* parent, const Scale& scale);
QWidget* makeWidget(ListView& list, QWidget* parent, const Scale& scale);
QWidget* makeWidget(OptionButton& button, QWidget* parent, const Scale& scale);
QWidget* makeWidget(PictureBox& box, QWidget* parent, const Scale& scale);
QWidget* makeWidget(Slider& slider, QWidget* parent, const Scale& scale);
QWidget* makeWidget(StatusBar& bar, QWidget* parent, const Scale& scale);
QWidget* makeWidget(TextBox& box, QWidget* parent, const Scale& scale);
QWidget* makeWidget(TreeView& tree, QWidget* parent, const Scale& scale);
QWidget* makeWidget(UpDown& arrows, QWidget* parent, const Scale& scale);

/// Adds a top-level menu to the bar. A hidden one is left out: it is a pop-up.
void addMenu(MenuEntry& menu, QMenuBar* bar);
/// Shows a menu at a place of the screen and waits until it is gone.
void popUpMenu(MenuEntry& menu, const QPoint& place);

}  // namespace fleetwright
