// Pages as they are drawn, beside what another program draws of their PDF files.

#include "drawPage.h"
#include "pagePixels.h"
#include "pdfFile.h"

#include "Raster.h"
#include "TemporaryFolder.h"
#include "pageUnits.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPainter>

#include <algorithm>

using namespace fleetwright;

namespace {

constexpr int side = 60;    // millimetres of the page
constexpr int detail = 10;  // pixels to the millimetre

/// All that a page can hold, apart from each other.
Page fullPage() {
    using Cap = DrawnShape::Cap;
    using Join = DrawnShape::Join;
    const auto shapes = std::make_shared<Drawing>(40, 20, Box{1, 1, 38, 18});
    shapes->shapes = {{.path = "M1 1 L13 1 L13 13 L1 13 Z M4 4 L10 4 L10 10 L4 10 Z",
                       .fill = 0x0000FF,
                       .stroke = {},
                       .opacity = 0.5,
                       .isEvenOdd = true},
                      {.path = "M1 14 L13 14 L13 19 L1 19 Z M4 15 L10 15 L10 18 L4 18 Z",
                       .fill = 0x008000,
                       .stroke = {}},
                      {.path = "M18 4 L24 4",
                       .fill = {},
                       .stroke = 0xFF0000,
                       .strokeWidth = 4,
                       .cap = Cap::Round},
                      {.path = "M18 10 L24 10",
                       .fill = {},
                       .stroke = 0xFF0000,
                       .strokeWidth = 4,
                       .cap = Cap::Square},
                      {.path = "M18 16 L24 16", .fill = {}, .stroke = 0xFF0000, .strokeWidth = 4},
                      {.path = "M29 8 L33 3 L37 8", .fill = {}, .stroke = 0, .strokeWidth = 3},
                      {.path = "M29 13 L33 9 L37 13",
                       .fill = {},
                       .stroke = 0,
                       .strokeWidth = 3,
                       .join = Join::Round},
                      {.path = "M29 18 C30 13 36 13 37 18",
                       .fill = {},
                       .stroke = 0,
                       .strokeWidth = 2,
                       .join = Join::Bevel}};
    const auto cross = std::make_shared<Drawing>(20, 20, Box{-10, -10, 40, 40});
    cross->shapes = {
        {.path = "M-10 -10 L30 30 M30 -10 L-10 30", .fill = {}, .stroke = 0, .strokeWidth = 6}};
    const auto dots = std::make_shared<Raster>(3, 2);
    dots->pixel(0, 0) = 0x102030;
    dots->pixel(2, 1) = 0xFF0000;
    Page page{{PageRectangle{{0, 0, 60, 12}, 0xD0E0F0, {}},
               PageText{.text = "Né 3 Ж", .x = 3, .y = 9, .size = 8, .colour = 0x800000},
               PageText{"End", 57, 9, 8, PageFont::Bold, PageText::Anchor::End},
               PageLine{3, 14, 57, 16, 1, 0x008000},
               PageRectangle{{3, 18, 12, 8}, 0xFFC000, 0x000080, 1, 0},
               PageRectangle{{18, 18, 12, 8}, {}, 0x000080, 1, 3},
               PagePicture{nullptr, dots, {33, 18, 12, 8}, {33, 18, 12, 8}},
               PagePicture{nullptr, dots, {47, 18, 12, 8}, {49, 19, 8, 5}},
               PagePicture{shapes, nullptr, {2, 29, 34, 17}, {2, 29, 34, 17}}}};
    // What reaches out of its picture, at each edge alone.
    for (const Box& shown : {Box{40, 30, 10, 10}, Box{3, 50, 10, 8}, Box{20, 52, 10, 8}}) {
        page.items.emplace_back(
            PagePicture{cross, nullptr, {shown.x - 1, shown.y - 1, 12, 12}, shown});
    }
    const auto bar = std::make_shared<Drawing>(20, 20, Box{5, 5, 25, 5});
    bar->shapes = {{.path = "M5 5 L30 5 L30 10 L5 10 Z", .fill = 0x404040, .stroke = {}}};
    const auto rod = std::make_shared<Drawing>(20, 20, Box{5, 5, 5, 25});
    rod->shapes = {{.path = "M5 5 L10 5 L10 30 L5 30 Z", .fill = 0x404040, .stroke = {}}};
    page.items.emplace_back(PagePicture{bar, nullptr, {36, 49, 6, 6}, {36, 49, 6, 6}});
    page.items.emplace_back(PagePicture{rod, nullptr, {46, 49, 6, 6}, {46, 49, 6, 6}});
    return page;
}

/// A picture whose pixels are the mean of a few of this one's: hands differ where edges are soft.
QImage coarse(const QImage& image) {
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

TEST(DrawPage, LooksAsThePdfFileOfThePageDoes) {
    PageDocument document;
    document.size = {side, side};
    document.pages = {fullPage()};
    const TemporaryFolder folder;
    folder.write("page.pdf", pdfFile(document));
    runCommand("cd '" + folder.path().string() +
               "' && pdftoppm -scale-to 600 -singlefile -png page.pdf page");
    const QImage printed(QString::fromStdString((folder.path() / "page.png").string()));
    ASSERT_EQ(printed.width(), side * detail);

    QImage drawn(side * detail, side * detail, QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    painter.scale(detail / double(pageUnits), detail / double(pageUnits));
    drawPage(painter, document.pages.front());
    painter.end();

    const QImage one = coarse(printed), other = coarse(drawn);
    constexpr int alike = 75;  // of 255
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y), b = other.pixelColor(x, y);
            const int apart =
                std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                          std::abs(a.blue() - b.blue())});
            EXPECT_LT(apart, alike) << x << " mm, " << y << " mm";
        }
    }
}

TEST(PagePixels, ShowPicturesSmoothly) {
    const auto edge = std::make_shared<Raster>(2, 1);
    edge->pixel(0, 0) = 0x000000;
    const Page page{{PagePicture{nullptr, edge, {0, 0, 10, 10}, {0, 0, 10, 10}}}};
    Raster shown = pagePixels(page, 10, 100);
    EXPECT_EQ(shown.pixel(5, 50), 0x000000U);
    EXPECT_NEAR(shown.pixel(50, 50) & 0xFFU, 0x80, 0x20);
    EXPECT_EQ(shown.pixel(95, 50), 0xFFFFFFU);
}
