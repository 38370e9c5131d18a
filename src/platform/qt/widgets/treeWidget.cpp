#include "ImageList.h"
#include "ItemWidget.h"
#include "TreeView.h"
#include "controlWidgets.h"
#include "pictureIcon.h"
#include "widgetTools.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPointer>
#include <QSignalBlocker>

#include <map>

namespace fleetwright {

namespace {

/// A tree widget and the nodes that its items stand for.
class NodeTree : public ItemWidget {
public:
    NodeTree(TreeView& tree, QWidget* parent, const Scale& scale)
        : ItemWidget(tree, parent), m_tree(tree), m_scale(scale) {
        setColumnCount(1);
        header()->hide();
        keepZoomed(this, scale, [this] {
            constexpr int pictureSize = 32;
            setIconSize(QSize(pictureSize, pictureSize) * m_scale.zoom());
        });
        connect(this, &QTreeWidget::itemExpanded,
                [this](QTreeWidgetItem* item) { takeExpanded(item, true); });
        connect(this, &QTreeWidget::itemCollapsed,
                [this](QTreeWidgetItem* item) { takeExpanded(item, false); });
        // With what stands around it, unless the tree need not move at all.
        keepAttached(this, tree.SightWanted.connect([this](const TreeView::Node& node) {
            if (!isInSight(node)) {
                scrollToItem(m_byNode.at(&node), PositionAtCenter);
            }
        }));
        keepAttached(this, tree.TopWanted.connect([this](const TreeView::Node& node) {
            scrollToItem(m_byNode.at(&node), PositionAtTop);
        }));
        tree.askInSight = [self = QPointer(this)](const TreeView::Node& node) {
            return self == nullptr || self->isInSight(node);
        };
        tree.askTop = [self = QPointer(this)] {
            QTreeWidgetItem* const item = self == nullptr ? nullptr : self->itemAt(0, 0);
            return item == nullptr ? nullptr : &self->nodeOf(item);
        };
    }

    /// Brings the items to what the nodes are.
    void update() {
        const QSignalBlocker blocker(this);
        for (std::size_t i = m_items.size(); i < m_tree.nodes().size(); ++i) {
            addItem(m_tree.nodes()[i]);
        }
        std::erase_if(m_withoutPicture,
                      [this](QTreeWidgetItem* item) { return showPicture(item); });
        // This runs for each node that comes or changes: only what differs may cost anything.
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (const bool isExpanded = m_tree.nodes()[i].isExpanded;
                m_isExpanded[i] != isExpanded) {
                m_isExpanded[i] = isExpanded;
                m_items[i]->setExpanded(isExpanded);
            }
        }
        setAutoScroll(false);  // whoever wants to see it says so
        setCurrentItem(m_tree.selected() == nullptr ? nullptr : m_byNode.at(m_tree.selected()));
        setAutoScroll(true);
    }

protected:
    void takeSelected(QTreeWidgetItem* item) override { m_tree.select(nodeOf(item)); }

    void mousePressEvent(QMouseEvent* event) override {
        m_pressedAt = event->pos();
        // The right button acts on what is selected and selects nothing itself.
        if (event->button() != Qt::RightButton) {
            QTreeWidget::mousePressEvent(event);
        }
        m_tree.pressMouse(toPress(*event, m_scale));
    }

    void mouseMoveEvent(QMouseEvent* event) override {
        if (event->buttons() == Qt::NoButton) {
            QTreeWidget::mouseMoveEvent(event);
            return;
        }
        // A move selects nothing, and what moves by no pixel is no move.
        if (event->pos() == m_pressedAt || !m_tree.onMouseMove) {
            return;
        }
        // What a quick hand has done since then is behind this event, at times in the middle of the
        // work on it. A drag that began before a release would go on with no button down.
        QMetaObject::invokeMethod(
            this, [this, move = toMove(*event, m_scale)] { takeMove(move); }, Qt::QueuedConnection);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        QTreeWidget::mouseReleaseEvent(event);
        m_tree.releaseMouse(toPress(*event, m_scale));
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (!m_tree.pressKey(nameOf(*event))) {
            QTreeWidget::keyPressEvent(event);
        }
    }

