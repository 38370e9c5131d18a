#include "drawingPack.h"

#include "QtPictureFiles.h"
#include "pathData.h"

#include <iomanip>
#include <sstream>

namespace fleetwright {

namespace {

std::string colourText(const std::optional<std::uint32_t>& colour) {
    std::ostringstream text;
    if (!colour) {
        return "-";
    }
    text << std::hex << std::setfill('0') << std::setw(6) << *colour;
    return text.str();
}

std::string shapeLine(const DrawnShape& shape) {
    constexpr const char* caps[] = {"flat", "round", "square"};
    constexpr const char* joins[] = {"miter", "round", "bevel"};
    return colourText(shape.fill) + ' ' + colourText(shape.stroke) + ' ' +
           shortNumber(shape.strokeWidth) + ' ' + caps[static_cast<int>(shape.cap)] + ' ' +
           joins[static_cast<int>(shape.join)] + ' ' + shortNumber(shape.opacity) + ' ' +
           (shape.isEvenOdd ? "evenodd " : "nonzero ") + shape.path + '\n';
}

std::string drawingLines(const Drawing& drawing) {
    const Box& ink = drawing.ink;
    std::string lines = shortNumber(ink.x) + ' ' + shortNumber(ink.y) + ' ' +
                        shortNumber(ink.width) + ' ' + shortNumber(ink.height) + '\n';
    for (const DrawnShape& shape : drawing.shapes) {
        lines += shapeLine(shape);
    }
    return lines;
}

std::string keyText(const Raster::Key& key) {
    std::ostringstream text;
    text << std::hex << std::setfill('0') << std::setw(16) << key[0] << std::setw(16) << key[1];
    return text.str();
}

std::string indexLine(const Raster::Key& key, const PictureFile& file, std::size_t length) {
    return keyText(key) + ' ' + std::to_string(file.drawing->width) + ' ' +
           std::to_string(file.drawing->height) + ' ' + std::to_string(length) + ' ' +
           keyText(Raster::fileKey(file.bytes)) + '\n';
}

}  // namespace

std::string drawingPack(const std::vector<std::reference_wrapper<const PictureSet>>& sets) {
    std::map<Raster::Key, const PictureFile*> files;
    for (const PictureSet& set : sets) {
        for (const auto& [name, file] : set) {
            if (file.drawing) {
                files.try_emplace(QtPictureFiles().read(file.bytes).key(), &file);
            }
        }
    }
    std::string index = "FleetWright drawings 2\n" + std::to_string(files.size()) + '\n';
    std::string rest;
    for (const auto& [key, file] : files) {
        const std::string lines = drawingLines(*file->drawing);
        index += indexLine(key, *file, lines.size());
        rest += lines;
    }
    return index + rest;
}

}  // namespace fleetwright
