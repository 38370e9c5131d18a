#include "programIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace fleetwright {

namespace {

constexpr std::array<int, 6> sides = {16, 24, 32, 48, 64, 256};

class ProgramIconEngine : public QIconEngine {
public:
    QIconEngine* clone() const override { return new ProgramIconEngine; }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    /// The next larger one of the drawn sizes, in the size that is wanted.
    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        const int wanted = std::min(size.width(), size.height());
        const auto* const found = std::lower_bound(sides.begin(), sides.end(), wanted);
        const int side = found == sides.end() ? sides.back() : *found;
        const QPixmap pixmap(QString(":/pictures/icon-%1.png").arg(side));
        return side == wanted || pixmap.isNull()
                   ? pixmap
                   : pixmap.scaled(wanted, wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> all;
        for (const int side : sides) {
            all.append({side, side});
        }
        return all;
    }
};

}  // namespace

QIcon programIcon() {
    return QIcon(new ProgramIconEngine);
}

}  // namespace fleetwright