    /// What is typed is the form's.
    void keyboardSearch(const QString& /*typed*/) override {}

    void focusOutEvent(QFocusEvent* event) override {
        QTreeWidget::focusOutEvent(event);
        if (isLost(*event)) {
            m_tree.loseFocus();
        }
    }

    std::string describe(QTreeWidgetItem* item) const override {
        return m_tree.nodeToolTip ? m_tree.nodeToolTip(nodeOf(item)) : std::string();
    }

private:
    /// What a key types, or its name.
    static std::string nameOf(const QKeyEvent& event) {
        if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
            return "Enter";
        }
        const Qt::KeyboardModifiers modifiers =
            event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
        const QString typed = event.text();
        const bool isCommand = modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier;
        if (!typed.isEmpty() && typed.front().isPrint() && !isCommand) {
            return typed.toStdString();
        }
        return QKeySequence(QKeyCombination(modifiers, Qt::Key(event.key())))
            .toString()
            .toStdString();
    }

    bool isInSight(const TreeView::Node& node) const {
        const QRect line = visualItemRect(m_byNode.at(&node));
        return line.isValid() && viewport()->rect().contains(0, line.center().y());
    }

    /// A move with a button down, which may drag.
    void takeMove(const MousePress& move) {
        if (QApplication::mouseButtons() == Qt::NoButton) {
            return;
        }
        m_tree.moveMouse(move);
        if (QApplication::mouseButtons() == Qt::NoButton) {
            // The button was let go in the middle of a drag, of which the tree hears nothing.
            setState(NoState);
            m_tree.releaseMouse({.button = LeftButton});
            // A hand that trembles in a click drags, but not far, and means the click.
            const QPoint way = viewport()->mapFromGlobal(QCursor::pos()) - m_pressedAt;
            if (way.manhattanLength() < QApplication::startDragDistance()) {
                m_tree.click();
            }
        }
    }

    void addItem(TreeView::Node& node) {
        auto* const item = new Item;
        item->setText(0, toShown(node.key));
        m_byNode[&node] = item;
        m_byItem[item] = m_items.size();
        m_items.push_back(item);
        m_isExpanded.push_back(false);
        if (!showPicture(item)) {
            m_withoutPicture.push_back(item);
        }
        // Last, since the tree hears of each change of an item in it.
        if (node.parent == nullptr) {
            addTopLevelItem(item);
        } else {
            m_byNode.at(node.parent)->addChild(item);
        }
    }

    /// Gives an item its picture, unless that has not come yet.
    bool showPicture(QTreeWidgetItem* item) {
        const std::string& key = nodeOf(item).key;
        if (m_tree.images() == nullptr || !m_tree.images()->contains(key)) {
            return false;
        }
        item->setIcon(0, pictureIcon([this, key] { return m_tree.images()->pictureIfAny(key); },
                                     m_scale, QPalette::Text));
        return true;
    }

    TreeView::Node& nodeOf(QTreeWidgetItem* item) const {
        return m_tree.nodes()[m_byItem.at(item)];
    }

    /// The user has opened or closed an item.
    void takeExpanded(QTreeWidgetItem* item, bool isExpanded) {
        m_isExpanded[m_byItem.at(item)] = isExpanded;
        m_tree.setExpanded(nodeOf(item), isExpanded);
    }

    TreeView& m_tree;
    Scale m_scale;
    QPoint m_pressedAt;
    std::vector<QTreeWidgetItem*> m_items;
    std::vector<bool> m_isExpanded;  // as the items show it
    std::vector<QTreeWidgetItem*> m_withoutPicture;
    std::map<const TreeView::Node*, QTreeWidgetItem*> m_byNode;
    std::map<QTreeWidgetItem*, std::size_t> m_byItem;  // places in m_items and the model's nodes
};

}  // namespace

QWidget* makeWidget(TreeView& tree, QWidget* parent, const Scale& scale) {
    auto* const widget = new NodeTree(tree, parent, scale);
    prepare(widget, tree, scale);
    keepInStep(widget, tree, [widget] { widget->update(); });
    return widget;
}

}  // namespace fleetwright
