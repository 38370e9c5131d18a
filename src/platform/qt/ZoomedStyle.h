#pragma once

#include "Scale.h"

#include <QApplication>
#include <QProxyStyle>

namespace fleetwright {

/// The desktop's style, with what it draws itself (marks of buttons, scroll bars, branches) as
/// large as a window is zoomed.
class ZoomedStyle : public QProxyStyle {
public:
    ZoomedStyle(const Scale& scale, QObject* parent)
        : QProxyStyle(QApplication::style()->name()), m_scale(scale) {
        setParent(parent);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
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

private:
    Scale m_scale;
};

}  // namespace fleetwright
