#include "ReadableStyle.h"

#include "ZoomedStyle.h"
#include "contrast.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QTreeWidget>

#include <vector>

using namespace fleetwright;

namespace {

using Element = QStyle::PrimitiveElement;

constexpr auto byKey = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

/// What the style draws by such an option, on one colour.
QImage drawn(Element element, QStyleOption& option, const QColor& ground, QStyle::State states,
             const QWidget* widget, const QRect& place = {4, 4, 16, 16},
             const QStyle& style = ReadableStyle("fusion")) {
    QImage image(24, 24, QImage::Format_RGB32);
    image.fill(ground);
    option.rect = place;
    option.state = QStyle::State_Enabled | QStyle::State_Active | states;
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter, widget);
    return image;
}

/// Where two pictures clearly differ.
QRect changedPart(const QImage& one, const QImage& other) {
    QRect part;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const bool isChanged = contrast(one.pixelColor(x, y), other.pixelColor(x, y)) > 1.3;
            part |= isChanged ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return part;
}

/// The contrast with the ground along a line from the left edge to the middle, at its best.
double edgeOf(Element element, QStyleOption& option) {
    const QColor ground = option.palette.color(QPalette::Window);
    const QImage image = drawn(element, option, ground, {}, nullptr);
    double best = 1;
    for (int x = 0; x < 7; ++x) {
        best = std::max(best, contrast(image.pixelColor(x, image.height() / 2), ground));
    }
    return best;
}

/// The contrast of what shows that something has the keyboard with what is there else, at its best.
double focusOf(Element element, QStyleOption& option, const QColor& ground,
               const QWidget* widget = nullptr) {
    const QImage before = drawn(element, option, ground, {}, widget);
    const QImage after = drawn(element, option, ground, byKey, widget);
    double best = 1;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            best = std::max(best, contrast(after.pixelColor(x, y), before.pixelColor(x, y)));
        }
    }
    return best;
}

std::vector<QPalette> lightAndDark() {
    std::vector<QPalette> palettes = {QColor(239, 240, 241), QColor(42, 46, 50)};
    for (QPalette& palette : palettes) {
        palette.setColor(QPalette::Highlight, QColor(20, 120, 175));
    }
    palettes[1].setColor(QPalette::Base, QColor(27, 30, 32));
    return palettes;
}

}  // namespace

TEST(ReadableStyle, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.005);
    EXPECT_NEAR(contrast(QColor(0, 0, 255), Qt::white), 8.59, 0.005);
    EXPECT_NEAR(contrast(Qt::white, QColor(255, 0, 0)), 4.00, 0.005);
    EXPECT_NEAR(contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.005);
}

