#include "svgFile.h"

#include "PictureFiles.h"
#include "Raster.h"
#include "base64.h"
#include "svgFonts.h"
#include "svgText.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
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

void setBox(SvgTag& tag, const Box& box) {
    tag.set("x", box.x).set("y", box.y).set("width", box.width).set("height", box.height);
}

void setPaint(SvgTag& tag, std::string_view name, const std::optional<std::uint32_t>& colour) {
    tag.set(name, colour ? svgColour(*colour) : "none");
}

void setStroke(SvgTag& tag, const DrawnShape& shape) {
    static constexpr const char* caps[] = {"butt", "round", "square"};
    static constexpr const char* joins[] = {"miter", "round", "bevel"};
    setPaint(tag, "stroke", shape.stroke);
    if (shape.strokeWidth != 1) {
        tag.set("stroke-width", shape.strokeWidth);
    }
    if (shape.cap != DrawnShape::Cap::Flat) {
        tag.set("stroke-linecap", caps[static_cast<int>(shape.cap)]);
    }
    if (shape.join != DrawnShape::Join::Miter) {
        tag.set("stroke-linejoin", joins[static_cast<int>(shape.join)]);
    }
}

void addShape(std::string& text, const DrawnShape& shape) {
    SvgTag path(text, "path");
    path.set("d", svgText(shape.path));
    setPaint(path, "fill", shape.fill);
    if (shape.fill && shape.isEvenOdd) {
        path.set("fill-rule", "evenodd");
    }
    if (shape.stroke) {
        setStroke(path, shape);
    }
    if (shape.opacity != 1) {
        path.set("opacity", shape.opacity);
    }
    path.close();
    text += '\n';
}

bool isInside(const Box& inner, const Box& outer) {
    constexpr double hair = 1e-6;
    return inner.x >= outer.x - hair && inner.y >= outer.y - hair &&
           inner.x + inner.width <= outer.x + outer.width + hair &&
           inner.y + inner.height <= outer.y + outer.height + hair;
}

/// What refers to a clip path of this box, which is defined once.
std::string SvgWriter::clipOf(const Box& box) {
    const auto [known, isNew] =
        m_clips.try_emplace({box.x, box.y, box.width, box.height}, std::string());
    if (isNew) {
        const std::string name = "clip" + std::to_string(m_clips.size());
        known->second = "url(#" + name + ')';
        SvgTag(m_definitions, "clipPath").set("id", name).open();
        SvgTag rectangle(m_definitions, "rect");
        setBox(rectangle, box);
        rectangle.close();
        m_definitions += "</clipPath>\n";
    }
    return known->second;
}

void SvgWriter::defineDrawing(const std::string& name, const Drawing& drawing) {
    const Box paper = {0, 0, double(drawing.width), double(drawing.height)};
    const std::string clip = isInside(drawing.ink, paper) ? std::string() : clipOf(paper);
    SvgTag group(m_definitions, "g");
    group.set("id", name);
    if (!clip.empty()) {
        group.set("clip-path", clip);
    }
    group.open();
    SvgTag rectangle(m_definitions, "rect");
    setBox(rectangle, paper);
    rectangle.set("fill", "#fff").close();
    m_definitions += '\n';
    for (const DrawnShape& shape : drawing.shapes) {
        addShape(m_definitions, shape);
    }
    m_definitions += "</g>\n";
}

void SvgWriter::defineRaster(const std::string& name, const Raster& raster) {
    const std::string png = toBase64(m_encoder.encode(raster, "png"), Base64Lines::One);
    SvgTag(m_definitions, "image")
        .set("id", name)
        .set("width", double(raster.width()))
        .set("height", double(raster.height()))
        .set("preserveAspectRatio", "none")
        .set("style", "image-rendering:pixelated")
        .set("href", "data:image/png;base64," + png)
        .close();
    m_definitions += '\n';
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
    SvgTag tag(m_body, "text");
    tag.set("x", text.x).set("y", text.y).set("font-size", text.size);
    if (text.font == PageFont::Bold) {
        tag.set("font-weight", "bold");
    }
    if (text.anchor != PageText::Anchor::Start) {
        tag.set("text-anchor", anchors[static_cast<int>(text.anchor)]);
    }
    if (text.colour != 0) {
        tag.set("fill", svgColour(text.colour));
    }
    const double width = textWidth(text.text, text.size, text.font);
    if (width > 0) {
        tag.set("textLength", width).set("lengthAdjust", "spacingAndGlyphs");
    }
    tag.open();
    (m_body += words) += "</text>\n";
}

