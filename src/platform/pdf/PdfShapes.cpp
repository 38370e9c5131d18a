#include "PdfShapes.h"

#include "PdfObjects.h"
#include "Raster.h"
#include "pathSteps.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <variant>

namespace fleetwright {

namespace {

void add(std::string& content, std::initializer_list<double> lengths, std::string_view what) {
    for (const double length : lengths) {
        (content += pdfLength(length)) += ' ';
    }
    (content += what) += '\n';
}

void addRectangle(std::string& content, const Box& box) {
    add(content, {box.x, box.y, box.width, box.height}, "re");
}

/// A rectangle whose corners are quarters of a circle, as near as curves come to one.
void addRoundRectangle(std::string& content, const Box& box, double radius) {
    constexpr double handle = 0.5523;
    const double left = box.x, top = box.y, right = box.x + box.width, bottom = box.y + box.height;
    const double shy = radius * (1 - handle);
    add(content, {left + radius, top}, "m");
    add(content, {right - radius, top}, "l");
    add(content, {right - shy, top, right, top + shy, right, top + radius}, "c");
    add(content, {right, bottom - radius}, "l");
    add(content, {right, bottom - shy, right - shy, bottom, right - radius, bottom}, "c");
    add(content, {left + radius, bottom}, "l");
    add(content, {left + shy, bottom, left, bottom - shy, left, bottom - radius}, "c");
    add(content, {left, top + radius}, "l");
    add(content, {left, top + shy, left + shy, top, left + radius, top}, "c");
    content += "h\n";
}

/// Fills and strokes the path in front of it.
std::string_view paintOperator(bool isFilled, bool isStroked, bool isEvenOdd) {
    if (!isFilled) {
        return isStroked ? "S\n" : "n\n";
    }
    if (isStroked) {
        return isEvenOdd ? "B*\n" : "B\n";
    }
    return isEvenOdd ? "f*\n" : "f\n";
}

void addPath(std::string& content, std::string_view path) {
    while (const std::optional<PathStep> step = takePathStep(path)) {
        const auto& [first, second, third] = step->points;
        if (step->command == 'M') {
            add(content, {first.x, first.y}, "m");
        } else if (step->command == 'L') {
            add(content, {first.x, first.y}, "l");
        } else if (step->command == 'C') {
            add(content, {first.x, first.y, second.x, second.y, third.x, third.y}, "c");
        } else {
            content += "h\n";
        }
    }
}

void addShape(std::string& content, const DrawnShape& shape) {
    if (shape.fill) {
        content += pdfColour(*shape.fill) + "rg\n";
    }
    if (shape.stroke) {
        content += pdfColour(*shape.stroke) + "RG\n" + pdfLength(shape.strokeWidth) + " w " +
                   std::to_string(static_cast<int>(shape.cap)) + " J " +
                   std::to_string(static_cast<int>(shape.join)) + " j\n";
    }
    addPath(content, shape.path);
    content += paintOperator(shape.fill.has_value(), shape.stroke.has_value(), shape.isEvenOdd);
}

/// Shows a picture so that its lengths become those of the page.
std::string showing(const std::string& name, double scaleX, double scaleY, double x, double y) {
    return "q\n" + pdfFactor(scaleX) + " 0 0 " + pdfFactor(scaleY) + ' ' + pdfLength(x) + ' ' +
           pdfLength(y) + " cm\n/" + name + " Do\nQ\n";
}

}  // namespace

std::string PdfShapes::contentOf(const Page& page) {
    // What only one page had, such as the code of its design, is nothing that a further one shows.
    std::erase_if(m_known, [](const auto& known) { return known.second.picture.expired(); });
    m_onPage.clear();
    std::string content;
    for (const PageItem& item : page.items) {
        std::visit([&](const auto& shown) { put(content, shown); }, item);
    }
    return content;
}

std::string PdfShapes::pictures() const {
    std::string pictures;
    for (const std::size_t object : m_onPage) {
        pictures += "/X" + std::to_string(object) + ' ' + pdfReference(object) + ' ';
    }
    return pictures.empty() ? pictures : "/XObject << " + pictures + ">>";
}

void PdfShapes::put(std::string&, const PageText&) {}

void PdfShapes::put(std::string& content, const PageLine& line) {
    content += pdfColour(line.colour) + "RG\n" + pdfLength(line.width) + " w\n";
    add(content, {line.x1, line.y1}, "m");
    add(content, {line.x2, line.y2}, "l");
    content += "S\n";
}

void PdfShapes::put(std::string& content, const PageRectangle& rectangle) {
    if (rectangle.fill) {
        content += pdfColour(*rectangle.fill) + "rg\n";
    }
    if (rectangle.stroke) {
        content +=
            pdfColour(*rectangle.stroke) + "RG\n" + pdfLength(rectangle.strokeWidth) + " w\n";
    }
    if (rectangle.radius > 0) {
        addRoundRectangle(content, rectangle.place, rectangle.radius);
    } else {
        addRectangle(content, rectangle.place);
    }
    content += paintOperator(rectangle.fill.has_value(), rectangle.stroke.has_value(), false);
}

void PdfShapes::put(std::string& content, const PagePicture& picture) {
    const Box& place = picture.place;
    const bool isCut = place != picture.clip;
    if (picture.drawing != nullptr) {
        content += "1 g\n";
        addRectangle(content, picture.clip);
        content += "f\n";
    }
    if (isCut) {
        content += "q\n";
        addRectangle(content, picture.clip);
        content += "W n\n";
    }
    if (picture.drawing != nullptr) {
        const std::string name = nameOf(picture.drawing, &PdfShapes::writeDrawing);
        content += showing(name, place.width / picture.drawing->width,
                           place.height / picture.drawing->height, place.x, place.y);
    } else {
        // A picture's first row is the uppermost one, and its height is 1.
        const std::string name = nameOf(picture.raster, &PdfShapes::writeRaster);
        content += showing(name, place.width, -place.height, place.x, place.y + place.height);
    }
    if (isCut) {
        content += "Q\n";
    }
}

template <typename Picture, typename Write>
std::string PdfShapes::nameOf(const std::shared_ptr<const Picture>& picture, Write write) {
    Known& known = m_known[picture.get()];
    if (known.picture.expired()) {
        known = {picture, (this->*write)(*picture)};
    }
    m_onPage.insert(known.object);
    return 'X' + std::to_string(known.object);
}

std::size_t PdfShapes::writeDrawing(const Drawing& drawing) {
    constexpr std::string_view miterLimit = "4 M\n";  // that of SVG
    std::string content(miterLimit), states;
    for (const DrawnShape& shape : drawing.shapes) {
        if (shape.opacity == 1) {
            addShape(content, shape);
            continue;
        }
        const std::string name = "/G" + std::to_string(stateOf(shape.opacity));
        if (states.find(name + ' ') == std::string::npos) {
            states += name + ' ' + pdfReference(stateOf(shape.opacity)) + ' ';
        }
        content += "q\n" + name + " gs\n";
        addShape(content, shape);
        content += "Q\n";
    }
    const std::string resources = states.empty() ? states : "/ExtGState << " + states + ">> ";
    return m_objects.addStream(
        content, "/Type /XObject /Subtype /Form /BBox [0 0 " + std::to_string(drawing.width) + ' ' +
                     std::to_string(drawing.height) + "] /Resources << " + resources + ">>");
}

std::size_t PdfShapes::writeRaster(const Raster& raster) {
    std::string bytes;
    for (int y = 0; y < raster.height(); ++y) {
        for (const std::uint32_t pixel : raster.row(y)) {
            for (const unsigned shift : {16U, 8U, 0U}) {
                bytes += static_cast<char>(pixel >> shift & 0xFFU);
            }
        }
    }
    return m_objects.addStream(bytes, "/Type /XObject /Subtype /Image /Width " +
                                          std::to_string(raster.width()) + " /Height " +
                                          std::to_string(raster.height()) +
                                          " /ColorSpace /DeviceRGB /BitsPerComponent 8");
}

std::size_t PdfShapes::stateOf(double opacity) {
    const auto [state, isNew] = m_states.try_emplace(opacity, 0);
    if (isNew) {
        const std::string value = pdfFactor(opacity);
        state->second = m_objects.add("<< /Type /ExtGState /ca " + value + " /CA " + value + " >>");
    }
    return state->second;
}

}  // namespace fleetwright
