#include "PdfText.h"

#include "PdfObjects.h"
#include "fontTables.h"
#include "svgText.h"
#include "visualSigns.h"

#include <algorithm>
#include <cstdint>
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

/// Which character each number stands for, in UTF-16.
std::string charactersOf(const std::vector<FontSubset::Sign>& signs) {
    std::string map = "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                      "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
                      "/CMapName /Adobe-Identity-UCS def\n/CMapType 2 def\n"
                      "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n";
    constexpr std::size_t mostInBlock = 100;
    for (std::size_t first = 0; first < signs.size(); first += mostInBlock) {
        const std::size_t end = std::min(first + mostInBlock, signs.size());
        map += std::to_string(end - first) + " beginbfchar\n";
        for (std::size_t at = first; at < end; ++at) {
            map += '<';
            addPdfDigits(map, static_cast<std::uint32_t>(at + 1));
            map += "> <";
            addPdfCharacter(map, signs[at].character);
            map += ">\n";
        }
        map += "endbfchar\n";
    }
    return map + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

/// Which glyph of the font each number has.
std::string glyphsOf(const std::vector<FontSubset::Sign>& signs, const FontSubset& font) {
    std::string glyphs(2, '\0');
    for (const FontSubset::Sign& sign : signs) {
        addFontNumber(glyphs, static_cast<std::uint32_t>(font.glyphOf(sign)), 2);
    }
    return glyphs;
}

/// Adds the objects that make a font; the number of the one that pages name.
std::size_t addFont(PdfObjects& objects, PageFace face,
                    const std::vector<FontSubset::Sign>& signs) {
    const FontSubset font(face, signs);
    const std::string name = markedName(font);
    constexpr double unitsPerSize = 1000;
    std::string widths;
    for (const FontSubset::Sign& sign : signs) {
        widths += svgNumber(font.widthOf(sign) * unitsPerSize) + ' ';
    }
    const std::size_t file = objects.addStream(font.file());
    const std::size_t descriptor =
        objects.add("<< /Type /FontDescriptor /FontName /" + name +
                    " /Flags 4 /FontBBox [-1200 -600 2000 1300] /ItalicAngle 0 /Ascent " +
                    std::to_string(fontAscent) + " /Descent " + std::to_string(fontDescent) +
                    " /CapHeight 729 /StemV 90 /FontFile2 " + pdfReference(file) + " >>");
    const std::size_t glyphs = objects.addStream(glyphsOf(signs, font));
    const std::size_t descendant =
        objects.add("<< /Type /Font /Subtype /CIDFontType2 /BaseFont /" + name +
                    " /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >>"
                    " /FontDescriptor " +
                    pdfReference(descriptor) + " /CIDToGIDMap " + pdfReference(glyphs) +
                    " /DW 0 /W [1 [" + widths + "]] >>");
    const std::size_t characters = objects.addStream(charactersOf(signs));
    return objects.add("<< /Type /Font /Subtype /Type0 /BaseFont /" + name +
                       " /Encoding /Identity-H /DescendantFonts [" + pdfReference(descendant) +
                       "] /ToUnicode " + pdfReference(characters) + " >>");
}

}  // namespace

std::size_t PdfText::Shown::numberOf(const FontSubset::Sign& sign) {
    const auto [known, isNew] = numbers.try_emplace(sign, signs.size() + 1);
    if (isNew) {
        signs.push_back(sign);
    }
    return known->second;
}

std::string PdfText::contentOf(const Page& page) {
    std::string content = "BT\n0 0 0 rg\n";
    std::uint32_t colour = 0;
    for (const PageItem& item : page.items) {
        if (const auto* const text = std::get_if<PageText>(&item)) {
            if (colour != text->colour) {
                content += pdfColour(text->colour) + "rg\n";
                colour = text->colour;
            }
            addLine(content, *text);
        }
    }
    return content + "ET\n";
}

void PdfText::addLine(std::string& content, const PageText& text) {
    const std::string size = pdfLength(text.size);
    content +=
        size + " 0 0 -" + size + ' ' + pdfLength(startOf(text)) + ' ' + pdfLength(text.y) + " Tm\n";
    const std::vector<PageSign> signs = visualSigns(text.text, text.font);
    for (auto sign = signs.begin(); sign != signs.end();) {
        const PageFace face = sign->face;
        (content += fontKey(face)) += " 1 Tf\n<";
        for (; sign != signs.end() && sign->face == face; ++sign) {
            Shown& shown = m_shown[static_cast<std::size_t>(face)];
            addPdfDigits(content, static_cast<std::uint32_t>(shown.numberOf(signOf(*sign))));
        }
        content += "> Tj\n";
    }
}

std::string PdfText::writeFonts(PdfObjects& objects) const {
    std::string fonts = "<<";
    for (const PageFace face : pageFaces) {
        const Shown& shown = m_shown[static_cast<std::size_t>(face)];
        if (!shown.signs.empty()) {
            fonts += ' ' + fontKey(face) + ' ' + pdfReference(addFont(objects, face, shown.signs));
        }
    }
    return fonts + " >>";
}

}  // namespace fleetwright
