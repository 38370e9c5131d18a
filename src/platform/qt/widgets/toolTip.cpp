#include "widgetTools.h"

#include <QTextBoundaryFinder>
#include <QTextDocument>

namespace fleetwright {

namespace {

/// A line with breaks where its writing may be broken.
QString broken(const QString& line) {
    constexpr qsizetype most = 60;
    if (line.size() <= most) {
        return line;
    }
    QString text;
    qsizetype start = 0, end = 0;  // of what fits
    QTextBoundaryFinder places(QTextBoundaryFinder::Line, line);
    for (qsizetype next = places.toNextBoundary(); next != -1; next = places.toNextBoundary()) {
        if (next - start > most && end > start) {
            text += line.mid(start, end - start) + '\n';
            start = end;
        }
        end = next;
    }
    return text + line.mid(start);
}

}  // namespace

QString toToolTip(const std::string& text) {
    QStringList lines;
    for (const QString& line : toShown(text).split('\n')) {
        lines << broken(line);
    }
    const QString shown = lines.join('\n');
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

}  // namespace fleetwright
