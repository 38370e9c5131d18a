#include "pictureIcon.h"

#include "Drawing.h"
#include "Error.h"
#include "QtPictureFiles.h"
#include "ReadableStyle.h"
#include "contrast.h"
#include "drawnImage.h"
#include "qtImage.h"
#include "widgetTools.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <optional>
#include <vector>

namespace fleetwright {

namespace {

/// Whether the text of a marked row, and the ground under its picture, are in colours of their own.
/// Some styles mark the text alone, and that of Windows leaves its colour as it is.
bool areMarkedRowsInOtherColours() {
    const QStyle* const style = QApplication::style();
    return style->styleHint(QStyle::SH_ItemView_ShowDecorationSelected) != 0 &&
           styleName() != "windowsvista";
}

class PictureEngine : public QIconEngine {
public:
    /// `face` is a face of the program as it is without a drawing, or null.
    PictureEngine(std::function<Raster()> read, QIcon face, const Scale& scale,
                  QPalette::ColorRole role)
        : m_read(std::move(read)), m_isFace(!face.isNull()), m_plain(std::move(face)),
          m_scale(scale), m_role(role) {}

    QIconEngine* clone() const override { return new PictureEngine(*this); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const double fine = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * fine, mode, state, fine));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         double fine) override {
        const Made wanted{
            size, fine * m_scale.zoom(), mode, state, QApplication::palette().cacheKey(), {}};
        for (const Made& made : m_made) {
            if (made.isFor(wanted)) {
                return made.pixmap;
            }
        }
        constexpr std::size_t most = 4;
        if (m_made.size() == most) {
            m_made.clear();
        }
        m_made.push_back(wanted);
        return m_made.back().pixmap = centred(size, wanted.factor, mode, state);
    }

private:
    /// A pixmap that was made, and for what.
    struct Made {
        QSize size;
        double factor;  ///< pixels of the screen to one of the picture
        QIcon::Mode mode;
        QIcon::State state;
        qint64 palette;
        QPixmap pixmap;

        bool isFor(const Made& other) const {
            return size == other.size && factor == other.factor && mode == other.mode &&
                   state == other.state && palette == other.palette;
        }
    };

    /// The picture in the middle of a pixmap of this size, and no larger.
    QPixmap centred(const QSize& size, double factor, QIcon::Mode mode, QIcon::State state) {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        const QSize own = ownSize();
        if (own.isEmpty() || size.isEmpty()) {
            return pixmap;
        }
        QSize shown = (QSizeF(own) * factor).toSize();
        if (shown.width() > size.width() || shown.height() > size.height()) {
            shown.scale(size, Qt::KeepAspectRatio);
        }
        QRect place(QPoint(), shown);
        place.moveCenter(pixmap.rect().center());
        QPainter(&pixmap).drawPixmap(place, drawn(shown, shown != own, mode, state));
        return pixmap;
    }

    QPixmap drawn(const QSize& size, bool isScaled, QIcon::Mode mode, QIcon::State state) {
        const QPalette palette = QApplication::palette();
        const bool isDark = palette.color(QPalette::Window).lightness() <
                            palette.color(QPalette::WindowText).lightness();
        // A branch that is open is on, too, but looks like any other.
        const bool isMarked = m_isFace ? state == QIcon::On : mode == QIcon::Selected;
        // On light ground the pixels look like the drawing, and no start waits for one.
        const std::shared_ptr<const Drawing> drawing =
            isScaled || (!m_isFace && (isDark || isMarked)) ? m_scale.drawingOf(raster()) : nullptr;
        if (drawing != nullptr && isInk(*drawing)) {
            return QPixmap::fromImage(inkOf(*drawing, size, ink(palette, mode, isMarked)));
        }
        if (drawing != nullptr && isScaled) {
            return QPixmap::fromImage(drawnImage(*drawing, size));
        }
        const QPixmap pixmap =
            plain().pixmap(size, 1.0).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (const QImage image = pixmap.toImage(); m_isFace && image.allGray()) {
            return QPixmap::fromImage(inkOf(image, ink(palette, mode, isMarked)));
        }
        QStyleOption option;
        option.palette = palette;
        return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    }

    QColor ink(const QPalette& palette, QIcon::Mode mode, bool isMarked) const {
        const bool isOther = isMarked && (m_isFace || areMarkedRowsInOtherColours());
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        if (isOther || group == QPalette::Active) {
            return palette.color(group, isOther ? QPalette::HighlightedText : m_role);
        }
        const auto ground = m_role == QPalette::ButtonText ? QPalette::Button : QPalette::Base;
        return readableOn(palette.color(group, ground), palette.color(group, m_role),
                          visibleContrast);
    }

    /// In pixels of the picture.
    QSize ownSize() {
        const QList<QSize> sizes = m_plain.availableSizes();
        return sizes.isEmpty() ? QSize(raster().width(), raster().height()) : sizes.first();
    }

    const Raster& raster() {
        if (!m_raster) {
            try {
                m_raster = m_read();
            } catch (const Error&) {
                m_raster.emplace();
            }
        }
        return *m_raster;
    }

    const QIcon& plain() {
        if (m_plain.isNull()) {
            m_plain = QPixmap::fromImage(toImage(raster()));
        }
        return m_plain;
    }

    std::function<Raster()> m_read;
    std::optional<Raster> m_raster;
    bool m_isFace;
    QIcon m_plain;  // what it looks like without a drawing
    Scale m_scale;
    QPalette::ColorRole m_role;
    std::vector<Made> m_made;
};

}  // namespace

QIcon pictureIcon(std::function<Raster()> read, const Scale& scale, QPalette::ColorRole role) {
    return QIcon(new PictureEngine(std::move(read), {}, scale, role));
}

QIcon faceIcon(const std::string& name, const Scale& scale) {
    return QIcon(new PictureEngine([name] { return QtPictureFiles().builtIn(name + ".png"); },
                                   faceOf(name), scale, QPalette::ButtonText));
}

}  // namespace fleetwright
