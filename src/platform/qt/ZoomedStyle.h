#pragma once

#include "ReadableStyle.h"
#include "Scale.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyleOption>

#include <algorithm>

namespace fleetwright {

/// The desktop's style, with what it draws itself (marks of buttons, scroll bars, branches) as
/// large as a window is zoomed.
class ZoomedStyle : public ReadableStyle {
public:
    ZoomedStyle(const Scale& scale, QObject* parent) : ReadableStyle(styleName()), m_scale(scale) {
        setParent(parent);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        const int pixels = ReadableStyle::pixelMetric(metric, option, widget);
        switch (metric) {
        case PM_CheckBoxLabelSpacing:
        case PM_ExclusiveIndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_IndicatorHeight:
        case PM_IndicatorWidth:
        case PM_RadioButtonLabelSpacing:
        case PM_ScrollBarExtent:
        case PM_SliderControlThickness:
        case PM_SliderLength:
        case PM_SliderThickness:
        case PM_TreeViewIndentation:
            return m_scale.zoomed(pixels);
        default:
            return pixels;
        }
    }

    /// Qt's style would draw arrows on buttons and in trees at one size.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const bool isArrow = element == PE_IndicatorArrowUp || element == PE_IndicatorArrowDown ||
                             element == PE_IndicatorArrowLeft || element == PE_IndicatorArrowRight;
        if (!isFusion() || !isArrow || m_scale.zoom() <= 1) {
            ReadableStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        constexpr double usual = 4;  // from the middle to a corner, in pixels
        const QRect& room = option->rect;
        const double most = std::min(room.width(), room.height()) / 2.0;
        const double half = std::min(usual * m_scale.zoom(), most);
        const QPolygonF up({{-half, half / 2}, {half, half / 2}, {0, -half / 2}});
        const int turn = element == PE_IndicatorArrowUp     ? 0
                         : element == PE_IndicatorArrowDown ? 180
                         : element == PE_IndicatorArrowLeft ? -90
                                                            : 90;
        QColor colour = option->palette.color(QPalette::WindowText);
        colour.setAlpha(160);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(room).center());
        painter->rotate(turn);
        painter->setPen(Qt::NoPen);
        painter->setBrush(colour);
        painter->drawPolygon(up);
        painter->restore();
    }

private:
    Scale m_scale;
};

}  // namespace fleetwright
