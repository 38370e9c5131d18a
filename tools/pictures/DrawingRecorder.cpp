#include "DrawingRecorder.h"

#include "Error.h"
#include "gradientBands.h"
#include "pathData.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <cmath>

namespace fleetwright {

namespace {

std::uint32_t rgbOf(const QColor& colour) {
    return colour.rgb() & 0xFFFFFFU;
}

DrawnShape::Cap capOf(const QPen& pen) {
    switch (pen.capStyle()) {
    case Qt::RoundCap:
        return DrawnShape::Cap::Round;
    case Qt::SquareCap:
        return DrawnShape::Cap::Square;
    default:
        return DrawnShape::Cap::Flat;
    }
}

DrawnShape::Join joinOf(const QPen& pen) {
    switch (pen.joinStyle()) {
    case Qt::RoundJoin:
        return DrawnShape::Join::Round;
    case Qt::BevelJoin:
        return DrawnShape::Join::Bevel;
    default:
        return DrawnShape::Join::Miter;
    }
}

/// Whether lines keep one width, whatever their direction.
bool keepsWidths(const QTransform& transform) {
    constexpr double almostNothing = 1e-6;
    const double x = std::hypot(transform.m11(), transform.m12());
    const double y = std::hypot(transform.m21(), transform.m22());
    const double slant = transform.m11() * transform.m21() + transform.m12() * transform.m22();
    return std::abs(x - y) < almostNothing && std::abs(slant) < almostNothing;
}

/// Takes down what is painted.
class RecordingEngine : public QPaintEngine {
public:
    RecordingEngine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    Type type() const override { return User; }
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override { m_hasPixels = true; }
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {
        m_hasPixels = true;
    }

    const std::vector<DrawnShape>& shapes() const { return m_shapes; }
    /// What the shapes cover.
    QRectF ink() const { return m_ink; }
    /// Whether pixels were painted, which are no shapes.
    bool hasPixels() const { return m_hasPixels; }

private:
    QTransform gradientTransform(const QPainterPath& path) const;
    void fill(const QPainterPath& path, const QColor& colour);
    void stroke(const QPainterPath& path, const QPen& pen);

    std::vector<DrawnShape> m_shapes;
    QRectF m_ink;
    bool m_hasPixels = false;
};

void RecordingEngine::drawPath(const QPainterPath& path) {
    const QBrush brush = painter()->brush();
    const QPainterPath area = painter()->combinedTransform().map(path);
    if (const QGradient* const gradient = brush.gradient()) {
        for (const ColourBand& band : gradientBands(area, *gradient, gradientTransform(path))) {
            fill(band.area, band.colour);
        }
    } else if (brush.style() != Qt::NoBrush) {
        fill(area, brush.color());
    }
    if (painter()->pen().style() != Qt::NoPen) {
        stroke(path, painter()->pen());
    }
}

/// What leads from the places of the brush's gradient to pixels.
QTransform RecordingEngine::gradientTransform(const QPainterPath& path) const {
    const QBrush brush = painter()->brush();
    QTransform transform = brush.transform();
    if (brush.gradient()->coordinateMode() != QGradient::LogicalMode) {
        const QRectF box = path.boundingRect();
        transform *= QTransform(box.width(), 0, 0, box.height(), box.x(), box.y());
    }
    return transform * painter()->combinedTransform();
}

void RecordingEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
    QPainterPath path(points[0]);
    for (int i = 1; i < count; ++i) {
        path.lineTo(points[i]);
    }
    if (mode != PolylineMode) {
        path.closeSubpath();
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
    drawPath(path);
}

void RecordingEngine::fill(const QPainterPath& path, const QColor& colour) {
    DrawnShape shape;
    shape.path = pathData(path);
    shape.fill = rgbOf(colour);
    shape.opacity = painter()->opacity() * colour.alphaF();
    shape.isEvenOdd = path.fillRule() == Qt::OddEvenFill;
    m_ink |= path.boundingRect();
    m_shapes.push_back(shape);
}

void RecordingEngine::stroke(const QPainterPath& path, const QPen& pen) {
    const QTransform transform = painter()->combinedTransform();
    const QPainterPath outline = transform.map(QPainterPathStroker(pen).createStroke(path));
    if (pen.style() != Qt::SolidLine || !keepsWidths(transform)) {
        fill(outline, pen.color());
        return;
    }
    DrawnShape shape;
    shape.path = pathData(transform.map(path));
    shape.stroke = rgbOf(pen.color());
    shape.strokeWidth = pen.widthF() * std::sqrt(std::abs(transform.determinant()));
    shape.cap = capOf(pen);
    shape.join = joinOf(pen);
    shape.opacity = painter()->opacity() * pen.color().alphaF();
    m_ink |= outline.boundingRect();
    // What is both filled and stroked is painted in two steps.
    if (!m_shapes.empty() && !m_shapes.back().stroke && m_shapes.back().path == shape.path &&
        m_shapes.back().opacity == 1 && shape.opacity == 1) {
        shape.fill = m_shapes.back().fill;
        shape.isEvenOdd = m_shapes.back().isEvenOdd;
        m_shapes.back() = shape;
    } else {
        m_shapes.push_back(shape);
    }
}

/// What is painted on to be taken down.
class RecordingDevice : public QPaintDevice {
public:
    explicit RecordingDevice(QSize size) : m_size(size) {}

    QPaintEngine* paintEngine() const override { return &m_engine; }
    const RecordingEngine& engine() const { return m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 1;
        }
    }

private:
    QSize m_size;
    mutable RecordingEngine m_engine;
};

}  // namespace

Drawing recordDrawing(const std::vector<QByteArray>& layers, QSize size) {
    RecordingDevice device(size);
    for (const QByteArray& layer : layers) {
        QSvgRenderer renderer(layer);
        if (!renderer.isValid()) {
            throw Error("no SVG picture");
        }
        QPainter painter(&device);
        renderer.render(&painter, QRectF(QPointF(), size));
    }
    const RecordingEngine& recorded = device.engine();
    if (recorded.hasPixels()) {
        throw Error("a picture with pixels in it cannot be drawn by lines and areas");
    }
    const QRectF ink = recorded.ink();
    return {.width = size.width(),
            .height = size.height(),
            .ink = {ink.x(), ink.y(), ink.width(), ink.height()},
            .shapes = recorded.shapes()};
}

}  // namespace fleetwright
