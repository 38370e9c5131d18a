#include "renderedSets.h"

#include <QBuffer>
#include <QImageReader>
#include <gtest/gtest.h>

namespace fleetwright {

const Artwork& projectArtwork() {
    static const Artwork artwork(ARTWORK_FOLDER, PROGRAM_VERSION);
    return artwork;
}

const Catalogue& deliveredCatalogue() {
    static Catalogue catalogue;
    if (catalogue.records().empty()) {
        catalogue.loadWeaps(CATALOGUE_FILE);
    }
    return catalogue;
}

const PictureSet& renderedCatalogue() {
    static const PictureSet set = cataloguePictures(projectArtwork(), deliveredCatalogue());
    return set;
}

const PictureSet& renderedSheet() {
    static const PictureSet set = sheetPictureFiles(projectArtwork());
    return set;
}

const PictureSet& renderedWindow() {
    static const PictureSet set = windowPictures(projectArtwork());
    return set;
}

QImage decode(const std::string& bytes, const char* format) {
    QByteArray data = QByteArray::fromStdString(bytes);
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    EXPECT_EQ(reader.format().toStdString(), format);
    QImage image = reader.read();
    EXPECT_FALSE(image.isNull()) << reader.errorString().toStdString();
    return image;
}

bool isInk(const QImage& image, int x, int y) {
    const QRgb pixel = image.pixel(x, y);
    EXPECT_TRUE(pixel == qRgb(0, 0, 0) || pixel == qRgb(255, 255, 255))
        << "a pixel that is neither black nor white at " << x << ", " << y;
    return pixel == qRgb(0, 0, 0);
}

int inkCount(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += isInk(image, x, y) ? 1 : 0;
        }
    }
    return count;
}

}  // namespace fleetwright
