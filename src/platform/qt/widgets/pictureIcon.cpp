#include "pictureIcon.h"

#include "ImageList.h"
#include "qtImage.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include <utility>

namespace fleetwright {

namespace {

class PictureEngine : public QIconEngine {
public:
    PictureEngine(const ImageList& images, std::string key)
        : m_images(images), m_key(std::move(key)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode,
               QIcon::State state) override {
        shown().paint(painter, place, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return shown().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return shown().actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new PictureEngine(*this); }

private:
    const QIcon& shown() {
        if (m_shown.isNull()) {
            m_shown = QIcon(QPixmap::fromImage(toImage(m_images.pictureIfAny(m_key))));
        }
        return m_shown;
    }

    const ImageList& m_images;
    std::string m_key;
    QIcon m_shown;
};

}  // namespace

QIcon pictureIcon(const ImageList& images, const std::string& key) {
    return QIcon(new PictureEngine(images, key));
}

}  // namespace fleetwright
