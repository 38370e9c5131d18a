#include "QtPages.h"

#include "Error.h"
#include "qtImage.h"

#include <QMarginsF>
#include <QPageSize>

#include <algorithm>

namespace fleetwright {

namespace {

constexpr int pixelsPerInch = 96;
constexpr double margin = 10;  // millimetres

}  // namespace

QtPages::QtPages(Paper paper) {
    m_buffer.open(QIODevice::WriteOnly);
    m_writer.setResolution(pixelsPerInch);
    m_writer.setPageSize(QPageSize(paper == Paper::A4 ? QPageSize::A4 : QPageSize::Letter));
    m_writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
    m_writer.setCreator("FleetWright");
}

void QtPages::add(const Raster& picture) {
    if (m_painter == nullptr) {
        m_painter = std::make_unique<QPainter>(&m_writer);
        m_painter->setRenderHint(QPainter::LosslessImageRendering);
    } else if (!m_writer.newPage()) {
        throw Error("the document has no room for another page");
    }
    const double shrinkage = std::min({1.0, double(m_writer.width()) / picture.width(),
                                       double(m_writer.height()) / picture.height()});
    const double width = picture.width() * shrinkage;
    m_painter->drawImage(
        QRectF((m_writer.width() - width) / 2, 0, width, picture.height() * shrinkage),
        toImage(picture));
}

std::string QtPages::finish() {
    m_painter.reset();
    return m_bytes.toStdString();
}

}  // namespace fleetwright
