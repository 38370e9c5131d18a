#include "Menu.h"
#include "contrast.h"
#include "controlWidgets.h"
#include "text.h"
#include "widgetTools.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QWindow>

namespace fleetwright {

namespace {

void fillMenu(QMenu* menu, MenuEntry& entry);

void addEntry(QMenu* menu, MenuEntry& entry) {
    if (entry.isSeparator()) {
        QAction* const line = menu->addSeparator();
        keepInStep(menu, entry, [line, &entry] { line->setVisible(entry.isVisible()); });
        return;
    }
    if (!entry.controls().empty()) {
        fillMenu(menu->addMenu(toQt(entry.caption())), entry);
        return;
    }
    QAction* const action = menu->addAction(toQt(entry.caption()));
    action->setObjectName(toQt(entry.name()));
    if (!entry.design().shortcut.empty()) {
        action->setShortcut(QKeySequence(toQt(entry.design().shortcut)));
        if (action->shortcut() == QKeySequence(QKeySequence::WhatsThis)) {
            action->setShortcutContext(Qt::WidgetShortcut);  // each window answers this key itself
        }
    }
    keepInStep(menu, entry, [action, &entry] {
        action->setText(entry.design().isVerbatim
                            ? toQt(shownText(entry.caption())).replace('&', "&&")
                            : toQt(entry.caption()));
        action->setEnabled(entry.isEnabled());
        action->setVisible(entry.isVisible());
        action->setToolTip(toToolTip(entry.toolTip()));
        // A mark makes room for itself only in entries that have ever had one.
        action->setCheckable(action->isCheckable() || entry.isChecked());
        action->setChecked(entry.isChecked());
    });
    QObject::connect(action, &QAction::triggered, [action, &entry] {
        entry.choose();
        action->setChecked(entry.isChecked());
    });
}

/// What a quick hand clicks before the screen has heard that a menu is closed, as in the middle of
/// the work that it began, still arrives at the menu, which has to be there yet. It is meant for
/// what is below.
void handClicksOn(QMenu* menu) {
    new EventHook(menu, [menu](QEvent* event) {
        const bool isClick = event->type() == QEvent::MouseButtonPress ||
                             event->type() == QEvent::MouseButtonDblClick ||
                             event->type() == QEvent::MouseButtonRelease;
        if (!isClick || menu->isVisible()) {
            return false;
        }
        const auto& click = static_cast<QMouseEvent&>(*event);
        QWindow* const below = QGuiApplication::topLevelAt(click.globalPosition().toPoint());
        if (below == nullptr) {
            return false;
        }
        QMouseEvent handedOn(click.type(), below->mapFromGlobal(click.globalPosition()),
                             click.globalPosition(), click.button(), click.buttons(),
                             click.modifiers());
        QCoreApplication::sendEvent(below, &handedOn);
        return true;
    });
}

/// A menu is a window of its own, which has none of its owner's colours. What is disabled in it
/// casts no shadow, which on dark ones only blurs it.
void keepReadable(QMenu* menu) {
    const auto colour = [menu] {
        QPalette colours = readableColours(QApplication::palette());
        colours.setColor(QPalette::Disabled, QPalette::Light, Qt::transparent);
        menu->setPalette(colours);
    };
    colour();
    new EventHook(menu, [colour](QEvent* event) {
        if (event->type() == QEvent::ApplicationPaletteChange) {
            colour();
        }
        return false;
    });
}

void fillMenu(QMenu* menu, MenuEntry& entry) {
    menu->setObjectName(toQt(entry.name()));
    keepReadable(menu);
    menu->setToolTipsVisible(true);
    handClicksOn(menu);
    for (Control* const control : entry.controls()) {
        addEntry(menu, *dynamic_cast<MenuEntry*>(control));
    }
}

}  // namespace

void addMenu(MenuEntry& menu, QMainWindow& window) {
    if (!menu.isVisible()) {
        fillMenu(new QMenu(&window), menu);
        return;
    }
    QMenuBar* const bar = window.menuBar();
    QMenu* const widget = bar->addMenu(toQt(menu.caption()));
    fillMenu(widget, menu);
    if (bar->actions().size() == 1) {
        new QShortcut(Qt::Key_F10, bar, [bar, widget] {
            bar->setActiveAction(widget->menuAction());
            widget->setActiveAction(widget->actions().value(0));
        });
    }
}

void popUpMenu(const MenuEntry& menu, const QPoint& place, const QWidget& window) {
    window.findChild<QMenu*>(toQt(menu.name()))->exec(place);
}

}  // namespace fleetwright
