// How a window is made larger and smaller.

#include "Form.h"
#include "FormWindow.h"
#include "ZoomedStyle.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>

#include <algorithm>
#include <cmath>

namespace fleetwright {

namespace {

/// The desktop's font for a window that is zoomed. It has nothing but a size.
QFont zoomedFont(double zoom) {
    const QFont plain = QApplication::font();
    QFont font;
    if (zoom == 1) {
        return font;
    }
    if (plain.pointSizeF() > 0) {
        font.setPointSizeF(plain.pointSizeF() * zoom);
    } else {
        font.setPixelSize(static_cast<int>(std::lround(plain.pixelSize() * zoom)));
    }
    return font;
}

}  // namespace

/// Those keys of which a menu of the form has no part.
void FormWindow::addZoomKeys() {
    const auto add = [this](const char* keys, Zoom (*wanted)(Zoom)) {
        const QKeySequence sequence(keys);
        const auto hasKeys = [&sequence](const auto* each) { return each->key() == sequence; };
        const auto isMenus = [&sequence](const QAction* action) {
            return action->shortcuts().contains(sequence);
        };
        if (std::ranges::none_of(findChildren<QShortcut*>(), hasKeys) &&
            std::ranges::none_of(findChildren<QAction*>(), isMenus)) {
            new QShortcut(sequence, this,
                          [this, wanted] { m_form.setZoom(wanted(m_form.zoom())); });
        }
    };
    for (const char* const keys : {"Ctrl++", "Ctrl+="}) {
        add(keys, [](Zoom zoom) { return zoom.larger(); });
    }
    add("Ctrl+-", [](Zoom zoom) { return zoom.smaller(); });
    add("Ctrl+0", [](Zoom) { return Zoom(); });
}

/// Brings texts, widgets and what is in them to the form's zoom.
void FormWindow::followZoom() {
    const double zoom = m_form.zoom().percent() / double(Zoom::actual);
    if (zoom == m_scale.zoom()) {
        return;
    }
    const QScopedValueRollback<bool> updating(m_isUpdating, true);
    m_scale.setZoom(zoom);
    const QFont font = zoomedFont(zoom);
    setFont(font);
    if (m_zoomedStyle == nullptr) {
        m_zoomedStyle = new ZoomedStyle(m_scale, this);  // which goes after the widgets
    }
    for (QWidget* const widget : findChildren<QWidget*>()) {
        const bool isMenu = qobject_cast<QMenu*>(widget) != nullptr;
        if (isMenu) {
            widget->setFont(font);
        }
        if (isMenu || widget->window() == this) {
            widget->setStyle(zoom == 1 ? nullptr : m_zoomedStyle);
        }
    }
    m_scale.Zoomed().raise();
    updateSize();
    notePlace();
}

/// A window that has grown may have left the screen.
void FormWindow::keepOnScreen() {
    if (!isVisible() || m_form.state() != WindowState::Normal) {
        return;
    }
    const QRect room = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    const QPoint corner(
        std::max(std::min(frame.left(), room.right() + 1 - frame.width()), room.left()),
        std::max(std::min(frame.top(), room.bottom() + 1 - frame.height()), room.top()));
    if (corner != frame.topLeft()) {
        move(corner);
    }
}

}  // namespace fleetwright
