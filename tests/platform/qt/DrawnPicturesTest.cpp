// Pictures on the screen, from their drawings.

#include "FormWindowTest.h"

#include "Drawing.h"

#include <QApplication>
#include <QScrollArea>
#include <QStyle>
#include <QTreeWidget>

#include <algorithm>
#include <array>

using namespace fleetwright;

namespace {

/// Knows one picture: white, but for its upper half in this colour.
class HalfDrawn : public Drawings {
public:
    explicit HalfDrawn(std::uint32_t colour) : m_drawing(std::make_shared<Drawing>()) {
        *m_drawing = {32, 32, {0, 0, 32, 16}, {DrawnShape()}};
        m_drawing->shapes.front().path = "M0 0 L32 0 L32 16 L0 16 Z";
        m_drawing->shapes.front().fill = colour;
        for (int y = 0; y < 16; ++y) {
            std::ranges::fill(picture.row(y), colour);
        }
    }

    std::shared_ptr<const Drawing> of(const Raster& asked) const override {
        ++asks;
        return asked.key() == picture.key() ? m_drawing : nullptr;
    }

    Raster picture{32, 32};
    mutable int asks = 0;

private:
    std::shared_ptr<Drawing> m_drawing;
};

/// The colours of the picture of a tree's open branch: in its upper half, its lower half and beside
/// it.
std::array<QColor, 3> coloursOf(const Drawings& drawings, const Raster& picture, int percent) {
    AllKinds form;
    form.images.add("ROOT", Raster(picture));
    form.tree.setExpanded(form.tree.nodes().front(), true);
    form.setZoom(Zoom(percent));
    FormWindow window(form, nullptr, {}, &drawings);
    form.show();
    auto* const tree = window.findChild<QTreeWidget*>("tree");
    const QRect row = tree->visualItemRect(tree->topLevelItem(0));
    const QImage shown = tree->viewport()->grab().toImage();
    const int quarter = 8 * percent / 100;
    const int x = row.left() + 2 * quarter;
    return {shown.pixelColor(x, row.center().y() - quarter),
            shown.pixelColor(x, row.center().y() + quarter),
            shown.pixelColor(row.right() - 2, row.center().y())};
}

}  // namespace

TEST(DrawnPictures, AreLookedUpWherePixelsWillNotDoAndTakeTheColoursOfADarkDesktop) {
    using Colours = std::array<QColor, 3>;
    const QPalette light = QApplication::palette();
    const QColor base = light.color(QPalette::Base);
    const HalfDrawn ink(0x000000), blue(0x0000FF);
    EXPECT_EQ(coloursOf(ink, ink.picture, 100), (Colours{Qt::black, Qt::white, base}));
    EXPECT_EQ(ink.asks, 0) << "nothing is read that nobody needs";
    EXPECT_EQ(coloursOf(ink, ink.picture, 200), (Colours{Qt::black, Qt::white, base}));
    EXPECT_GT(ink.asks, 0);

    QApplication::setPalette(QPalette(QColor(45, 45, 48)));
    const QColor text = QApplication::palette().color(QPalette::Text);
    const QColor dark = QApplication::palette().color(QPalette::Base);
    for (const int percent : {100, 150}) {
        EXPECT_EQ(coloursOf(ink, ink.picture, percent), (Colours{text, dark, dark}));
        EXPECT_EQ(coloursOf(blue, blue.picture, percent)[0], QColor(Qt::blue)) << "is no ink";
        EXPECT_EQ(coloursOf(blue, ink.picture, percent), (Colours{Qt::black, Qt::white, dark}))
            << "a picture without a drawing stays as it is";
    }
    QApplication::setPalette(light);
}

TEST(DrawnPictures, FillTheirBoxesInTheColoursOfTheWindow) {
    AllKinds form;
    const HalfDrawn ink(0x000000);
    form.picture.setPicture(ink.picture);
    form.picture.setDrawing(ink.of(ink.picture));
    const FormWindow window(form);
    form.show();
    const QImage shown = window.findChild<QFrame*>("picture")->grab().toImage();
    EXPECT_EQ(shown.pixelColor(16, 4), window.palette().color(QPalette::WindowText));
    EXPECT_EQ(shown.pixelColor(16, 28), window.palette().color(QPalette::Window));
}

TEST(DrawnPictures, StandOutInRowsWhereAStyleMarksTheTextAlone) {
    const QString style = QApplication::style()->name();
    QApplication::setStyle("Windows");
    const HalfDrawn ink(0x000000);
    AllKinds form;
    form.images.add("ROOT", Raster(ink.picture));
    form.tree.select(form.tree.nodes().front());
    FormWindow window(form, nullptr, {}, &ink);
    form.show();
    auto* const tree = window.findChild<QTreeWidget*>("tree");
    const QRect row = tree->visualItemRect(tree->topLevelItem(0));
    const QImage shown = tree->viewport()->grab().toImage();
    EXPECT_EQ(shown.pixelColor(row.left() + 16, row.center().y() - 8), QColor(Qt::black));
    QApplication::setStyle(style);
}

TEST(DrawnPictures, StandOutOnButtonsThatAreDownAlsoInWindowsBehindOthers) {
    QPalette palette;
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(palette);
    AllKinds form;
    const FormWindow window(form);
    const QPalette down = window.findChild<QWidget*>("faced")->palette();
    EXPECT_EQ(down.color(QPalette::Inactive, QPalette::ButtonText), QColor(Qt::white));
    QApplication::setPalette({});
}

TEST(DrawnPictures, BehindAWindowAreLookedUpOnceForEachSizeThatPixelsWillNotDoFor) {
    const QFont before = QApplication::font();
    QFont small = before;
    small.setPixelSize(8);
    QApplication::setFont(small);
    const HalfDrawn blue(0x0000FF);
    Form form({.name = "frmPictured", .width = 480, .height = 480});
    form.setPicture(blue.picture);
    FormWindow window(form, nullptr, {}, &blue);
    form.show();
    const auto asksAt = [&](int percent) {
        form.setZoom(Zoom(percent));
        blue.asks = 0;
        QWidget& inside = *dynamic_cast<QScrollArea&>(*window.centralWidget()).widget();
        inside.grab();
        const QImage shown = inside.grab().toImage();
        const int quarter = 8 * percent / 100;
        EXPECT_EQ(shown.width(), 32 * percent / 100);
        EXPECT_EQ(shown.pixelColor(2 * quarter, quarter), QColor(Qt::blue));
        EXPECT_NE(shown.pixelColor(2 * quarter, 3 * quarter), QColor(Qt::blue));
        return blue.asks;
    };
    EXPECT_EQ(asksAt(100), 0);
    EXPECT_EQ(asksAt(110), 0);
    EXPECT_EQ(asksAt(125), 1);
    EXPECT_EQ(asksAt(200), 1);
    form.setPicture(Raster(32, 32));
    window.grab();
    EXPECT_GT(blue.asks, 1) << "it is another picture";
    QApplication::setFont(before);
}
