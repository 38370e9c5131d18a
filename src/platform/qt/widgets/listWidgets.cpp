// The list view, and the slider of its dialog.

#include "DragImage.h"
#include "ItemWidget.h"
#include "ListView.h"
#include "Slider.h"
#include "contrast.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyledItemDelegate>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace fleetwright {

namespace {

constexpr int isAlarmingRole = Qt::UserRole;

/// Rows that are as high as it takes to hit them without care, also with a finger.
class EasyRows : public QStyledItemDelegate {
public:
    EasyRows(const Scale& scale, QObject* parent) : QStyledItemDelegate(parent), m_scale(scale) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int easyToHit = 24;  // the least that WCAG asks for
        return QStyledItemDelegate::sizeHint(option, index)
            .expandedTo({0, m_scale.zoomed(easyToHit)});
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(isAlarmingRole).toBool()) {
            option->palette.setColor(QPalette::Text, warningColour(option->palette));
        }
    }

private:
    Scale m_scale;
};

/// A list of rows with columns.
class RowList : public ItemWidget {
public:
    RowList(ListView& list, QWidget* parent, const Scale& scale)
        : ItemWidget(list, parent), m_list(list), m_scale(scale) {
        setRootIsDecorated(false);
        setItemDelegate(new EasyRows(scale, this));
        for (QWidget* const part : std::initializer_list<QWidget*>{
                 viewport(), header()->viewport(), horizontalScrollBar(), verticalScrollBar()}) {
            part->setAcceptDrops(true);
            new EventHook(part, [this](QEvent* event) { return takeDrag(*event); });
        }
        keepZoomed(this, scale, [this] { zoomColumns(); });
    }

    /// Brings the items to what the rows are.
    void update() {
        const QSignalBlocker blocker(this);
        if (m_shownColumns != m_list.columns().size()) {
            showColumns();
        }
        const auto& rows = m_list.rows();
        removeSurplus();
        QList<QTreeWidgetItem*> added;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (i >= m_shownRows.size()) {
                added << itemOf(rows[i], new Item);
            } else if (m_shownRows[i] != rows[i]) {
                itemOf(rows[i], topLevelItem(static_cast<int>(i)));
            }
        }
        addTopLevelItems(added);
        m_shownRows = rows;
        if (const auto selected = m_list.selected()) {
            setCurrentItem(topLevelItem(static_cast<int>(*selected)));
        } else {
            setCurrentItem(nullptr);
        }
    }

protected:
    void takeSelected(QTreeWidgetItem* item) override {
        m_list.select(static_cast<std::size_t>(indexOfTopLevelItem(item)));
    }

    void mousePressEvent(QMouseEvent* event) override {
        QTreeWidget::mousePressEvent(event);
        // The event counts from below the headers, the model from the corner of the list.
        MousePress press = toPress(*event, m_scale);
        press.x += m_scale.twips(viewport()->x());
        press.y += m_scale.twips(viewport()->y());
        m_list.pressMouse(press);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Delete) {
            m_list.pressDelete();
            return;
        }
        if (m_list.onEnter && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
            m_list.pressEnter();
            return;
        }
        QTreeWidget::keyPressEvent(event);
    }

    std::string describe(QTreeWidgetItem* item) const override {
        const auto row = static_cast<std::size_t>(indexOfTopLevelItem(item));
        return m_list.rowToolTip && row < m_list.rows().size()
                   ? m_list.rowToolTip(m_list.rows()[row])
                   : std::string();
    }

