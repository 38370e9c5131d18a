#pragma once

#include <QProxyStyle>
#include <QString>

namespace fleetwright {

/// The name of the style that draws the program, also where another one stands around it.
QString styleName();

/// A style of Qt by its name. If it is Qt's own, "fusion", what it draws in shades darker than the
/// window can be seen in dark colours, too: the edges of marks, boxes, frames and menus, and the
/// lines in these. And so can the mark of what has the keyboard, also on a button that is down.
class ReadableStyle : public QProxyStyle {
public:
    explicit ReadableStyle(const QString& name);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

protected:
    /// Whether the style is that of Qt.
    bool isFusion() const { return m_isFusion; }

private:
    bool m_isFusion;
};

/// Has the program drawn in such a style from now on, if the desktop has none of its own.
void useReadableStyle();

}  // namespace fleetwright
