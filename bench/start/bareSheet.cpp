// What the tool is measured against that draws a sheet: as little as giflib and the system need for
// the same file. It is told what to paste where, by the lines of a file:
//
//     size WIDTH HEIGHT           of the sheet, white
//     paste X Y FILE              a GIF file at this pixel
//     white X Y WIDTH HEIGHT      a white box at this pixel

#include <gif_lib.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

struct Picture {
    Picture() = default;
    Picture(int ofWidth, int ofHeight)
        : width(ofWidth), height(ofHeight),
          pixels(static_cast<std::size_t>(ofWidth) * static_cast<std::size_t>(ofHeight), 0xFFFFFF) {
    }

    std::uint32_t* row(int y) {
        return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }

    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

Picture decode(const std::string& file) {
    GifFileType* const gif = DGifOpenFileName(file.c_str(), nullptr);
    if (gif == nullptr || DGifSlurp(gif) != GIF_OK) {
        return {};
    }
    const SavedImage& image = gif->SavedImages[0];
    const GifColorType* const colours =
        (image.ImageDesc.ColorMap != nullptr ? image.ImageDesc.ColorMap : gif->SColorMap)->Colors;
    Picture picture(image.ImageDesc.Width, image.ImageDesc.Height);
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        const GifColorType colour = colours[image.RasterBits[i]];
        picture.pixels[i] =
            static_cast<std::uint32_t>(colour.Red << 16 | colour.Green << 8 | colour.Blue);
    }
    DGifCloseFile(gif, nullptr);
    return picture;
}

void paste(Picture& sheet, Picture& picture, int x, int y) {
    const int width = std::min(picture.width, sheet.width - x);
    for (int line = 0; line < picture.height && y + line < sheet.height; ++line) {
        std::copy_n(picture.row(line), width, sheet.row(y + line) + x);
    }
}

Picture drawn(std::istream& lines) {
    Picture sheet;
    std::map<std::string, Picture> pictures;
    int x = 0;
    int y = 0;
    for (std::string what; lines >> what >> x >> y;) {
        if (what == "size") {
            sheet = Picture(x, y);
        } else if (what == "white") {
            int width = 0;
            int height = 0;
            lines >> width >> height;
            Picture white(width, height);
            paste(sheet, white, x, y);
        } else {
            std::string file;
            std::getline(lines >> std::ws, file);
            const auto [known, isNew] = pictures.try_emplace(file);
            if (isNew) {
                known->second = decode(file);
            }
            paste(sheet, known->second, x, y);
        }
    }
    return sheet;
}

template <typename Number>
void append(std::string& bytes, Number number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

std::string bitmap(Picture& sheet) {
    constexpr std::uint32_t headers = 54, infoHeader = 40, pixelsPerMetre = 3937;
    const std::uint32_t line = (static_cast<std::uint32_t>(sheet.width) * 3 + 3) / 4 * 4;
    const std::uint32_t size = line * static_cast<std::uint32_t>(sheet.height);
    std::string bytes = "BM";
    bytes.reserve(headers + size);
    append(bytes, headers + size);
    for (const std::uint32_t number : {0U, headers, infoHeader}) {
        append(bytes, number);
    }
    append(bytes, sheet.width);
    append(bytes, sheet.height);
    append(bytes, std::uint32_t{24} << 16 | 1);
    for (const std::uint32_t number : {0U, size, pixelsPerMetre, pixelsPerMetre, 0U, 0U}) {
        append(bytes, number);
    }
    bytes.resize(headers + size);
    for (int y = 0; y < sheet.height; ++y) {
        char* out = bytes.data() + headers +
                    std::size_t{line} * static_cast<std::uint32_t>(sheet.height - 1 - y);
        for (int x = 0; x < sheet.width; ++x) {
            const std::uint32_t pixel = sheet.row(y)[x];
            for (const unsigned shift : {0U, 8U, 16U}) {
                *out++ = static_cast<char>(pixel >> shift);
            }
        }
    }
    return bytes;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    std::ifstream lines(argv[1]);
    Picture sheet = drawn(lines);
    const std::string bytes = bitmap(sheet);
    const int file = open(argv[2], O_WRONLY | O_CREAT | O_TRUNC, 0666);
    const bool isDone = file >= 0 && write(file, bytes.data(), bytes.size()) == std::ssize(bytes) &&
                        fsync(file) == 0 && close(file) == 0;
    return isDone ? 0 : 1;
}
