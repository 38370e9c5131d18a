#include "svgFile.h"

#include "SvgPictures.h"
#include "joinedLetters.h"
#include "svgFonts.h"
#include "svgText.h"

#include <cstddef>
#include <utility>
#include <variant>

namespace fleetwright {

namespace {

constexpr double pageGap = 6;  // millimetres between pages

class SvgWriter {
public:
    SvgWriter(const PageDocument& document, PictureEncoder& encoder, KeptSvgParts* kept)
        : m_document(document), m_kept(kept), m_pictures(encoder, kept) {}

    std::string file();

private:
    void write(const PageText& text);
    void write(const PageLine& line);
    void write(const PageRectangle& rectangle);
    void write(const PagePicture& picture) { m_pictures.use(picture, m_text); }
    void writePage(const Page& page, std::size_t index);
    void writeHead();
    std::string definitions();

    const PageDocument& m_document;
    KeptSvgParts* m_kept;
    SvgPictures m_pictures;
    std::string m_text;
};

void SvgWriter::write(const PageText& text) {
    static constexpr const char* anchors[] = {"start", "middle", "end"};
    const std::size_t start = m_text.size();
    SvgTag tag(m_text, "text");
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
    if (width > 0 && !mayJoin(text.text)) {
        tag.set("textLength", width).set("lengthAdjust", "spacingAndGlyphs");
    }
    tag.open();
    const std::size_t words = m_text.size();
    addSvgText(m_text, text.text);
    if (m_text.size() == words) {
        m_text.resize(start);  // nothing to show
        return;
    }
    m_text += "</text>\n";
}

void SvgWriter::write(const PageLine& line) {
    SvgTag(m_text, "line")
        .set("x1", line.x1)
        .set("y1", line.y1)
        .set("x2", line.x2)
        .set("y2", line.y2)
        .set("stroke", svgColour(line.colour))
        .set("stroke-width", line.width)
        .close();
    m_text += '\n';
}

void SvgWriter::write(const PageRectangle& rectangle) {
    SvgTag tag(m_text, "rect");
    tag.set(rectangle.place);
    if (rectangle.radius > 0) {
        tag.set("rx", rectangle.radius);
    }
    tag.setPaint("fill", rectangle.fill);
    if (rectangle.stroke) {
        tag.setPaint("stroke", rectangle.stroke);
        tag.set("stroke-width", rectangle.strokeWidth);
    }
    tag.close();
    m_text += '\n';
}

void SvgWriter::writePage(const Page& page, std::size_t index) {
    const double top = double(index) * (m_document.size.height + pageGap);
    SvgTag(m_text, "g")
        .set("id", "page" + std::to_string(index + 1))
        .set("transform", "translate(0 " + svgNumber(top) + ')')
        .open();
    m_text += '\n';
    SvgTag paper(m_text, "rect");
    paper.set({0, 0, m_document.size.width, m_document.size.height});
    paper.set("fill", "#fff");
    if (m_document.pages.size() > 1) {
        paper.set("stroke", "#aaa").set("stroke-width", 0.2);
    }
    paper.close();
    m_text += '\n';
    for (const bool isText : {false, true}) {
        for (const PageItem& item : page.items) {
            if (std::holds_alternative<PageText>(item) == isText) {
                std::visit([this](const auto& shown) { write(shown); }, item);
            }
        }
    }
    m_text += "</g>\n";
}

void SvgWriter::writeHead() {
    const double width = m_document.size.width;
    const auto count = double(m_document.pages.size());
    const double height = count * m_document.size.height + (count - 1) * pageGap;
    m_text += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    SvgTag(m_text, "svg")
        .set("xmlns", "http://www.w3.org/2000/svg")
        .set("width", svgNumber(width) + "mm")
        .set("height", svgNumber(height) + "mm")
        .set("viewBox", "0 0 " + svgNumber(width) + ' ' + svgNumber(height))
        .setText("xml:lang", m_document.language)
        .set("font-family", svgFontFamily)
        .set("xml:space", "preserve")
        .open();
    m_text += "\n<title>" + svgText(m_document.title) + "</title>\n";
    std::string description = m_document.subject;
    if (!m_document.author.empty()) {
        description += (description.empty() ? "by " : ", by ") + m_document.author;
    }
    if (!description.empty()) {
        m_text += "<desc>" + svgText(description) + "</desc>\n";
    }
    if (!m_document.metadata.empty()) {
        ((m_text += "<metadata>") += m_document.metadata) += "</metadata>\n";
    }
}

/// Those of all pictures, which stand in front of the pages.
std::string SvgWriter::definitions() {
    for (const Page& page : m_document.pages) {
        for (const PageItem& item : page.items) {
            if (const auto* const picture = std::get_if<PagePicture>(&item)) {
                m_pictures.define(*picture);
            }
        }
    }
    return m_pictures.takeDefinitions();
}

std::string SvgWriter::file() {
    const std::string fonts = svgFonts(m_document, m_kept), pictures = definitions();
    constexpr std::size_t pageSize = 1U << 15U;  // bytes, of nearly all pages
    m_text.reserve(m_document.metadata.size() + fonts.size() + pictures.size() +
                   m_document.pages.size() * pageSize);
    writeHead();
    (m_text += fonts) += pictures;
    for (std::size_t i = 0; i < m_document.pages.size(); ++i) {
        writePage(m_document.pages[i], i);
    }
    m_text += "</svg>\n";
    return std::move(m_text);
}

/// A document whose pages are all there.
PageDocument withAllPages(const PageDocument& document) {
    PageDocument whole = document;
    whole.pages.clear();
    whole.morePages = {};
    document.eachPage([&whole](const Page& page) { whole.pages.push_back(page); });
    return whole;
}

}  // namespace

std::string svgFile(const PageDocument& document, PictureEncoder& encoder, KeptSvgParts* kept) {
    if (document.morePages) {  // their number and their fonts stand in front of them
        return SvgWriter(withAllPages(document), encoder, kept).file();
    }
    return SvgWriter(document, encoder, kept).file();
}

}  // namespace fleetwright
