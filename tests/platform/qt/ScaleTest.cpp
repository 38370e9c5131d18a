#include "Scale.h"

#include "FormWindowTest.h"
#include "pageFontFiles.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QFrame>
#include <QScreen>

using namespace fleetwright;

namespace {

/// The program's own font in this size is that of the desktop, as long as this lives.
class DesktopFont {
public:
    explicit DesktopFont(int pixels) {
        QFont font = pageFont(PageFace::Regular);
        font.setPixelSize(pixels);
        QApplication::setFont(font);
    }
    DesktopFont(const DesktopFont&) = delete;
    DesktopFont& operator=(const DesktopFont&) = delete;
    ~DesktopFont() { QApplication::setFont(m_before); }

    static int lineHeight() { return QFontMetrics(QApplication::font()).height(); }

private:
    QFont m_before = QApplication::font();
};

}  // namespace

TEST(Scale, IsThatOfTheLettersAsFarAsTheScreenHasRoom) {
    const QSize screen = QApplication::primaryScreen()->availableSize();
    {
        const DesktopFont small(9);
        const Scale usual(1, 1), wide(screen.width() * 16, 1), high(1, (screen.height() - 80) * 16);
        EXPECT_EQ(usual.pixels(1500), 100);
        for (const Scale& scale : {wide, high}) {
            EXPECT_EQ(scale.pixels(1600), 100);
            EXPECT_EQ(scale.pixelsForLetters(1500), 100) << "they keep their size";
            EXPECT_NEAR(scale.twips(100), 1600, 0.01);
        }
        EXPECT_EQ(Scale(100 * screen.width(), 1).pixels(1500), 80) << "it can still be read";
        usual.setZoom(1.5);
        EXPECT_EQ(usual.pixels(1500), 150);
        EXPECT_EQ(usual.pixelsForLetters(1500), 150);
        EXPECT_EQ(usual.zoomed(100), 150);
    }
    const DesktopFont large(30);
    EXPECT_EQ(Scale(1, 1).pixels(13 * 1500), 100 * DesktopFont::lineHeight());
}

TEST(Scale, OfLargeLettersGivesPicturesRoomAndZoomsLettersOfAnySize) {
    const DesktopFont large(26);
    AllKinds form;
    PictureBox fixed(form, {.name = "fixed", .place = {0, 0, 1500, 1500}});
    fixed.setAutoSize(false);
    FormWindow window(form);
    auto* const box = window.findChild<QFrame*>("fixed");
    Raster picture(40, 20);
    picture.pixel(0, 0) = picture.pixel(39, 19) = 0xFF0000;
    fixed.setPicture(picture);
    const QImage shown = box->grab().toImage();
    QRect place;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            place |= shown.pixelColor(x, y) == QColor(Qt::red) ? QRect(x, y, 1, 1) : QRect();
        }
    }
    EXPECT_EQ(place.size(), QSize(40, 20)) << "pixels are pixels";
    EXPECT_NEAR(place.left(), box->width() - 1 - place.right(), 1) << "in the middle";
    EXPECT_NEAR(place.top(), box->height() - 1 - place.bottom(), 1);
    form.setZoom(Zoom(150));
    EXPECT_EQ(window.font().pixelSize(), 39);
}
