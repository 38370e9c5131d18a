// Picture files of all kinds, of which all but GIF are read with Qt. An input is a file's bytes;
// they also make a GIF file, for a look at it by Qt, too.

#include "Choices.h"
#include "Error.h"
#include "QtPictureFiles.h"
#include "TemporaryFolder.h"
#include "bmpFile.h"
#include "gifPicture.h"
#include "qtImage.h"
#include "require.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>

#include <fcntl.h>
#include <gif_lib.h>
#include <unistd.h>

using namespace fleetwright;

namespace {

/// The picture that is read; none, and nothing printed, if it is refused.
Raster readQuietly(const TemporaryFolder& folder, const std::function<Raster()>& read) {
    const int before = dup(STDERR_FILENO);
    const int file = open((folder.path() / "said").c_str(), O_CREAT | O_TRUNC | O_WRONLY, S_IRWXU);
    require(before >= 0 && file >= 0, "what is printed can be kept out of sight");
    dup2(file, STDERR_FILENO);
    close(file);
    Raster picture;
    try {
        picture = read();
    } catch (const Error& error) {
        require(error.what() != std::string(), "a refusal says why");
    }
    dup2(before, STDERR_FILENO);
    close(before);
    requireSame(folder.read("said"), "", "no library prints on standard error");
    return picture;
}

/// A GIF file that keeps to the rules, odd as it may be.
std::string gifFile(Choices& choices) {
    std::string bytes;
    const auto append = [](GifFileType* file, const GifByteType* data, int size) {
        static_cast<std::string*>(file->UserData)
            ->append(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size));
        return size;
    };
    GifFileType* const gif = EGifOpen(&bytes, append, nullptr);
    constexpr GifColorType colours[] = {{0xFF, 0, 0}, {0, 0xFF, 0}, {0, 0, 0xFF}, {1, 2, 3}};
    ColorMapObject* const map = GifMakeMapObject(4, colours);
    const bool isGlobal = choices.oneIn(2);
    const int screenHeight = choices.below(20);
    EGifPutScreenDesc(gif, choices.below(20), screenHeight, 2, choices.below(5),
                      isGlobal ? map : nullptr);
    if (choices.oneIn(2)) {
        const GifByteType seeThrough[] = {1, 0, 0, static_cast<GifByteType>(choices.below(5))};
        EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, sizeof seeThrough, seeThrough);
    }
    const int width = 1 + choices.below(12), height = 1 + choices.below(12);
    const int top = choices.below(5);
    // Qt mixes up the rows of low ones, and of those that leave the screen.
    const bool isInterlaced = height > 4 && top + height <= screenHeight && choices.oneIn(2);
    EGifPutImageDesc(gif, choices.below(5), top, width, height, isInterlaced,
                     isGlobal ? nullptr : map);
    for (int i = width * height; i > 0; --i) {
        EGifPutPixel(gif, static_cast<GifPixelType>(choices.below(4)));
    }
    EGifCloseFile(gif, nullptr);
    GifFreeMapObject(map);
    return bytes;
}

/// A GIF file must look the same to Qt.
void checkGif(const std::string& bytes) {
    QByteArray copy = QByteArray::fromStdString(bytes);
    QBuffer buffer(&copy);
    const QImage image = QImageReader(&buffer).read();
    require(!image.isNull(), "Qt reads a GIF file");
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, image);
    require(bmpFile(gifPicture(bytes)) == bmpFile(toRaster(paper)),
            "a GIF file looks the same to Qt");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TemporaryFolder folder;
    QImageReader::setAllocationLimit(4);  // megabytes
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    Bytes choices({data, size});
    checkGif(gifFile(choices));
    QByteArray copy = QByteArray::fromStdString(bytes);
    QBuffer buffer(&copy);
    QImageReader reader(&buffer);
    QtPictureFiles files;
    const std::string file = folder.write("picture", bytes);
    const Raster picture = readQuietly(folder, [&] { return files.load(file); });
    if (picture.isEmpty()) {
        return 0;
    }
    const QSize stated = reader.size();  // of a bitmap whose first row comes first, below 0
    require(stated.width() == picture.width() && std::abs(stated.height()) == picture.height(),
            "a picture has the size that its file states");
    for (const char* const format : {"bmp", "png"}) {
        folder.write("picture", files.encode(picture, format));
        require(bmpFile(files.load(file)) == bmpFile(picture), "what was encoded comes back");
    }
    return 0;
}