TEST(ReadableStyle, ColoursBecomeNoOtherThanTheyMust) {
    const QColor navy(0, 0, 128), pale(250, 240, 200), grey(128, 128, 128), red(200, 0, 0);
    for (const auto& [ground, colour] : {std::pair(QColor(Qt::white), pale),
                                         {QColor(Qt::black), navy},
                                         {grey, red},
                                         {QColor(Qt::white), grey.lighter(110)},
                                         {QColor(Qt::black), QColor(Qt::black)}}) {
        const QColor readable = readableOn(ground, colour);
        const double reached = contrast(readable, ground);
        EXPECT_TRUE(reached >= readableContrast && reached < 5.1) << reached;
        EXPECT_NEAR(std::max(readable.hslHueF(), 0.0F), std::max(colour.hslHueF(), 0.0F), 0.02);
        EXPECT_EQ(readableOn(ground, readable), readable);
        EXPECT_GE(contrast(readableOn(ground, colour, 3), ground), 3);
    }
    EXPECT_EQ(readableOn(Qt::white, red), red);
    QPalette palette(QColor(240, 240, 240));
    palette.setColor(QPalette::Highlight, QColor(0, 0, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(130, 130, 130));
    palette.setColor(QPalette::Active, QPalette::WindowText, QColor(130, 130, 130));
    const QPalette colours = readableColours(palette);
    EXPECT_TRUE(colours.isBrushSet(QPalette::Active, QPalette::WindowText));
    EXPECT_FALSE(colours.isBrushSet(QPalette::Active, QPalette::Highlight)) << "it was readable";
    EXPECT_FALSE(colours.isBrushSet(QPalette::Disabled, QPalette::ButtonText)) << "it is seen";
    EXPECT_EQ(warningColour(palette), red);
}

TEST(ReadableStyle, EdgesAreSeenInLightAndDarkColours) {
    ReadableStyle style("fusion");
    constexpr double soft = 0.85;  // where they are round
    for (const QPalette& palette : lightAndDark()) {
        QStyleOptionButton mark;
        mark.palette = palette;
        EXPECT_GE(edgeOf(QStyle::PE_IndicatorRadioButton, mark), soft * visibleContrast);
        EXPECT_GE(edgeOf(QStyle::PE_IndicatorCheckBox, mark), soft * visibleContrast);
        QStyleOptionFrame frame;
        frame.palette = palette;
        frame.lineWidth = 1;
        EXPECT_GE(edgeOf(QStyle::PE_FrameLineEdit, frame), soft * edgeContrast);
        EXPECT_GE(edgeOf(QStyle::PE_Frame, frame), soft * edgeContrast);

        QFrame rule;
        rule.setFrameShape(QFrame::HLine);
        rule.setStyle(&style);
        rule.setPalette(palette);
        rule.resize(20, 3);
        const QColor ground = palette.color(QPalette::Window);
        EXPECT_GE(contrast(rule.grab().toImage().pixelColor(10, 1), ground), soft * edgeContrast);

        QMenu menu;
        menu.setStyle(&style);
        menu.setPalette(palette);
        menu.addAction("Above");
        QAction* const separator = menu.addSeparator();
        menu.addAction("Below");
        menu.resize(menu.sizeHint());
        const QPoint line = menu.actionGeometry(separator).center();
        const QImage shown = menu.grab().toImage();
        const auto at = [&shown](QPoint place) { return shown.pixelColor(place); };
        EXPECT_GE(contrast(at(line), at(line + QPoint(0, 2))), edgeContrast);
        EXPECT_GE(contrast(at({0, line.y()}), at(line + QPoint(0, 2))), edgeContrast);
        const QRect entry = menu.actionGeometry(separator);
        const QRect row(entry.left(), line.y(), entry.width(), 1);
        EXPECT_EQ(changedPart(shown.copy(row), shown.copy(row.translated(0, 2))),
                  QRect(5, 0, entry.width() - 10, 1));
    }
}

TEST(ReadableStyle, WhatHasTheKeyboardIsMarkedInLightAndDarkColours) {
    const QTreeWidget list;
    for (const QPalette& palette : lightAndDark()) {
        const QColor window = palette.color(QPalette::Window);
        QStyleOptionButton button;
        button.palette = palette;
        EXPECT_GE(focusOf(QStyle::PE_PanelButtonCommand, button, window), 2.4);
        QStyleOptionFrame frame;
        frame.palette = palette;
        frame.lineWidth = 1;
        EXPECT_GE(focusOf(QStyle::PE_FrameLineEdit, frame, window), 1.6) << "of an edge";
        EXPECT_GE(focusOf(QStyle::PE_Frame, frame, window, &list), 1.6) << "of an edge";
        QStyleOptionFocusRect focus;
        focus.palette = palette;
        EXPECT_GE(focusOf(QStyle::PE_FrameFocusRect, focus, window), visibleContrast);
        // On a button that is down.
        const QColor down = palette.color(QPalette::Highlight);
        focus.palette.setColor(QPalette::Button, down);
        EXPECT_GE(focusOf(QStyle::PE_FrameFocusRect, focus, down), visibleContrast);
    }
}

TEST(ReadableStyle, MarksWhatHasTheKeyboardAroundWhatIsSmall) {
    QStyleOptionFocusRect focus;
    const auto marked = [&focus](const QRect& place) {
        return changedPart(
            drawn(QStyle::PE_FrameFocusRect, focus, Qt::white, {}, nullptr, place),
            drawn(QStyle::PE_FrameFocusRect, focus, Qt::white, byKey, nullptr, place));
    };
    EXPECT_EQ(marked({4, 4, 16, 16}), QRect(4, 4, 16, 16));
    EXPECT_EQ(marked({4, 4, 10, 16}), QRect(4, 4, 10, 16));
    EXPECT_EQ(marked({7, 5, 9, 14}), QRect(4, 2, 15, 20));
    focus.palette.setColor(QPalette::Base, Qt::white);
    EXPECT_TRUE(changedPart(drawn(QStyle::PE_FrameFocusRect, focus, Qt::white, {}, nullptr),
                            drawn(QStyle::PE_FrameFocusRect, focus, Qt::white,
                                  QStyle::State_HasFocus, nullptr))
                    .isNull())
        << "the mouse needs no mark";
}

TEST(ReadableStyle, ArrowsAreAsLargeAsTheirWindowIsZoomed) {
    const Scale scale(1, 1);
    const ZoomedStyle style(scale, nullptr);
    QStyleOption option;
    option.palette = QPalette(Qt::white);
    const auto arrow = [&](Element element, double zoom, const QRect& place) {
        scale.setZoom(zoom);
        const QImage image = drawn(element, option, Qt::white, {}, nullptr, place, style);
        QImage ground = image;
        ground.fill(Qt::white);
        return std::pair(image, changedPart(image, ground));
    };
    const QRect room(0, 0, 24, 24);
    const auto up = arrow(QStyle::PE_IndicatorArrowUp, 2, room);
    EXPECT_TRUE(QRect(4, 8, 16, 8).contains(up.second));
    EXPECT_EQ(up.second, arrow(QStyle::PE_IndicatorArrowUp, 2, room).second);
    EXPECT_GE(up.second.width(), 14);
    EXPECT_GE(up.second.height(), 6);
    EXPECT_EQ(up.first.transformed(QTransform().rotate(180)),
              arrow(QStyle::PE_IndicatorArrowDown, 2, room).first);
    EXPECT_LT(contrast(up.first.pixelColor(5, 9), Qt::white), 1.1) << "the corner is above";
    EXPECT_GT(contrast(up.first.pixelColor(12, 13), Qt::white), visibleContrast);
    for (const auto& [element, turn] :
         {std::pair(QStyle::PE_IndicatorArrowLeft, -90), {QStyle::PE_IndicatorArrowRight, 90}}) {
        const QRect turned = QTransform()
                                 .translate(12, 12)
                                 .rotate(turn)
                                 .translate(-12, -12)
                                 .mapRect(QRectF(up.second))
                                 .toRect();
        EXPECT_EQ(arrow(element, 2, room).second, turned);
    }
    const QRect inLittle = arrow(QStyle::PE_IndicatorArrowUp, 3, {7, 7, 10, 10}).second;
    EXPECT_TRUE(QRect(7, 9, 10, 6).contains(inLittle) && inLittle.width() >= 8);
    EXPECT_LT(arrow(QStyle::PE_IndicatorArrowUp, 1, room).second.width(), 10);
}

TEST(ReadableStyle, StandsAroundTheStyleOfQtAloneAndKeepsItsName) {
    const QString usual = styleName();
    QApplication::setStyle("windows");
    useReadableStyle();
    EXPECT_EQ(dynamic_cast<ReadableStyle*>(QApplication::style()), nullptr);
    QApplication::setStyle("fusion");
    useReadableStyle();
    EXPECT_NE(dynamic_cast<ReadableStyle*>(QApplication::style()), nullptr);
    EXPECT_EQ(styleName(), "fusion");
    QApplication::setStyle(usual);
}
