#pragma once

// What the widgets of all kinds of controls share.

#include "Control.h"
#include "Scale.h"
#include "qtImage.h"
#include "text.h"

#include <QAccessible>
#include <QDir>
#include <QFocusEvent>
#include <QIcon>
#include <QMouseEvent>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace fleetwright {

/// The property of a widget that is where the edge of its window is, and takes no room there.
inline constexpr const char* followsWindow = "followsWindow";

inline QString toQt(const std::string& text) {
    return QString::fromStdString(text);
}

/// The path of a file as the program keeps paths, from that which Qt gives it.
inline std::string pathFromQt(const QString& path) {
    return QDir::toNativeSeparators(path).toStdString();
}

/// A text that is only shown: what it holds from outside does nothing else.
inline QString toShown(const std::string& text) {
    return toQt(shownLines(text));
}

/// The same for a tool tip, in which Qt takes for markup whatever looks like it and which it makes
/// as wide as the longest line: here lines have about 60 characters at the most.
QString toToolTip(const std::string& text);

/// A face that the program carries in itself, with its picture for twice the resolution.
inline QIcon faceOf(const std::string& picture) {
    return QIcon(":/pictures/" + toQt(picture) + ".png");
}

/// Keeps a listener attached for as long as the widget lives.
inline void keepAttached(QWidget* widget, Connection connection) {
    QObject::connect(widget, &QObject::destroyed,
                     [kept = std::make_shared<Connection>(std::move(connection))] {});
}

/// Calls `update` now and whenever the control changes, for as long as the widget lives.
inline void keepInStep(QWidget* widget, Control& control, std::function<void()> update) {
    update();
    keepAttached(widget, control.Changed.connect([update = std::move(update)] { update(); }));
}

/// Calls `update` now and whenever the window is zoomed, for as long as the widget lives.
inline void keepZoomed(QWidget* widget, const Scale& scale, std::function<void()> update) {
    update();
    keepAttached(widget, scale.Zoomed().connect([update = std::move(update)] { update(); }));
}

/// Whether the desktop's colours have become others, or those of the window.
inline bool isNewPalette(const QEvent& event) {
    return event.type() == QEvent::ApplicationPaletteChange ||
           event.type() == QEvent::PaletteChange;
}

/// Hands chosen events of a widget to a function, which says whether it has dealt with them.
class EventHook : public QObject {
public:
    EventHook(QWidget* watched, std::function<bool(QEvent*)> hook)
        : QObject(watched), m_hook(std::move(hook)) {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        return m_hook(event) || QObject::eventFilter(watched, event);
    }

private:
    std::function<bool(QEvent*)> m_hook;
};

/// Works the tool tip of a control out. Screen readers take it for the description, and keep what
/// they have once read of that until they are told that it has changed.
inline void renewToolTip(QWidget* widget, const Control& control) {
    const QString tip = toToolTip(control.toolTip());
    if (tip == widget->toolTip()) {
        return;
    }
    widget->setToolTip(tip);
    if (QAccessible::isActive()) {
        QAccessibleEvent event(widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

/// Gives a new widget what every control has.
inline void prepare(QWidget* widget, Control& control, const Scale& scale) {
    const ControlDesign& design = control.design();
    widget->setObjectName(toQt(design.name));
    auto place = std::make_shared<Place>(design.place);
    if (!design.accessibleName.empty()) {
        widget->setAccessibleName(toQt(design.accessibleName));
    }
    if (!design.accessibleDescription.empty()) {
        widget->setAccessibleDescription(toQt(design.accessibleDescription));
    }
    auto tip = std::make_shared<std::string>();
    keepInStep(widget, control, [widget, &control, scale, place, tip] {
        if (*place != control.place()) {
            *place = control.place();
            widget->setGeometry(scale.rect(*place));
        }
        if (!control.askToolTip && *tip != control.toolTip()) {
            *tip = control.toolTip();
            widget->setToolTip(toToolTip(*tip));
        }
        if (control.askToolTip && QAccessible::isActive()) {
            renewToolTip(widget, control);  // they may read it wherever the keyboard is
        }
        widget->setVisible(control.isVisible());
        widget->setEnabled(control.isEnabled());
    });
    keepZoomed(widget, scale,
               [widget, &control, scale] { widget->setGeometry(scale.rect(control.place())); });
    if (control.askToolTip) {
        // It is worked out for the pointer, and for the keyboard, whose screen reader says it.
        new EventHook(widget, [widget, &control](QEvent* event) {
            if (event->type() == QEvent::ToolTip || event->type() == QEvent::FocusIn) {
                renewToolTip(widget, control);
            }
            return false;
        });
    }
    keepAttached(widget,
                 control.FocusWanted.connect([widget] { widget->setFocus(Qt::OtherFocusReason); }));
}

/// Whether the keyboard's focus has gone for good, and does not come back by itself.
inline bool isLost(const QFocusEvent& focusOut) {
    return focusOut.reason() != Qt::ActiveWindowFocusReason &&
           focusOut.reason() != Qt::PopupFocusReason && focusOut.reason() != Qt::MenuBarFocusReason;
}

/// Makes room for a text that is too long for its control's place: first to the right, as far as
/// nothing stands there, then by narrower letters.
void fitText(QWidget* widget, const Control& control, const Scale& scale);

/// What the mouse has done as the models know it; with the button that has done it.
inline MousePress toPress(const QMouseEvent& event, const Scale& scale) {
    return {.button = event.button() == Qt::RightButton  ? int(RightButton)
                      : event.button() == Qt::LeftButton ? int(LeftButton)
                                                         : int(MiddleButton),
            .shift = (event.modifiers().testFlag(Qt::ShiftModifier) ? 1 : 0) |
                     (event.modifiers().testFlag(Qt::ControlModifier) ? 2 : 0) |
                     (event.modifiers().testFlag(Qt::AltModifier) ? 4 : 0),
            .x = scale.twips(event.position().x()),
            .y = scale.twips(event.position().y())};
}

/// A move of the mouse; with the buttons that are down.
inline MousePress toMove(const QMouseEvent& event, const Scale& scale) {
    MousePress move = toPress(event, scale);
    move.button = (event.buttons().testFlag(Qt::LeftButton) ? LeftButton : 0) |
                  (event.buttons().testFlag(Qt::RightButton) ? RightButton : 0) |
                  (event.buttons().testFlag(Qt::MiddleButton) ? MiddleButton : 0);
    return move;
}

}  // namespace fleetwright
