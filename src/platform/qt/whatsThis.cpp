#include "whatsThis.h"

#include "Menu.h"
#include "widgetTools.h"

#include <QAction>
#include <QApplication>
#include <QHash>
#include <QMenu>
#include <QTextDocument>
#include <QWhatsThis>

namespace fleetwright {

namespace {

/// A text as the window of "What's This?" takes it, which breaks lines itself.
QString toHelp(const std::string& text) {
    const QString shown = toShown(text);
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

/// The actions of menus by the names of their entries.
using Actions = QHash<QString, QAction*>;

Actions actionsIn(const QWidget& window) {
    Actions actions;
    for (const QMenu* const menu : window.findChildren<QMenu*>()) {
        actions.insert(menu->objectName(), menu->menuAction());
        for (QAction* const action : menu->actions()) {
            actions.insert(action->objectName(), action);
        }
    }
    return actions;
}

void explainEntries(const Actions& actions, const Container& menu, const WhatsThisText& textOf) {
    for (const Control* const control : menu.controls()) {
        const auto* const entry = dynamic_cast<const MenuEntry*>(control);
        if (entry == nullptr) {
            continue;
        }
        if (QAction* const action = actions.value(toQt(entry->name()))) {
            action->setWhatsThis(toHelp(textOf(*entry)));
        }
        explainEntries(actions, *entry, textOf);
    }
}

}  // namespace

void explainWidget(QWidget* widget, Control& control, const WhatsThisText& textOf) {
    const std::string text = textOf ? textOf(control) : std::string();
    if (text.empty()) {
        return;
    }
    widget->setWhatsThis(toHelp(text));
    if (control.design().accessibleDescription.empty() && !control.askToolTip) {
        keepInStep(widget, control, [widget, &control, description = toQt(text)] {
            // A tool tip is what screen readers say else.
            widget->setAccessibleDescription(control.toolTip().empty() ? description : QString());
        });
    }
}

void explainMenus(const QWidget& window, const Container& form, const WhatsThisText& textOf) {
    if (textOf) {
        explainEntries(actionsIn(window), form, textOf);
    }
}

void explainFocused() {
    QWidget* widget = QApplication::focusWidget();
    while (widget != nullptr && widget->whatsThis().isEmpty()) {
        widget = widget->parentWidget();
    }
    if (widget == nullptr) {
        QWhatsThis::enterWhatsThisMode();
        return;
    }
    QWhatsThis::showText(widget->mapToGlobal(widget->rect().center()), widget->whatsThis(), widget);
}

}  // namespace fleetwright
