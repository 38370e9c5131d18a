#include "FormWindow.h"

#include "Button.h"
#include "Form.h"
#include "Frame.h"
#include "Label.h"
#include "ListView.h"
#include "Menu.h"
#include "OptionButton.h"
#include "Slider.h"
#include "StatusBar.h"
#include "TextBox.h"
#include "Timer.h"
#include "TreeView.h"
#include "UpDown.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

namespace fleetwright {

FormWindow::FormWindow(Form& form, QWidget* owner)
    : QMainWindow(owner), m_form(form), m_scale(form.place().width, form.place().height) {
    setObjectName(toQt(form.name()));
    setWindowTitle(toQt(form.caption()));
    if (owner != nullptr) {
        setWindowModality(Qt::WindowModal);
        setWindowFlag(Qt::Dialog);
    }
    auto* const inside = new QWidget(this);
    inside->setFixedSize(m_scale.rect(form.place()).size());
    addControls(form, inside);
    setCentralWidget(inside);
    // A fixed border: the window is as large as its inside.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_changed = form.Changed.connect([this] { update(); });
}

void FormWindow::addControls(Container& container, QWidget* parent) {
    QWidget* before = nullptr;
    for (Control* const control : container.controls()) {
        QWidget* const widget = addControl(*control, parent);
        if (widget == nullptr) {
            continue;
        }
        if (before != nullptr) {
            setTabOrder(before, widget);
        }
        before = widget;
    }
}

/// The widget of a control, or nothing for those that have none of their own.
QWidget* FormWindow::addControl(Control& control, QWidget* parent) {
    const auto make = [&](auto* model) { return makeWidget(*model, parent, m_scale); };
    if (auto* const frame = dynamic_cast<Frame*>(&control)) {
        QWidget* const widget = make(frame);
        addControls(*frame, widget);
        return widget;
    }
    if (auto* const menu = dynamic_cast<MenuEntry*>(&control)) {
        addMenu(*menu, menuBar());
        return nullptr;
    }
    if (auto* const timer = dynamic_cast<Timer*>(&control)) {
        auto* const ticking = new QTimer(this);
        ticking->setInterval(timer->interval());
        QObject::connect(ticking, &QTimer::timeout, [this, timer] {
            if (m_form.isLoaded()) {
                timer->tick();
            }
        });
        ticking->start();
        return nullptr;
    }
    if (auto* const button = dynamic_cast<Button*>(&control)) {
        if (button->design().isDefault) {
            const auto press = [this, button] {
                // Enter belongs to the button that has the keyboard, if one has.
                if (auto* const focused = qobject_cast<QPushButton*>(focusWidget())) {
                    focused->click();
                } else {
                    button->press();
                }
            };
            new QShortcut(Qt::Key_Return, this, press);
            new QShortcut(Qt::Key_Enter, this, press);
        }
        if (button->design().isCancel) {
            new QShortcut(Qt::Key_Escape, this, [button] { button->press(); });
        }
        return make(button);
    }
    if (auto* const label = dynamic_cast<Label*>(&control)) {
        return make(label);
    }
    if (auto* const box = dynamic_cast<TextBox*>(&control)) {
        return make(box);
    }
    if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
        return make(option);
    }
    if (auto* const arrows = dynamic_cast<UpDown*>(&control)) {
        return make(arrows);
    }
    if (auto* const tree = dynamic_cast<TreeView*>(&control)) {
        return make(tree);
    }
    if (auto* const list = dynamic_cast<ListView*>(&control)) {
        return make(list);
    }
    if (auto* const slider = dynamic_cast<Slider*>(&control)) {
        return make(slider);
    }
    if (auto* const bar = dynamic_cast<StatusBar*>(&control)) {
        return make(bar);
    }
    return nullptr;
}

void FormWindow::update() {
    if (const QPoint place(m_form.left(), m_form.top()); place != m_formPlace) {
        m_formPlace = place;
        const Scale screenScale;
        move(screenScale.pixels(place.x()), screenScale.pixels(place.y()));
    }
    if (m_form.isVisible() && !isVisible()) {
        show();
    } else if (!m_form.isVisible() && isVisible()) {
        hide();
    }
}

bool FormWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && m_form.isVisible()) {
        m_form.activate();
    }
    return QMainWindow::event(event);
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    // The user has moved the window; the form learns it without moving anything itself.
    const Scale screenScale;
    m_formPlace = {static_cast<int>(screenScale.twips(pos().x())),
                   static_cast<int>(screenScale.twips(pos().y()))};
    m_form.moveTo(m_formPlace.x(), m_formPlace.y());
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The form decides; if it goes, it hides this window itself.
    event->ignore();
    if (m_form.unload()) {
        event->accept();
    }
}

}  // namespace fleetwright
