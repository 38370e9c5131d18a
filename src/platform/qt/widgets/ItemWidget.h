#pragma once

#include "PointedControl.h"
#include "widgetTools.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>

namespace fleetwright {

/// What trees and lists share: how their items are selected, clicked, described and asked for a
/// menu.
class ItemWidget : public QTreeWidget {
public:
    ItemWidget(PointedControl& control, QWidget* parent) : QTreeWidget(parent), m_control(control) {
        setUniformRowHeights(true);
        connect(this, &QTreeWidget::currentItemChanged, [this](QTreeWidgetItem* item) {
            if (item != nullptr) {
                takeSelected(item);
                // The left button's click is still to come.
                if (!QApplication::mouseButtons().testFlag(Qt::LeftButton)) {
                    m_control.click();
                }
            }
        });
        connect(this, &QTreeWidget::itemClicked, [this] { m_control.click(); });
        connect(this, &QTreeWidget::itemDoubleClicked, [this] { m_control.doubleClick(); });
    }

protected:
    /// Hands it to the model that an item has become the selected one.
    virtual void takeSelected(QTreeWidgetItem* item) = 0;

    /// What is to be said of an item. May be empty.
    virtual std::string describe(QTreeWidgetItem* item) const = 0;

    /// An item that a screen reader finds described as the pointer does. The description is worked
    /// out when somebody asks: there are many items, and what is said of them changes with the
    /// ship.
    class Item : public QTreeWidgetItem {
    public:
        QVariant data(int column, int role) const override {
            const auto* const whole = dynamic_cast<const ItemWidget*>(treeWidget());
            return role == Qt::AccessibleDescriptionRole && whole != nullptr
                       ? toShown(whole->describe(const_cast<Item*>(this)))
                       : QTreeWidgetItem::data(column, role);
        }
    };

    bool viewportEvent(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) {
            return QTreeWidget::viewportEvent(event);
        }
        const auto* const help = static_cast<QHelpEvent*>(event);
        QTreeWidgetItem* const item = itemAt(help->pos());
        const std::string text = item == nullptr ? std::string() : describe(item);
        QToolTip::showText(help->globalPos(), toToolTip(text.empty() ? m_control.toolTip() : text));
        return true;
    }

    /// No click and no key takes the selection off an item: acts would still be about it.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override {
        const auto command = QTreeWidget::selectionCommand(index, event);
        return command.testFlag(QItemSelectionModel::Deselect)
                   ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                   : command;
    }

    void focusInEvent(QFocusEvent* event) override {
        QTreeWidget::focusInEvent(event);
        if (QAccessible::isActive()) {
            // Qt tells of the whole list first, after this.
            QTimer::singleShot(0, this, [this] { tellCurrent(); });
        }
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) {
            QTreeWidget::mouseDoubleClickEvent(event);
        }
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        if (event->reason() == QContextMenuEvent::Keyboard) {
            m_control.pressMouse({.button = RightButton});
        }
    }

private:
    /// Has screen readers say the item that the keyboard has come to, as when it becomes another
    /// one.
    void tellCurrent() {
        const QModelIndex current = currentIndex();
        if (!hasFocus() || !current.isValid()) {
            return;
        }
        int line = 1;  // behind the headers
        for (QModelIndex above = indexAbove(current); above.isValid(); above = indexAbove(above)) {
            ++line;
        }
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(line * columnCount() + current.column());
        QAccessible::updateAccessibility(&event);
    }

    PointedControl& m_control;
};

}  // namespace fleetwright
