#pragma once

#include "Scale.h"
#include "Signal.h"
#include "whatsThis.h"

#include <QElapsedTimer>
#include <QMainWindow>

#include <vector>

namespace fleetwright {

class Container;
class Control;
class Form;
class Timer;
enum class WindowState;

/// The window of a form: one piece of code for all of them. It makes a widget for each control,
/// keeps both in step, and hands what the user does to the models. It knows no form by name.
class FormWindow : public QMainWindow {
public:
    /// `whatsThis` tells of the controls: their widgets show it when they are asked. `drawings` has
    /// those of the form's pictures, and outlives the window.
    explicit FormWindow(Form& form, QWidget* owner = nullptr, WhatsThisText whatsThis = {},
                        const Drawings* drawings = nullptr);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setFrame(QWidget* owner);
    void addControls(Container& container, QWidget* parent);
    QWidget* addControl(Control& control, QWidget* parent);
    void addTimer(Timer& timer);

    void addZoomKeys();

    // Bringing the window in step with its form.
    void update();
    void followZoom();
    void keepOnScreen();
    QSize fitting(const QSize& inside) const;
    QSize menuSize() const;
    QSize formSize() const;
    const Scale& placeScale() const;
    void resizeInside();
    void updateSize();
    void updatePlace();
    void notePlace();
    void updateState();
    void noteState(WindowState state);
    void updateTopmost();
    void raiseAndActivate();
    void repaintNow();
    bool isStubborn(const QSize& size);

    Form& m_form;
    Scale m_scale;
    QWidget* m_inside;
    WhatsThisText m_whatsThis;
    QStyle* m_zoomedStyle = nullptr;  // once it is needed
    std::vector<Connection> m_connections;
    /// Where the form was last known to be, in twips.
    QPoint m_formPlace;
    QSize m_usualSize;  // of the form, in twips, while it is maximized
    // The size that the desktop has offered last.
    QSize m_offered;
    QElapsedTimer m_sinceOffer;
    int m_offers = 0;
    /// The window is being brought in step: what it reports is not the user's doing.
    bool m_isUpdating = false;
};

}  // namespace fleetwright