private:
    /// Where rows have gone, so do their items, and not the last ones: the item that is selected
    /// then is another one, which a screen reader hears.
    void removeSurplus() {
        const auto& rows = m_list.rows();
        if (m_shownRows.size() <= rows.size()) {
            return;
        }
        const auto first = std::mismatch(rows.begin(), rows.end(), m_shownRows.begin(),
                                         [](const ListView::Row& row, const ListView::Row& shown) {
                                             return row.key == shown.key;
                                         })
                               .second;
        const auto last = first + (std::ssize(m_shownRows) - std::ssize(rows));
        for (auto row = last; row != first; --row) {
            delete takeTopLevelItem(static_cast<int>(row - m_shownRows.begin()) - 1);
        }
        m_shownRows.erase(first, last);
    }

    /// Writes a row into its item.
    static QTreeWidgetItem* itemOf(const ListView::Row& row, QTreeWidgetItem* item) {
        int column = 0;
        item->setText(column++, toShown(row.text));
        item->setText(column++, toShown(row.subItem));
        for (const std::string& text : row.moreItems) {
            item->setText(column++, toShown(text));
        }
        if (row.isStrong != item->font(0).bold()) {
            QFont font;
            font.setBold(row.isStrong);
            for (int each = 0; each < column; ++each) {
                item->setFont(each, font);
            }
        }
        for (int each = 0; each < column; ++each) {
            item->setData(each, isAlarmingRole, row.isAlarming);
        }
        return item;
    }

    /// A system may be dropped anywhere on the list, on its headers and scroll bars as well.
    bool takeDrag(QEvent& event) {
        const bool isDrop = event.type() == QEvent::Drop;
        if (!isDrop && event.type() != QEvent::DragEnter && event.type() != QEvent::DragMove) {
            return false;
        }
        DragImage* const image = draggedImage(window());
        if (image != nullptr && m_list.onDragDrop) {
            static_cast<QDropEvent&>(event).acceptProposedAction();
            if (isDrop) {
                m_list.drop(*image);
            }
        }
        return true;
    }

    /// Sets the headers up; from then on the widths are the user's.
    void showColumns() {
        m_shownColumns = m_list.columns().size();
        QStringList titles;
        for (const ListView::Column& column : m_list.columns()) {
            titles << toQt(column.title);
        }
        setHeaderLabels(titles);
        // On a small screen letters are large for their places, and the last column has room to
        // give.
        int left = m_scale.pixels(m_list.place().width) - verticalScrollBar()->sizeHint().width();
        for (int i = 0; i < std::ssize(m_list.columns()); ++i) {
            const int width = m_list.columns()[static_cast<std::size_t>(i)].width;
            const int wished = m_scale.pixelsForLetters(width);
            left -= wished;
            const bool isRoom = left >= header()->sectionSizeHint(header()->count() - 1);
            setColumnWidth(i, isRoom ? wished : m_scale.pixels(width));
        }
    }

    /// Widths that the user has given keep their share. The last one is what is left.
    void zoomColumns() {
        const double growth = m_scale.zoom() / std::exchange(m_shownZoom, m_scale.zoom());
        for (int i = 0; i + 1 < std::ssize(m_list.columns()) && growth != 1; ++i) {
            setColumnWidth(i, static_cast<int>(std::lround(columnWidth(i) * growth)));
        }
        scheduleDelayedItemsLayout();
    }

    ListView& m_list;
    Scale m_scale;
    double m_shownZoom = m_scale.zoom();
    std::size_t m_shownColumns = 0;
    std::vector<ListView::Row> m_shownRows;  // there may be many, of which few change
};

}  // namespace

QWidget* makeWidget(ListView& list, QWidget* parent, const Scale& scale) {
    auto* const widget = new RowList(list, parent, scale);
    prepare(widget, list, scale);
    keepInStep(widget, list, [widget] { widget->update(); });
    return widget;
}

QWidget* makeWidget(Slider& slider, QWidget* parent, const Scale& scale) {
    auto* const widget = new QSlider(Qt::Horizontal, parent);
    prepare(widget, slider, scale);
    widget->setTickPosition(QSlider::TicksBelow);
    keepInStep(widget, slider, [widget, &slider] {
        const QSignalBlocker blocker(widget);
        widget->setRange(slider.min(), slider.max());
        widget->setTickInterval(slider.tickFrequency());
        widget->setPageStep(slider.largeChange());
        widget->setValue(slider.value());
    });
    QObject::connect(widget, &QSlider::valueChanged, [&slider](int value) { slider.slide(value); });
    return widget;
}

}  // namespace fleetwright
