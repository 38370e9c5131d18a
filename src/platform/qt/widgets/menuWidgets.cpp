#include "Menu.h"
#include "controlWidgets.h"
#include "text.h"
#include "widgetTools.h"

#include <QMenu>
#include <QMenuBar>

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

void fillMenu(QMenu* menu, MenuEntry& entry) {
    menu->setObjectName(toQt(entry.name()));
    menu->setToolTipsVisible(true);
    for (Control* const control : entry.controls()) {
        addEntry(menu, *dynamic_cast<MenuEntry*>(control));
    }
}

}  // namespace

void addMenu(MenuEntry& menu, QMenuBar* bar) {
    if (menu.isVisible()) {
        fillMenu(bar->addMenu(toQt(menu.caption())), menu);
    }
}

void popUpMenu(MenuEntry& menu, const QPoint& place, const QFont& font) {
    QMenu widget;
    fillMenu(&widget, menu);
    widget.setFont(font);
    for (QMenu* const below : widget.findChildren<QMenu*>()) {
        below->setFont(font);
    }
    widget.exec(place);
}

}  // namespace fleetwright
