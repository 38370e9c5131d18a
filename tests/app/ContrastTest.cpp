// Whether every text in the windows can be read, measured in pixels.

#include "contrast.h"
#include "FormWindow.h"
#include "eachWindow.h"
#include "fillWindows.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <functional>
#include <map>

using namespace fleetwright;

namespace {

/// The best contrast of a pixel of the text with what is behind it, which shows when the text is
/// gone: within a letter none is lost to soft edges.
double contrastOf(QWidget& widget, const std::function<void()>& takeTextAway) {
    const QImage with = widget.grab().toImage();
    takeTextAway();
    const QImage without = widget.grab().toImage();
    double best = 1;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                best = std::max(best, contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
            }
        }
    }
    return best;
}

/// The same of a part of a picture that has one text, on one colour.
double contrastIn(const QImage& picture, const QRect& part) {
    std::map<QRgb, int> colours;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            ++colours[picture.pixel(x, y)];
        }
    }
    const auto ground = std::ranges::max_element(
        colours, {}, [](const std::pair<const QRgb, int>& colour) { return colour.second; });
    double best = 1;
    for (const auto& [colour, count] : colours) {
        best = std::max(best, contrast(QColor(colour), QColor(ground->first)));
    }
    return best;
}

/// What takes the text of a widget away; nothing if it has none.
std::function<void()> textOf(QWidget* widget) {
    const auto emptied = [](auto* shown) { return [shown] { shown->setText(""); }; };
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        return button->text().isEmpty() ? nullptr : std::function<void()>(emptied(button));
    }
    if (auto* const label = qobject_cast<QLabel*>(widget)) {
        return label->text().isEmpty() ? nullptr : std::function<void()>(emptied(label));
    }
    if (auto* const line = qobject_cast<QLineEdit*>(widget)) {
        return line->text().isEmpty() ? nullptr : std::function<void()>([line] {
            const QSignalBlocker blocker(line);  // or its model brings the text back
            line->setText("");
        });
    }
    if (auto* const frame = qobject_cast<QGroupBox*>(widget)) {
        return [frame] { frame->setTitle(" "); };
    }
    if (auto* const area = qobject_cast<QPlainTextEdit*>(widget)) {
        return area->document()->isEmpty() ? nullptr : std::function<void()>([area] {
            const QSignalBlocker blocker(area);
            area->setPlainText("");
        });
    }
    if (auto* const bar = qobject_cast<QMenuBar*>(widget)) {
        return [bar] { bar->actions().constFirst()->setText(" "); };
    }
    return nullptr;
}

/// Looks at all texts of a window, those of its menus, and counts them.
class Reader {
public:
    explicit Reader(FormWindow& window) : m_window(window) {}

    void read() {
        for (auto* const menu : m_window.findChildren<QMenu*>()) {
            if (!menu->objectName().isEmpty()) {  // else the bar's, for what it has no room for
                readMenu(*menu);
            }
        }
        for (auto* const box : m_window.findChildren<QComboBox*>()) {
            box->showPopup();
            readRows(*box->view(), "list of " + box->objectName());
            box->hidePopup();
        }
        for (auto* const rows : m_window.findChildren<QTreeWidget*>()) {
            readRows(*rows, rows->objectName());
            if (!rows->isHeaderHidden()) {
                expect(contrastOf(*rows->header(), [rows] { rows->setHeaderLabels({"", "", ""}); }),
                       "head of " + rows->objectName());
            }
        }
        for (QWidget* const widget : m_window.findChildren<QWidget*>()) {
            const std::function<void()> takeAway = textOf(widget);
            if (takeAway && widget->isVisibleTo(&m_window)) {
                expect(contrastOf(*widget, takeAway), widget->objectName(), widget->isEnabled());
            }
        }
    }
    int texts() const { return m_texts; }

private:
    /// What is disabled may be pale, as WCAG has it: it is not to be used.
    void expect(double contrast, const QString& what, bool isEnabled = true) {
        constexpr double visible = 2;
        ++m_texts;
        EXPECT_GE(contrast, isEnabled ? readableContrast : visible)
            << what.toStdString() << " in " << m_window.objectName().toStdString();
    }

    /// All entries, and the one that is marked.
    void readMenu(QMenu& menu) {
        menu.resize(menu.sizeHint());
        const auto readEntry = [&](QAction* entry) {
            const int picture = 24;
            const QRect text = menu.actionGeometry(entry).adjusted(picture, 2, -picture, -2);
            expect(contrastIn(menu.grab().toImage(), text), entry->text(), entry->isEnabled());
        };
        for (QAction* const entry : menu.actions()) {
            if (entry->isVisible() && !entry->isSeparator()) {
                readEntry(entry);
                menu.setActiveAction(entry);
                readEntry(entry);
                menu.setActiveAction(nullptr);
            }
        }
    }

    void readRows(QAbstractItemView& view, const QString& name) {
        const QImage picture = view.viewport()->grab().toImage();
        const QAbstractItemModel& model = *view.model();
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex cell = model.index(row, column);
                const QRect place = view.visualRect(cell) & picture.rect();
                const int icon = cell.data(Qt::DecorationRole).isNull() ? 0 : 36;
                if (place.height() > 9 && !cell.data().toString().isEmpty()) {
                    expect(contrastIn(picture, place.adjusted(icon + 3, 2, -3, -2)), name);
                }
            }
        }
    }

    FormWindow& m_window;
    int m_texts = 0;
};

}  // namespace

TEST(Windows, EveryTextCanBeReadInLightAndDarkOnes) {
    const QPalette light = QApplication::palette();
    for (const QPalette& palette : {light, QPalette(QColor(45, 45, 48))}) {
        QApplication::setPalette(palette);
        Dice dice(1);
        Actor actor(dice);
        fillWindows(actor);
        int texts = 0;
        forEachWindow(actor, [&texts](Form& form) {
            form.setZoom(Zoom(125));
            form.show();
            FormWindow window(form);
            Reader reader(window);
            reader.read();
            texts += reader.texts();
        });
        EXPECT_GE(contrast(warningColour(palette), palette.color(QPalette::Window)),
                  readableContrast);
        EXPECT_GE(texts, 250);
    }
    QApplication::setPalette(light);
}
