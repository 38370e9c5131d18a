#pragma once

#include "Scale.h"
#include "Signal.h"

#include <QMainWindow>

namespace fleetwright {

class Container;
class Control;
class Form;

/// The window of a form: one piece of code for all of them. It makes a widget for each control,
/// keeps both in step, and hands what the user does to the models. It knows no form by name.
class FormWindow : public QMainWindow {
public:
    explicit FormWindow(Form& form, QWidget* owner = nullptr);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void addControls(Container& container, QWidget* parent);
    QWidget* addControl(Control& control, QWidget* parent);
    void update();

    Form& m_form;
    Scale m_scale;
    Connection m_changed;
    /// Where the form was last known to be, in twips of the screen.
    QPoint m_formPlace;
};

}  // namespace fleetwright
