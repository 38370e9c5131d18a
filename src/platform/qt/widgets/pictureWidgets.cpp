// Picture boxes and lines.

#include "Line.h"
#include "PictureBox.h"
#include "controlWidgets.h"
#include "widgetTools.h"

#include <QFrame>
#include <QPaintEvent>
#include <QPainter>

namespace fleetwright {

namespace {

/// Shows a picture at its own size, in the middle of a box that has grown with the desktop's font.
class PictureWidget : public QFrame {
public:
    PictureWidget(const PictureBox& box, QWidget* parent) : QFrame(parent), m_box(box) {}

    void updateRows(int first, int end) {
        const QRect place = picturePlace();
        update(place.left(), place.top() + first, place.width(), end - first);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QFrame::paintEvent(event);
        if (!m_box.design().picture.empty()) {
            QPainter painter(this);
            faceOf(m_box.design().picture).paint(&painter, contentsRect());
            return;
        }
        // Of a large picture only what is to be seen anew is made ready for the screen.
        const QRect place = picturePlace();
        const QRect part = event->rect().intersected(place).translated(-place.topLeft());
        if (!part.isEmpty()) {
            QPainter(this).drawImage(place.topLeft() + part.topLeft(),
                                     toImage(m_box.picture(), part));
        }
    }

private:
    QRect picturePlace() const {
        QRect place(0, 0, m_box.picture().width(), m_box.picture().height());
        place.moveCenter(contentsRect().center());
        return place;
    }

    const PictureBox& m_box;
};

}  // namespace

QWidget* makeWidget(PictureBox& box, QWidget* parent, const Scale& scale) {
    auto* const widget = new PictureWidget(box, parent);
    prepare(widget, box, scale);
    if (box.design().isFramed) {
        widget->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }
    box.setScreenTwipsPerPixel(scale.twips(1));
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
