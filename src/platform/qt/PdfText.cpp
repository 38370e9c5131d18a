#include "PdfText.h"

#include "PdfObjects.h"
#include "drawPageShapes.h"
#include "svgText.h"
#include "visualSigns.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

namespace fleetwright {

namespace {

FontSubset::Sign signOf(const PageSign& sign) {
    return {sign.character, sign.drawn};
}

std::string fontKey(PageFace face) {
    return "/F" + std::to_string(static_cast<int>(face));
}

std::string reference(std::size_t object) {
    return std::to_string(object) + " 0 R";
}

void addHexadecimal(std::string& text, std::uint32_t number) {
    static constexpr char digits[] = "0123456789ABCDEF";
    for (int shift = 12; shift >= 0; shift -= 4) {
        text += digits[number >> static_cast<unsigned>(shift) & 0xFU];
    }
}

/// The name of a font with the mark of one that lacks characters, another one for others.
std::string markedName(const FontSubset& font) {
    std::uint32_t mixed = 0;
    for (const FontSubset::Sign& sign : font.signs()) {
        mixed = mixed * 31 + sign.drawn;
    }
    std::string mark;
    constexpr std::size_t length = 6;
    for (; mark.size() < length; mixed /= 26) {
        mark += static_cast<char>('A' + mixed % 26);
    }
    return mark + '+' + font.name();
}

/// Which character each glyph of a font stands for, in UTF-16.
std::string charactersOf(const FontSubset& font) {
    std::string map = "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                      "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
                      "/CMapName /Adobe-Identity-UCS def\n/CMapType 2 def\n"
                      "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n";
    constexpr std::size_t mostInBlock = 100;
    const std::vector<FontSubset::Sign>& signs = font.signs();
    for (std::size_t first = 0; first < signs.size(); first += mostInBlock) {
        const std::size_t end = std::min(first + mostInBlock, signs.size());
        map += std::to_string(end - first) + " beginbfchar\n";
        for (std::size_t at = first; at < end; ++at) {
            map += '<';
            addHexadecimal(map, static_cast<std::uint32_t>(at + 1));
            map += "> <";
            const std::uint32_t code = signs[at].character;
            if (code > 0xFFFF) {
                addHexadecimal(map, 0xD7C0 + (code >> 10U));
                addHexadecimal(map, 0xDC00 + (code & 0x3FFU));
            } else {
                addHexadecimal(map, code);
            }
            map += ">\n";
        }
        map += "endbfchar\n";
    }
    return map + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

/// Adds the objects that make a font; the number of the one that pages name.
std::size_t addFont(PdfObjects& objects, const FontSubset& font) {
    const std::string name = markedName(font);
    constexpr double unitsPerSize = 1000;
    std::string widths;
    for (const FontSubset::Sign& sign : font.signs()) {
        widths += svgNumber(font.widthOf(sign) * unitsPerSize) + ' ';
    }
    const std::size_t file = objects.add(pdfStream(font.file()));
    const std::size_t descriptor =
        objects.add("\n<< /Type /FontDescriptor /FontName /" + name +
                    " /Flags 4 /FontBBox [-1200 -600 2000 1300] /ItalicAngle 0 /Ascent " +
                    std::to_string(fontAscent) + " /Descent " + std::to_string(fontDescent) +
                    " /CapHeight 729 /StemV 90 /FontFile2 " + reference(file) + " >>\n");
    const std::size_t glyphs = objects.add(
        "\n<< /Type /Font /Subtype /CIDFontType2 /BaseFont /" + name +
        " /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >>"
        " /FontDescriptor " +
        reference(descriptor) + " /CIDToGIDMap /Identity /DW 0 /W [1 [" + widths + "]] >>\n");
    const std::size_t characters = objects.add(pdfStream(charactersOf(font)));
    return objects.add("\n<< /Type /Font /Subtype /Type0 /BaseFont /" + name +
                       " /Encoding /Identity-H /DescendantFonts [" + reference(glyphs) +
                       "] /ToUnicode " + reference(characters) + " >>\n");
}

std::string colourOperator(std::uint32_t colour) {
    constexpr double most = 255;
    std::string text;
    for (const unsigned shift : {16U, 8U, 0U}) {
        text += svgNumber((colour >> shift & 0xFFU) / most) + ' ';
    }
    return text + "rg\n";
}

/// Where a line of text begins, and how it is turned and scaled.
std::string placeOperator(const PageText& text) {
    const std::string size = svgNumber(toUnits(text.size));
    return size + " 0 0 -" + size + ' ' + svgNumber(toUnits(startOf(text))) + ' ' +
           svgNumber(toUnits(text.y)) + " Tm\n";
}

/// Puts something behind the first place of a word in an object.
void insertBehind(std::string& object, std::string_view word, const std::string& more) {
    object.insert(object.find(word) + word.size(), more);
}

}  // namespace

PdfText::PdfText(const PageDocument& document) {
    std::array<std::vector<FontSubset::Sign>, std::size(pageFaces)> shown;
    for (const Page& page : document.pages) {
        std::vector<Line>& lines = m_pages.emplace_back();
        for (const PageItem& item : page.items) {
            const auto* const text = std::get_if<PageText>(&item);
            if (text == nullptr) {
                continue;
            }
            lines.push_back({text, visualSigns(text->text, text->font)});
            for (const PageSign& sign : lines.back().signs) {
                shown[static_cast<std::size_t>(sign.face)].push_back(signOf(sign));
            }
        }
    }
    for (const PageFace face : pageFaces) {
        m_fonts.emplace_back(face, std::move(shown[static_cast<std::size_t>(face)]));
    }
}

std::string PdfText::contentOf(const std::vector<Line>& lines) const {
    std::string content = "BT\n0 0 0 rg\n";
    std::uint32_t colour = 0;
    for (const auto& [text, signs] : lines) {
        if (colour != text->colour) {
            content += colourOperator(text->colour);
            colour = text->colour;
        }
        content += placeOperator(*text);
        for (auto sign = signs.begin(); sign != signs.end();) {
            const PageFace face = sign->face;
            (content += fontKey(face)) += " 1 Tf\n<";
            for (; sign != signs.end() && sign->face == face; ++sign) {
                const FontSubset& font = m_fonts[static_cast<std::size_t>(face)];
                addHexadecimal(content, static_cast<std::uint32_t>(font.glyphOf(signOf(*sign))));
            }
            content += "> Tj\n";
        }
    }
    return content + "ET\n";
}

/// Adds the fonts; what the resources of a page say of them.
std::string PdfText::fontsIn(PdfObjects& objects) const {
    std::string fonts;
    for (const PageFace face : pageFaces) {
        const FontSubset& font = m_fonts[static_cast<std::size_t>(face)];
        if (!font.signs().empty()) {
            fonts += '\n' + fontKey(face) + ' ' + reference(addFont(objects, font));
        }
    }
    return fonts;
}

void PdfText::putInto(PdfObjects& objects) const {
    const std::vector<std::size_t> pages = pdfPages(objects);
    const std::string fonts = fontsIn(objects);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        std::string page = objects.at(pages.at(i));
        const std::size_t resources = pdfReference(page, "/Resources");
        const std::string shapes = reference(pdfReference(page, "/Contents"));
        const std::string shapesEntry = "/Contents " + shapes;
        const std::size_t content = objects.add(pdfStream(contentOf(m_pages[i])));
        page.replace(page.find(shapesEntry), shapesEntry.size(),
                     "/Contents [" + shapes + ' ' + reference(content) + ']');
        objects.set(pages[i], std::move(page));
        std::string known = objects.at(resources);
        insertBehind(known, "/Font <<", fonts);
        objects.set(resources, std::move(known));
    }
}

}  // namespace fleetwright
