#include "svgFile.h"

#include "PictureFiles.h"
#include "Raster.h"
#include "base64.h"
#include "svgText.h"

#include <cstddef>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

namespace fleetwright {

namespace {

constexpr double pageGap = 6;  // millimetres between pages

class SvgWriter {
public:
    SvgWriter(const PageDocument& document, PictureEncoder& encoder)
        : m_document(document), m_encoder(encoder) {}

    std::string file();

private:
    using BoxKey = std::tuple<double, double, double, double>;

    void write(const PageText& text);
    void write(const PageLine& line);
    void write(const PageRectangle& rectangle);
    void write(const PagePicture& picture);
    void writePage(const Page& page, std::size_t index);
    std::string head(double height) const;
    std::string nameOf(const PagePicture& picture);
    void defineDrawing(const std::string& name, const Drawing& drawing);
    void defineRaster(const std::string& name, const Raster& raster);
    std::string clipOf(const Box& box);

    const PageDocument& m_document;
    PictureEncoder& m_encoder;
    std::string m_definitions;
    std::string m_body;
    std::map<const void*, std::string> m_pictures;  // names of definitions
    std::map<BoxKey, std::string> m_clips;
};

std::string boxAttributes(const Box& box) {
    return attribute("x", box.x) + attribute("y", box.y) + attribute("width", box.width) +
           attribute("height", box.height);
}

std::string paint(const char* name, const std::optional<std::uint32_t>& colour) {
    return attribute(name, colour ? svgColour(*colour) : "none");
}

std::string strokeAttributes(const DrawnShape& shape) {
    static constexpr const char* caps[] = {"butt", "round", "square"};
    static constexpr const char* joins[] = {"miter", "round", "bevel"};
    std::string text = paint("stroke", shape.stroke);
    if (shape.strokeWidth != 1) {
        text += attribute("stroke-width", shape.strokeWidth);
    }
    if (shape.cap != DrawnShape::Cap::Flat) {
        text += attribute("stroke-linecap", caps[static_cast<int>(shape.cap)]);
    }
    if (shape.join != DrawnShape::Join::Miter) {
        text += attribute("stroke-linejoin", joins[static_cast<int>(shape.join)]);
    }
    return text;
}

std::string shapeElement(const DrawnShape& shape) {
    std::string text = "<path" + attribute("d", svgText(shape.path)) + paint("fill", shape.fill);
    if (shape.fill && shape.isEvenOdd) {
        text += attribute("fill-rule", "evenodd");
    }
    if (shape.stroke) {
        text += strokeAttributes(shape);
    }
    if (shape.opacity != 1) {
        text += attribute("opacity", shape.opacity);
    }
    return text + "/>\n";
}

bool isInside(const Box& inner, const Box& outer) {
    constexpr double hair = 1e-6;
    return inner.x >= outer.x - hair && inner.y >= outer.y - hair &&
           inner.x + inner.width <= outer.x + outer.width + hair &&
           inner.y + inner.height <= outer.y + outer.height + hair;
}

/// A clip path of this box, defined once.
std::string SvgWriter::clipOf(const Box& box) {
    const auto [known, isNew] =
        m_clips.try_emplace({box.x, box.y, box.width, box.height}, std::string());
    if (isNew) {
        known->second = "clip" + std::to_string(m_clips.size());
        m_definitions += "<clipPath" + attribute("id", known->second) + "><rect" +
                         boxAttributes(box) + "/></clipPath>\n";
    }
    return attribute("clip-path", "url(#" + known->second + ')');
}

void SvgWriter::defineDrawing(const std::string& name, const Drawing& drawing) {
    const Box paper = {0, 0, double(drawing.width), double(drawing.height)};
    const std::string clip = isInside(drawing.ink, paper) ? std::string() : clipOf(paper);
    m_definitions += "<g" + attribute("id", name) + clip + "><rect" + boxAttributes(paper) +
                     attribute("fill", "#fff") + "/>\n";
    for (const DrawnShape& shape : drawing.shapes) {
        m_definitions += shapeElement(shape);
    }
    m_definitions += "</g>\n";
}

void SvgWriter::defineRaster(const std::string& name, const Raster& raster) {
    std::string png = toBase64(m_encoder.encode(raster, "png"));
    std::erase(png, '\n');
    m_definitions += "<image" + attribute("id", name) + attribute("width", double(raster.width())) +
                     attribute("height", double(raster.height())) +
                     attribute("preserveAspectRatio", "none") +
                     attribute("style", "image-rendering:pixelated") +
                     attribute("href", "data:image/png;base64," + png) + "/>\n";
}

/// The name of a picture's definition, which is written when it is first asked for.
std::string SvgWriter::nameOf(const PagePicture& picture) {
    const void* const key = picture.drawing ? static_cast<const void*>(picture.drawing.get())
                                            : static_cast<const void*>(picture.raster.get());
    const auto [known, isNew] = m_pictures.try_emplace(key, std::string());
    if (isNew) {
        known->second = "picture" + std::to_string(m_pictures.size());
        if (picture.drawing) {
            defineDrawing(known->second, *picture.drawing);
        } else {
            defineRaster(known->second, *picture.raster);
        }
    }
    return known->second;
}

void SvgWriter::write(const PageText& text) {
    static constexpr const char* anchors[] = {"start", "middle", "end"};
    const std::string words = svgText(text.text);
    if (words.empty()) {
        return;
    }
    m_body += "<text" + attribute("x", text.x) + attribute("y", text.y) +
              attribute("font-size", text.size);
    if (text.font == PageFont::Bold) {
        m_body += attribute("font-weight", "bold");
    }
    if (text.anchor != PageText::Anchor::Start) {
        m_body += attribute("text-anchor", anchors[static_cast<int>(text.anchor)]);
    }
    if (text.colour != 0) {
        m_body += attribute("fill", svgColour(text.colour));
    }
    const double width = textWidth(text.text, text.size, text.font);
    if (width > 0) {
        m_body += attribute("textLength", width) + attribute("lengthAdjust", "spacingAndGlyphs");
    }
    m_body += '>' + words + "</text>\n";
}

void SvgWriter::write(const PageLine& line) {
    m_body += "<line" + attribute("x1", line.x1) + attribute("y1", line.y1) +
              attribute("x2", line.x2) + attribute("y2", line.y2) +
              attribute("stroke", svgColour(line.colour)) + attribute("stroke-width", line.width) +
              "/>\n";
}

void SvgWriter::write(const PageRectangle& rectangle) {
    m_body += "<rect" + boxAttributes(rectangle.place);
    if (rectangle.radius > 0) {
        m_body += attribute("rx", rectangle.radius);
    }
    m_body += paint("fill", rectangle.fill);
    if (rectangle.stroke) {
        m_body +=
            paint("stroke", rectangle.stroke) + attribute("stroke-width", rectangle.strokeWidth);
    }
    m_body += "/>\n";
}

void SvgWriter::write(const PagePicture& picture) {
    const double width = picture.drawing ? picture.drawing->width : picture.raster->width();
    const double height = picture.drawing ? picture.drawing->height : picture.raster->height();
    const bool isWhole = isInside(picture.place, picture.clip);
    if (width <= 0 || height <= 0) {
        return;
    }
    const std::string use =
        "<use" + attribute("href", '#' + nameOf(picture)) +
        attribute("transform", "translate(" + svgNumber(picture.place.x) + ' ' +
                                   svgNumber(picture.place.y) + ") scale(" +
                                   svgNumber(picture.place.width / width) + ' ' +
                                   svgNumber(picture.place.height / height) + ')') +
        "/>";
    m_body += isWhole ? use : "<g" + clipOf(picture.clip) + '>' + use + "</g>";
    m_body += '\n';
}

void SvgWriter::writePage(const Page& page, std::size_t index) {
    const double top = double(index) * (m_document.size.height + pageGap);
    m_body += "<g" + attribute("id", "page" + std::to_string(index + 1)) +
              attribute("transform", "translate(0 " + svgNumber(top) + ')') + ">\n<rect" +
              boxAttributes({0, 0, m_document.size.width, m_document.size.height}) +
              attribute("fill", "#fff");
    if (m_document.pages.size() > 1) {
        m_body += attribute("stroke", "#aaa") + attribute("stroke-width", 0.2);
    }
    m_body += "/>\n";
    for (const PageItem& item : page.items) {
        std::visit([this](const auto& shown) { write(shown); }, item);
    }
    m_body += "</g>\n";
}

std::string SvgWriter::head(double height) const {
    const double width = m_document.size.width;
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
                       attribute("width", svgNumber(width) + "mm") +
                       attribute("height", svgNumber(height) + "mm") +
                       attribute("viewBox", "0 0 " + svgNumber(width) + ' ' + svgNumber(height)) +
                       attribute("xml:lang", svgText(m_document.language)) +
                       attribute("font-family", svgFontFamily) +
                       attribute("xml:space", "preserve") + ">\n";
    text += "<title>" + svgText(m_document.title) + "</title>\n";
    std::string description = m_document.subject;
    if (!m_document.author.empty()) {
        description += (description.empty() ? "by " : ", by ") + m_document.author;
    }
    if (!description.empty()) {
        text += "<desc>" + svgText(description) + "</desc>\n";
    }
    if (!m_document.metadata.empty()) {
        text += "<metadata>" + m_document.metadata + "</metadata>\n";
    }
    return text;
}

std::string SvgWriter::file() {
    for (std::size_t i = 0; i < m_document.pages.size(); ++i) {
        writePage(m_document.pages[i], i);
    }
    const auto count = double(m_document.pages.size());
    const double height = count * m_document.size.height + (count - 1) * pageGap;
    std::string text = head(height);
    if (!m_definitions.empty()) {
        text += "<defs>\n" + m_definitions + "</defs>\n";
    }
    return text + m_body + "</svg>\n";
}

}  // namespace

std::string svgFile(const PageDocument& document, PictureEncoder& encoder) {
    return SvgWriter(document, encoder).file();
}

}  // namespace fleetwright
