#include "svgFonts.h"

#include "FontSubset.h"
#include "base64.h"
#include "text.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

/// The signs that a document shows, by their faces.
class ShownSigns {
public:
    void add(const PageText& text) {
        for (std::string_view rest = text.text; !rest.empty();) {
            const std::string_view character = rest.substr(0, characterLength(rest));
            rest.remove_prefix(character.size());
            // Nearly all characters are of few, which are looked up once.
            if (const auto code = static_cast<unsigned char>(character.front());
                code < asciiCount &&
                std::exchange(m_isKnown[static_cast<std::size_t>(text.font)][code], true)) {
                continue;
            }
            for (const PageSign& sign : pageSigns(character, text.font)) {
                m_signs[static_cast<std::size_t>(sign.face)].push_back(
                    {sign.character, sign.drawn});
            }
        }
    }
    std::vector<FontSubset::Sign>& of(PageFace face) {
        return m_signs[static_cast<std::size_t>(face)];
    }

private:
    static constexpr std::size_t asciiCount = 128;

    std::array<std::array<bool, asciiCount>, 2> m_isKnown{};  // by the font
    std::array<std::vector<FontSubset::Sign>, std::size(pageFaces)> m_signs;
};

}  // namespace

std::string svgFonts(const PageDocument& document) {
    ShownSigns shown;
    for (const Page& page : document.pages) {
        for (const PageItem& item : page.items) {
            if (const auto* const text = std::get_if<PageText>(&item)) {
                shown.add(*text);
            }
        }
    }
    std::string style;
    for (const PageFace face : pageFaces) {
        if (shown.of(face).empty()) {
            continue;
        }
        const FontSubset font(face, std::move(shown.of(face)));
        ((style += "@font-face{font-family:\"") += pageFamily(face)) += "\";font-weight:";
        style += face == PageFace::Bold       ? "bold"
                 : face == PageFace::Fallback ? "400 700"
                                              : "normal";
        (style += ";src:url(data:font/ttf;base64,") += toBase64(font.file(), Base64Lines::One);
        style += ")}\n";
    }
    return style.empty() ? style : "<style>\n" + style + "</style>\n";
}

}  // namespace fleetwright
