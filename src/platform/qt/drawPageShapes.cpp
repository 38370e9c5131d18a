#include "drawPageShapes.h"

#include "Raster.h"
#include "drawShapes.h"
#include "qtImage.h"

#include <QColor>
#include <QPainter>
#include <QPen>

#include <variant>

namespace fleetwright {

namespace {

QRectF rectInUnits(const Box& box) {
    const QPointF corner(toUnits(box.x), toUnits(box.y));
    return {corner, QPointF(toUnits(box.x + box.width), toUnits(box.y + box.height))};
}

/// Whether what a drawing shows lies within what shows of it.
bool isWithin(const Box& ink, double scale, const PagePicture& picture) {
    constexpr double tolerance = 0.001;
    const double left = picture.place.x + ink.x * scale - picture.clip.x;
    const double top = picture.place.y + ink.y * scale - picture.clip.y;
    return left >= -tolerance && top >= -tolerance &&
           left + ink.width * scale <= picture.clip.width + tolerance &&
           top + ink.height * scale <= picture.clip.height + tolerance;
}

class ShapePainter {
public:
    explicit ShapePainter(QPainter& painter) : m_painter(painter) {
        m_painter.setRenderHints(QPainter::Antialiasing | QPainter::LosslessImageRendering);
    }

    void operator()(const PageText&) const {}

    void operator()(const PageLine& line) const {
        m_painter.setPen(
            QPen(QColor::fromRgb(line.colour), line.width * pageUnits, Qt::SolidLine, Qt::FlatCap));
        m_painter.drawLine(QPointF(toUnits(line.x1), toUnits(line.y1)),
                           QPointF(toUnits(line.x2), toUnits(line.y2)));
    }

    void operator()(const PageRectangle& rectangle) const {
        m_painter.setBrush(rectangle.fill ? QBrush(QColor::fromRgb(*rectangle.fill)) : QBrush());
        m_painter.setPen(rectangle.stroke ? QPen(QColor::fromRgb(*rectangle.stroke),
                                                 rectangle.strokeWidth * pageUnits, Qt::SolidLine,
                                                 Qt::FlatCap, Qt::MiterJoin)
                                          : QPen(Qt::NoPen));
        if (rectangle.radius > 0) {
            const double radius = toUnits(rectangle.radius);
            m_painter.drawRoundedRect(rectInUnits(rectangle.place), radius, radius);
        } else {
            m_painter.drawRect(rectInUnits(rectangle.place));
        }
    }

    void operator()(const PagePicture& picture) const {
        const QRectF clip = rectInUnits(picture.clip);
        if (picture.drawing == nullptr) {
            clipped(clip, clip != rectInUnits(picture.place), [&] {
                m_painter.drawImage(rectInUnits(picture.place), toImage(*picture.raster));
            });
            return;
        }
        const Drawing& drawing = *picture.drawing;
        const double scale = picture.place.width / drawing.width;
        m_painter.fillRect(clip, Qt::white);
        clipped(clip, !isWithin(drawing.ink, scale, picture),
                [&] { drawShapes(m_painter, drawing, picture.place); });
    }

private:
    template <typename Draw>
    void clipped(const QRectF& clip, bool isNeeded, const Draw& draw) const {
        if (isNeeded) {
            m_painter.save();
            m_painter.setClipRect(clip);
        }
        draw();
        if (isNeeded) {
            m_painter.restore();
        }
    }

    QPainter& m_painter;
};

}  // namespace

void drawPageShapes(QPainter& painter, const Page& page) {
    const ShapePainter draw(painter);
    for (const PageItem& item : page.items) {
        std::visit(draw, item);
    }
}

}  // namespace fleetwright
