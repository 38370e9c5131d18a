#include "drawing.h"

#include "Error.h"

#include <QPainter>
#include <QSvgRenderer>
#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <limits>

namespace fleetwright {

namespace {

void paint(QImage& image, const QByteArray& svg, bool isSmooth) {
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) {
        throw Error("no SVG picture");
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
    renderer.render(&painter, QRectF(image.rect()));
}

using Colour = std::array<int, 3>;

int nearest(const std::vector<Colour>& palette, const Colour& colour) {
    int best = 0;
    int bestDistance = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < palette.size(); ++i) {
        int distance = 0;
        for (std::size_t part = 0; part < colour.size(); ++part) {
            const int difference = palette[i][part] - colour[part];
            distance += difference * difference;
        }
        if (distance < bestDistance) {
            bestDistance = distance;
            best = static_cast<int>(i);
        }
    }
    return best;
}

/// The colours that serve the image best.
std::vector<Colour> paletteOf(const QImage& image) {
    std::array<std::vector<GifByteType>, 3> parts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            parts[0].push_back(static_cast<GifByteType>(qRed(pixel)));
            parts[1].push_back(static_cast<GifByteType>(qGreen(pixel)));
            parts[2].push_back(static_cast<GifByteType>(qBlue(pixel)));
        }
    }
    int count = 256;
    std::vector<GifByteType> indexes(parts[0].size());
    std::array<GifColorType, 256> colours{};
    if (GifQuantizeBuffer(static_cast<unsigned>(image.width()),
                          static_cast<unsigned>(image.height()), &count, parts[0].data(),
                          parts[1].data(), parts[2].data(), indexes.data(),
                          colours.data()) == GIF_ERROR) {
        throw Error("cannot choose 256 colours");
    }
    std::vector<Colour> palette;
    for (int i = 0; i < count; ++i) {
        const GifColorType& colour = colours[static_cast<std::size_t>(i)];
        palette.push_back({colour.Red, colour.Green, colour.Blue});
    }
    return palette;
}

}  // namespace

QImage blankInk(QSize size) {
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    image.fill(0);
    return image;
}

QImage drawInk(const std::vector<QByteArray>& layers, QSize size) {
    constexpr int fine = 8;  // sub-pixels to the pixel, each way
    QImage large(size * fine, QImage::Format_RGB32);
    large.fill(Qt::white);
    for (const QByteArray& layer : layers) {
        paint(large, layer, false);
    }
    QImage ink = blankInk(size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            int dark = 0;
            for (int i = 0; i < fine * fine; ++i) {
                const QRgb pixel = large.pixel(x * fine + i % fine, y * fine + i / fine);
                dark += qGray(pixel) < 128 ? 1 : 0;
            }
            ink.setPixel(x, y, dark > fine * fine / 2 ? 1U : 0U);
        }
    }
    return ink;
}

QImage drawColours(const QByteArray& svg, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    paint(image, svg, true);
    return image.convertToFormat(QImage::Format_ARGB32);
}

QImage inFewColours(const QImage& image) {
    const std::vector<Colour> palette = paletteOf(image);
    QImage result(image.size(), QImage::Format_Indexed8);
    QList<QRgb> table;
    for (const Colour& colour : palette) {
        table.append(qRgb(colour[0], colour[1], colour[2]));
    }
    result.setColorTable(table);
    // The bytes that pad the rows go into BMP files too.
    std::fill_n(result.bits(), result.sizeInBytes(), uchar{0});

    // Error diffusion after Floyd and Steinberg, in sixteenths; else the skies show their steps.
    const auto width = static_cast<std::size_t>(image.width());
    std::vector<Colour> carried(width + 2), below(width + 2);
    for (int y = 0; y < image.height(); ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const QRgb pixel = image.pixel(static_cast<int>(x), y);
            Colour wanted = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
            for (std::size_t part = 0; part < wanted.size(); ++part) {
                wanted[part] = std::clamp(wanted[part] + carried[x + 1][part] / 16, 0, 255);
            }
            const int chosen = nearest(palette, wanted);
            result.setPixel(static_cast<int>(x), y, static_cast<unsigned>(chosen));
            for (std::size_t part = 0; part < wanted.size(); ++part) {
                const int error = wanted[part] - palette[static_cast<std::size_t>(chosen)][part];
                carried[x + 2][part] += 7 * error;
                below[x][part] += 3 * error;
                below[x + 1][part] += 5 * error;
                below[x + 2][part] += error;
            }
        }
        carried.swap(below);
        std::fill(below.begin(), below.end(), Colour{});
    }
    return result;
}

}  // namespace fleetwright
