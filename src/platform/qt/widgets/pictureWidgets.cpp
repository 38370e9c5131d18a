// Picture boxes and lines.

#include "Line.h"
#include "PictureBox.h"
#include "controlWidgets.h"
#include "drawnImage.h"
#include "pictureIcon.h"
#include "widgetTools.h"

#include <QFrame>
#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace fleetwright {

namespace {

/// Shows a picture at its own size times the zoom, in the middle of a box that has grown with the
/// desktop's font as well.
class PictureWidget : public QFrame {
public:
    PictureWidget(const PictureBox& box, QWidget* parent, const Scale& scale)
        : QFrame(parent), m_box(box), m_scale(scale) {
        if (!box.design().picture.empty()) {
            m_face = faceIcon(box.design().picture, scale);
        }
    }

    void updateRows(int first, int end) {
        update(onScreen({0, first, m_box.picture().width(), end - first}).toAlignedRect());
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QFrame::paintEvent(event);
        if (!m_face.isNull()) {
            QPainter painter(this);
            m_face.paint(&painter, contentsRect());
            return;
        }
        if (m_box.drawing() != nullptr) {
            QPainter(this).drawImage(contentsRect(), drawn());
            return;
        }
        // Of a large picture only what is to be seen anew is made ready for the screen.
        const QRect part = inPicture(event->rect());
        if (!part.isEmpty()) {
            QPainter painter(this);
            const double fine = m_scale.zoom() * devicePixelRatio();
            painter.setRenderHint(QPainter::SmoothPixmapTransform, fine != std::floor(fine));
            painter.drawImage(onScreen(part), toImage(m_box.picture(), part));
        }
    }

private:
    QImage drawn() const {
        const QSizeF pixels = QSizeF(contentsRect().size()) * devicePixelRatio();
        return inkOf(*m_box.drawing(), pixels.toSize(), palette().color(QPalette::WindowText));
    }

    QPoint pictureCorner() const {
        QRect place(0, 0, m_scale.zoomed(m_box.picture().width()),
                    m_scale.zoomed(m_box.picture().height()));
        place.moveCenter(contentsRect().center());
        return place.topLeft();
    }

    /// Where a part of the picture is to be seen.
    QRectF onScreen(const QRect& part) const {
        const double zoom = m_scale.zoom();
        return {pictureCorner() + QPointF(part.topLeft()) * zoom, QSizeF(part.size()) * zoom};
    }

    /// What of the picture is to be seen there, and the pixels beside, into which it may be
    /// smoothed.
    QRect inPicture(const QRect& part) const {
        const double zoom = m_scale.zoom();
        const QRectF exact(QPointF(part.topLeft() - pictureCorner()) / zoom,
                           QSizeF(part.size()) / zoom);
        return exact.toAlignedRect()
            .adjusted(-1, -1, 1, 1)
            .intersected({0, 0, m_box.picture().width(), m_box.picture().height()});
    }

    const PictureBox& m_box;
    Scale m_scale;
    QIcon m_face;
};

}  // namespace

QWidget* makeWidget(PictureBox& box, QWidget* parent, const Scale& scale) {
    auto* const widget = new PictureWidget(box, parent, scale);
    prepare(widget, box, scale);
    if (box.design().isFramed) {
        widget->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }
    box.setScreenTwipsPerPixel(scale.twips(scale.zoom()));
    keepInStep(widget, box, [widget] { widget->update(); });
    keepAttached(widget, box.Painted.connect(
                             [widget](int first, int end) { widget->updateRows(first, end); }));
    return widget;
}

QWidget* makeWidget(Line& line, QWidget* parent, const Scale& scale) {
    auto* const widget = new QFrame(parent);
    prepare(widget, line, scale);
    widget->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return widget;
}

}  // namespace fleetwright
