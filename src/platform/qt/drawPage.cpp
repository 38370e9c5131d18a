#include "drawPage.h"

#include "drawPageShapes.h"
#include "pageFontFiles.h"

#include <QColor>
#include <QPainter>
#include <QString>
#include <QTransform>

namespace fleetwright {

namespace {

void drawText(QPainter& painter, const PageText& text) {
    double x = startOf(text);
    painter.setPen(QColor::fromRgb(text.colour));
    const QTransform page = painter.transform();
    // Letters of all sizes are those of one font, so that they are looked up once.
    const double scale = toUnits(text.size) / pageFontSize;
    for (const PageRun& run : pageRuns(text.text, text.font)) {
        painter.setFont(pageFont(run.face));
        painter.setTransform(QTransform(scale, 0, 0, scale, toUnits(x), toUnits(text.y)) * page);
        painter.drawText(QPointF(), QString::fromStdString(run.text));
        x += run.width * text.size;
    }
    painter.setTransform(page);
}

}  // namespace

void drawPage(QPainter& painter, const Page& page) {
    drawPageShapes(painter, page);
    painter.setLayoutDirection(Qt::LeftToRight);
    for (const PageItem& item : page.items) {
        if (const auto* const text = std::get_if<PageText>(&item)) {
            drawText(painter, *text);
        }
    }
}

}  // namespace fleetwright
