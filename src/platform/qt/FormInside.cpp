#include "FormInside.h"

#include "Form.h"
#include "drawnImage.h"
#include "qtImage.h"

#include <QPainter>

namespace fleetwright {

FormInside::FormInside(const Form& form, const Scale& scale, QWidget* parent)
    : QWidget(parent), m_form(form), m_scale(scale) {}

void FormInside::paintEvent(QPaintEvent*) {
    const Raster& picture = m_form.picture();
    if (!picture.isEmpty()) {
        // Picture and window have grown by the same factor.
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const double factor = double(width()) / picture.width();
        const QRectF place(0, 0, width(), picture.height() * factor);
        const QSize size = (place.size() * devicePixelRatio()).toSize();
        if (size != m_shown.size() || picture.key() != m_key) {
            m_shown = shown(picture, size);
            m_key = picture.key();
        }
        painter.drawImage(place, m_shown);
    }
}

QImage FormInside::shown(const Raster& picture, const QSize& size) const {
    // The pixels do for a little more than their size, and no start waits for a drawing.
    constexpr double muchLarger = 1.25;
    const std::shared_ptr<const Drawing> drawing =
        size.width() < muchLarger * picture.width() ? nullptr : m_scale.drawingOf(picture);
    return drawing == nullptr
               ? toImage(picture).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
               : drawnImage(*drawing, size);
}

}  // namespace fleetwright
