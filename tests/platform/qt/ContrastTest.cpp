// Whether every text can be read, measured in pixels.

#include "contrast.h"
#include "FormWindowTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <functional>

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

/// What takes the text of a widget away; nothing if it has none.
std::function<void()> textOf(QWidget* widget) {
    const auto emptied = [](auto* shown) { return [shown] { shown->setText(""); }; };
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        return button->text().isEmpty() ? nullptr : std::function<void()>(emptied(button));
    }
    if (auto* const label = qobject_cast<QLabel*>(widget)) {
        return emptied(label);
    }
    if (auto* const line = qobject_cast<QLineEdit*>(widget)) {
        return [line] {
            const QSignalBlocker blocker(line);  // or its model brings the text back
            line->setText("");
        };
    }
    if (auto* const frame = qobject_cast<QGroupBox*>(widget)) {
        return [frame] { frame->setTitle(" "); };
    }
    if (auto* const area = qobject_cast<QPlainTextEdit*>(widget)) {
        return [area] { area->setPlainText(""); };
    }
    if (auto* const bar = qobject_cast<QMenuBar*>(widget)) {
        return [bar] { bar->actions().constFirst()->setText(" "); };
    }
    return nullptr;
}

}  // namespace

// A control that is disabled may be pale, as WCAG has it: it is not to be used.
TEST_F(FormWindowTest, EveryTextCanBeReadInLightAndDarkWindows) {
    const QPalette light = QApplication::palette();
    for (const QPalette& palette : {light, QPalette(QColor(45, 45, 48))}) {
        QApplication::setPalette(palette);
        AllKinds all;
        OptionButton chosen{all.inner,
                            {.name = "chosen",
                             .place = {150, 300, 600, 300},
                             .caption = "X",
                             .isOn = true,
                             .isGraphical = true},
                            {}};
        all.text.setText("text");
        all.lines.setText("lines");
        all.name.setText("name");
        all.mass.setText("mass");
        all.combo.setText("combo");
        all.status.setText("status");
        all.list.add("a", "chosen", "1");
        all.list.add("b", "other", "2");
        all.list.select(0);
        all.tree.select(all.tree.nodes().front());
        all.setZoom(Zoom(125));
        FormWindow shown(all);
        all.show();
        int texts = 0;
        for (QWidget* const widget : shown.findChildren<QWidget*>()) {
            if (const std::function<void()> takeAway = textOf(widget)) {
                ++texts;
                EXPECT_GE(contrastOf(*widget, takeAway), readableContrast)
                    << widget->objectName().toStdString();
            }
        }
        for (auto* const rows : shown.findChildren<QTreeWidget*>()) {
            for (QTreeWidgetItem* const row : {rows->topLevelItem(0), rows->topLevelItem(1)}) {
                if (row != nullptr) {
                    ++texts;
                    EXPECT_GE(contrastOf(*rows->viewport(), [row] { row->setText(0, ""); }),
                              readableContrast)
                        << rows->objectName().toStdString();
                }
            }
            EXPECT_TRUE(rows->isHeaderHidden() || contrastOf(*rows->header(), [rows] {
                                                      rows->setHeaderLabels({"", ""});
                                                  }) >= readableContrast);
        }
        EXPECT_GE(contrast(warningColour(palette), palette.color(QPalette::Window)),
                  readableContrast);
        EXPECT_GE(texts, 20);
    }
    QApplication::setPalette(light);
}
