#include "svgFile.h"

#include "SvgPictures.h"
#include "joinedLetters.h"
#include "svgFonts.h"
#include "svgText.h"

#include <cstddef>
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
    void write(const PagePicture& picture) { m_pictures.use(picture, m_body); }
    void writePage(const Page& page, std::size_t index);
    std::string head(double height) const;

    const PageDocument& m_document;
    KeptSvgParts* m_kept;
    SvgPictures m_pictures;
    std::string m_body;
};

void SvgWriter::write(const PageText& text) {
    static constexpr const char* anchors[] = {"start", "middle", "end"};
    const std::size_t start = m_body.size();
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
    if (width > 0 && !mayJoin(text.text)) {
        tag.set("textLength", width).set("lengthAdjust", "spacingAndGlyphs");
    }
    tag.open();
    const std::size_t words = m_body.size();
    addSvgText(m_body, text.text);
    if (m_body.size() == words) {
        m_body.resize(start);  // nothing to show
        return;
    }
    m_body += "</text>\n";
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
    m_body += '\n';
}

void SvgWriter::writePage(const Page& page, std::size_t index) {
    const double top = double(index) * (m_document.size.height + pageGap);
    SvgTag(m_body, "g")
        .set("id", "page" + std::to_string(index + 1))
        .set("transform", "translate(0 " + svgNumber(top) + ')')
        .open();
    m_body += '\n';
    SvgTag paper(m_body, "rect");
    paper.set({0, 0, m_document.size.width, m_document.size.height});
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
        .setText("xml:lang", m_document.language)
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
    constexpr std::size_t pageSize = 1U << 15U;  // bytes, of nearly all pages
    m_body.reserve(m_document.pages.size() * pageSize);
    for (std::size_t i = 0; i < m_document.pages.size(); ++i) {
        writePage(m_document.pages[i], i);
    }
    const auto count = double(m_document.pages.size());
    const double height = count * m_document.size.height + (count - 1) * pageGap;
    std::string text = head(height);
    const std::string fonts = svgFonts(m_document, m_kept);
    const std::string definitions = m_pictures.takeDefinitions();
    text.reserve(text.size() + fonts.size() + definitions.size() + m_body.size() + 100);
    (text += fonts) += definitions;
    return (text += m_body) += "</svg>\n";
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
