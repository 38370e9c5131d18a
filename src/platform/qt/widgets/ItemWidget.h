#pragma once

#include "PointedControl.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTreeWidget>

namespace fleetwright {

/// What trees and lists share: how their items are selected, clicked and asked for a menu.
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
    PointedControl& m_control;
};

}  // namespace fleetwright
