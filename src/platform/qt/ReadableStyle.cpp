#include "ReadableStyle.h"

#include "contrast.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFrame>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace fleetwright {

namespace {

/// A palette by which the style draws edges that can be seen: it makes them `shade` percent darker
/// than the window.
QPalette withEdges(const QPalette& palette, int shade, double least) {
    const QColor window = palette.color(QPalette::Window);
    const QColor drawn = window.darker(shade);
    const QColor seen = readableOn(window, drawn, least);
    QPalette colours = palette;
    if (seen != drawn) {
        colours.setColor(QPalette::Window, seen.lighter(shade));
    }
    return colours;
}

/// Draws something by an option with such a palette.
template <typename Option, typename Draw>
void drawWithEdges(const Option& option, int shade, double least, const Draw& draw) {
    Option changed = option;
    changed.palette = withEdges(option.palette, shade, least);
    draw(&changed);
}

/// A line between things, or around them, on the ground of menus.
QColor menuLine(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base).lighter(108);  // the style's own
    return readableOn(ground, ground, edgeContrast);
}

/// Where the frame around what has the keyboard stands. In buttons it is at some distance from
/// their edges, and on these if they are so small that it would cover what is on them.
QRect focusFrame(const QRect& wanted) {
    constexpr int distance = 3, tooSmall = 10;
    return std::min(wanted.width(), wanted.height()) < tooSmall
               ? wanted.adjusted(-distance, -distance, distance, distance)
               : wanted;
}

/// That frame, which the style only hints at.
void drawFocus(const QStyleOption& option, const QRect& frame, double corner, QPainter& painter) {
    const QPalette& palette = option.palette;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0.5, 0.5);
    // A button that is down has the colour of such marks itself.
    painter.setPen(readableOn(palette.color(QPalette::Button), palette.color(QPalette::Highlight),
                              visibleContrast));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.adjusted(0, 0, -1, -1), corner, corner);
    painter.restore();
}

}  // namespace

QString styleName() {
    const QStyle* style = QApplication::style();
    while (const auto* const proxy = qobject_cast<const QProxyStyle*>(style)) {
        style = proxy->baseStyle();
    }
    return style->name();
}

ReadableStyle::ReadableStyle(const QString& name)
    : QProxyStyle(name), m_isFusion(name.compare("fusion", Qt::CaseInsensitive) == 0) {}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    // The style's own, some of which it makes paler again.
    constexpr int roundShade = 150, squareShade = 127, boxShade = 140, frameShade = 130;
    const auto draw = [&](const QStyleOption* changed) {
        QProxyStyle::drawPrimitive(element, changed, painter, widget);
    };
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (m_isFusion && button != nullptr && element == PE_IndicatorRadioButton) {
        drawWithEdges(*button, roundShade, visibleContrast, draw);
    } else if (m_isFusion && button != nullptr && element == PE_IndicatorCheckBox) {
        drawWithEdges(*button, squareShade, visibleContrast, draw);
    } else if (m_isFusion && frame != nullptr && element == PE_FrameLineEdit) {
        drawWithEdges(*frame, boxShade, edgeContrast, draw);
    } else if (m_isFusion && frame != nullptr && element == PE_Frame) {
        drawWithEdges(*frame, frameShade, edgeContrast, draw);
    } else {
        draw(option);
    }
    if (m_isFusion && element == PE_PanelMenu) {
        painter->setPen(menuLine(option->palette));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
    const bool isFocused = m_isFusion && option->state.testFlag(State_HasFocus);
    const bool isByKey = isFocused && option->state.testFlag(State_KeyboardFocusChange);
    // A list without a selected row would not show at all that it has the keyboard.
    const bool isBox = element == PE_FrameLineEdit ||
                       (element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget));
    if ((isFocused && isBox) ||
        (isByKey && element == PE_PanelButtonCommand && button != nullptr)) {
        drawFocus(*option, option->rect, 2, *painter);
    } else if (isByKey && element == PE_FrameFocusRect && !option->state.testFlag(State_Item)) {
        drawFocus(*option, focusFrame(option->rect), 1, *painter);
    }
}

void ReadableStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const auto draw = [&](const QStyleOption* changed) {
        QProxyStyle::drawControl(element, changed, painter, widget);
    };
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (m_isFusion && frame != nullptr && element == CE_ShapedFrame &&
        frame->frameShape == QFrame::HLine) {
        QStyleOptionFrame changed = *frame;
        const QPalette& colours = frame->palette;
        changed.palette.setColor(QPalette::Dark,
                                 readableOn(colours.color(QPalette::Window),
                                            colours.color(QPalette::Dark), edgeContrast));
        draw(&changed);
    } else {
        draw(option);
    }
    const auto* const entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (m_isFusion && element == CE_MenuItem && entry != nullptr &&
        entry->menuItemType == QStyleOptionMenuItem::Separator && entry->text.isEmpty()) {
        constexpr int inset = 5;
        const int y = entry->rect.center().y();
        painter->setPen(menuLine(entry->palette));
        painter->drawLine(entry->rect.left() + inset, y, entry->rect.right() - inset, y);
    }
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    constexpr int frameShade = 140;
    const auto draw = [&](const QStyleOptionComplex* changed) {
        QProxyStyle::drawComplexControl(control, changed, painter, widget);
    };
    if (const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        m_isFusion && box != nullptr && !box->editable) {  // else it is made of a box for text
        drawWithEdges(*box, frameShade, edgeContrast, draw);
    } else if (const auto* const numbers = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
               m_isFusion && numbers != nullptr) {
        drawWithEdges(*numbers, frameShade, edgeContrast, draw);
    } else {
        draw(option);
    }
}

void useReadableStyle() {
    if (styleName().compare("fusion", Qt::CaseInsensitive) == 0) {
        QApplication::setStyle(new ReadableStyle("fusion"));
    }
}

}  // namespace fleetwright
