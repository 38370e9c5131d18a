// Picture boxes and lines.

#include "Line.h"
#include "PictureBox.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QFrame>
#include <QPainter>

namespace fleetwright {

namespace {

/// Shows a picture at its own size, in the middle of a box that has grown with the desktop's font.
class PictureWidget : public QFrame {
public:
    PictureWidget(const PictureBox& box, QWidget* parent) : QFrame(parent), m_box(box) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QFrame::paintEvent(event);
        if (!m_box.design().picture.empty()) {
            QPainter painter(this);
            faceOf(m_box.design().picture).paint(&painter, contentsRect());
            return;
        }
        const Raster& picture = m_box.picture();
        if (!picture.isEmpty()) {
            QRect place(0, 0, picture.width(), picture.height());
            place.moveCenter(contentsRect().center());
            QPainter(this).drawImage(place, toImage(picture));
        }
    }

private:
    const PictureBox& m_box;
};

}  // namespace

QWidget* makeWidget(PictureBox& box, QWidget* parent, const Scale& scale) {
    auto* const widget = new PictureWidget(box, parent);
    prepare(widget, box, scale);
    if (box.design().isFramed) {
        widget->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }
    keepInStep(widget, box, [widget] { widget->update(); });
    auto painted =
        std::make_shared<Connection>(box.Painted.connect([widget] { widget->update(); }));
    QObject::connect(widget, &QObject::destroyed, [painted] {});
    return widget;
}

QWidget* makeWidget(Line& line, QWidget* parent, const Scale& scale) {
    auto* const widget = new QFrame(parent);
    prepare(widget, line, scale);
    widget->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return widget;
}

}  // namespace fleetwright