void SvgWriter::write(const PageLine& line) {
    SvgTag(m_body, "line")
        .set("x1", line.x1)
        .set("y1", line.y1)
        .set("x2", line.x2)
        .set("y2", line.y2)
        .set("stroke", svgColour(line.colour))
        .set("stroke-width", line.width)
        .close();
    m_body += '\n';
}

void SvgWriter::write(const PageRectangle& rectangle) {
    SvgTag tag(m_body, "rect");
    setBox(tag, rectangle.place);
    if (rectangle.radius > 0) {
        tag.set("rx", rectangle.radius);
    }
    setPaint(tag, "fill", rectangle.fill);
    if (rectangle.stroke) {
        setPaint(tag, "stroke", rectangle.stroke);
        tag.set("stroke-width", rectangle.strokeWidth);
    }
    tag.close();
    m_body += '\n';
}

void SvgWriter::write(const PagePicture& picture) {
    const double width = picture.drawing ? picture.drawing->width : picture.raster->width();
    const double height = picture.drawing ? picture.drawing->height : picture.raster->height();
    const bool isWhole = isInside(picture.place, picture.clip);
    if (width <= 0 || height <= 0) {
        return;
    }
    const std::string name = nameOf(picture);
    if (!isWhole) {
        SvgTag(m_body, "g").set("clip-path", clipOf(picture.clip)).open();
    }
    SvgTag(m_body, "use")
        .set("href", '#' + name)
        .set("transform", "translate(" + svgNumber(picture.place.x) + ' ' +
                              svgNumber(picture.place.y) + ") scale(" +
                              svgNumber(picture.place.width / width) + ' ' +
                              svgNumber(picture.place.height / height) + ')')
        .close();
    m_body += isWhole ? "\n" : "</g>\n";
}

void SvgWriter::writePage(const Page& page, std::size_t index) {
    const double top = double(index) * (m_document.size.height + pageGap);
    SvgTag(m_body, "g")
        .set("id", "page" + std::to_string(index + 1))
        .set("transform", "translate(0 " + svgNumber(top) + ')')
        .open();
    m_body += '\n';
    SvgTag paper(m_body, "rect");
    setBox(paper, {0, 0, m_document.size.width, m_document.size.height});
    paper.set("fill", "#fff");
    if (m_document.pages.size() > 1) {
        paper.set("stroke", "#aaa").set("stroke-width", 0.2);
    }
    paper.close();
    m_body += '\n';
    for (const bool isText : {false, true}) {
        for (const PageItem& item : page.items) {
            if (std::holds_alternative<PageText>(item) == isText) {
                std::visit([this](const auto& shown) { write(shown); }, item);
            }
        }
    }
    m_body += "</g>\n";
}

std::string SvgWriter::head(double height) const {
    const double width = m_document.size.width;
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    SvgTag(text, "svg")
        .set("xmlns", "http://www.w3.org/2000/svg")
        .set("width", svgNumber(width) + "mm")
        .set("height", svgNumber(height) + "mm")
        .set("viewBox", "0 0 " + svgNumber(width) + ' ' + svgNumber(height))
        .set("xml:lang", svgText(m_document.language))
        .set("font-family", svgFontFamily)
        .set("xml:space", "preserve")
        .open();
    text += "\n<title>" + svgText(m_document.title) + "</title>\n";
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
    std::string text = head(height) + svgFonts(m_document);
    if (!m_definitions.empty()) {
        ((text += "<defs>\n") += m_definitions) += "</defs>\n";
    }
    return (text += m_body) += "</svg>\n";
}

}  // namespace

std::string svgFile(const PageDocument& document, PictureEncoder& encoder) {
    return SvgWriter(document, encoder).file();
}

}  // namespace fleetwright
