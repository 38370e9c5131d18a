#pragma once

// One function for each kind of control: it makes the widget, keeps it in step with its model, and
// hands what the user does to the model. The widget owns what keeps them together.

#include "Scale.h"

#include <QWidget>

class QMainWindow;

namespace fleetwright {

class Button;
class CheckBox;
class ComboBox;
class Control;
class DragImage;
class Form;
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
class TrayIcon;
class TreeView;
class UpDown;

QWidget* makeWidget(Button& button, QWidget* parent, const Scale& scale);
QWidget* makeWidget(CheckBox& box, QWidget* parent, const Scale& scale);
QWidget* makeWidget(ComboBox& box, QWidget* parent, const Scale& scale);
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

/// The widget of a control of any kind in this window, with the keys that press it; null for those
/// that have no place inside it, such as menus, which are added where they belong.
QWidget* makeWidget(Control& control, QWidget* parent, const Scale& scale, QMainWindow& window);

/// Adds a top-level menu to the bar of a window. A hidden one is a pop-up.
void addMenu(MenuEntry& menu, QMainWindow& window);
/// Puts an icon into the tray whenever its model is on, for as long as the window lives.
void addTrayIcon(TrayIcon& tray, QWidget* window);
/// Hands files that are dropped anywhere on the window to its form, if that takes any.
void takeDroppedFiles(Form& form, QWidget* window);
/// Drags a picture until the user lets go; it belongs to the window it came from.
void dragImage(DragImage& image, QWidget* window, const Scale& scale);
/// The picture that is being dragged inside this window, or null.
DragImage* draggedImage(const QWidget* window);
/// Shows a pop-up of a window at a place of the screen, and waits until it is gone.
void popUpMenu(const MenuEntry& menu, const QPoint& place, const QWidget& window);

}  // namespace fleetwright
