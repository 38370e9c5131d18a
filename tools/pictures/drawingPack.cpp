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

std::string indexLine(const Raster::Key& key, const Drawing& drawing, std::size_t length) {
    std::ostringstream line;
    line << std::hex << std::setfill('0') << std::setw(16) << key[0] << std::setw(16) << key[1]
         << std::dec << ' ' << drawing.width << ' ' << drawing.height << ' ' << length << '\n';
    return line.str();
}

}  // namespace

std::string drawingPack(const std::vector<std::reference_wrapper<const PictureSet>>& sets) {
    std::map<Raster::Key, const Drawing*> drawings;
    for (const PictureSet& set : sets) {
        for (const auto& [name, file] : set) {
            if (file.drawing) {
                drawings.try_emplace(QtPictureFiles().read(file.bytes).key(), &*file.drawing);
            }
        }
    }
    std::string index = "FleetWright drawings 1\n" + std::to_string(drawings.size()) + '\n';
    std::string rest;
    for (const auto& [key, drawing] : drawings) {
        const std::string lines = drawingLines(*drawing);
        index += indexLine(key, *drawing, lines.size());
        rest += lines;
    }
    return index + rest;
}

}  // namespace fleetwright
