#include "svgFonts.h"

#include "FontSubset.h"
#include "KeptSvgParts.h"
#include "base64.h"
#include "joinedLetters.h"
#include "text.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

constexpr std::size_t asciiCount = 128;
using AsciiSigns = std::array<std::vector<PageSign>, asciiCount>;

/// What is drawn of the characters that nearly all texts are of, which is looked up once.
const AsciiSigns& asciiSigns(PageFont font) {
    const auto all = [](PageFont ofFont) {
        AsciiSigns signs;
        for (std::size_t code = 0; code < asciiCount; ++code) {
            const char character = static_cast<char>(code);
            signs[code] = pageSigns({&character, 1}, ofFont);
        }
        return signs;
    };
    static const AsciiSigns regular = all(PageFont::Regular);
    static const AsciiSigns bold = all(PageFont::Bold);
    return font == PageFont::Bold ? bold : regular;
}

/// The signs that a document shows, by their faces.
class ShownSigns {
public:
    void add(const PageText& text) {
        const auto font = static_cast<std::size_t>(text.font);
        const std::string_view all = text.text;
        for (std::size_t at = 0; at < all.size();) {
            if (const auto code = static_cast<unsigned char>(all[at]); code < asciiCount) {
                if (!m_isKnown[font][code]) {
                    m_isKnown[font][code] = true;
                    addAll(asciiSigns(text.font)[code], text.font);
                }
                ++at;
                continue;
            }
            const std::string_view rest = all.substr(at);
            const std::string_view character = rest.substr(0, characterLength(rest));
            at += character.size();
            if (character.size() == 1 || m_others[font].insert(codePoint(character)).second) {
                addAll(pageSigns(character, text.font), text.font);
            }
        }
    }
    std::vector<FontSubset::Sign>& of(PageFace face) {
        return m_signs[static_cast<std::size_t>(face)];
    }

private:
    void addAll(const std::vector<PageSign>& signs, PageFont font) {
        for (const PageSign& sign : signs) {
            of(sign.face).push_back({sign.character, sign.drawn});
            if (sign.character >= asciiCount) {
                addJoined(sign, font);
            }
        }
    }

    /// Readers join letters with pictures of one face alone.
    void addJoined(const PageSign& letter, PageFont font) {
        for (const char32_t form : joinedForms(letter.character)) {
            const PageSign joined = pageSign(form, font);
            if (!joined.isMissing() && joined.face == letter.face) {
                of(letter.face).push_back({form, form});
            }
        }
    }

    std::array<std::array<bool, asciiCount>, 2> m_isKnown{};  // by the font
    std::array<std::unordered_set<char32_t>, 2> m_others;     // by the font
    std::array<std::vector<FontSubset::Sign>, std::size(pageFaces)> m_signs;
};

}  // namespace

std::string svgFonts(const PageDocument& document, KeptSvgParts* kept) {
    ShownSigns shown;
    for (const Page& page : document.pages) {
        for (const PageItem& item : page.items) {
            if (const auto* const text = std::get_if<PageText>(&item)) {
                shown.add(*text);
            }
        }
    }
    constexpr std::string_view start = "<style>\n";
    std::string style(start);
    for (const PageFace face : pageFaces) {
        if (shown.of(face).empty()) {
            continue;
        }
        const FontSubset font(face, std::move(shown.of(face)));
        const auto file = [&font] { return toBase64(font.file(), Base64Lines::One); };
        ((style += "@font-face{font-family:\"") += pageFamily(face)) += "\";font-weight:";
        style += face == PageFace::Bold       ? "bold"
                 : face == PageFace::Fallback ? "400 700"
                                              : "normal";
        style += ";src:url(data:font/ttf;base64,";
        if (kept != nullptr) {
            style += *kept->font(face, font.signs(), file);
        } else {
            style += file();
        }
        style += ")}\n";
    }
    return style == start ? std::string() : std::move(style += "</style>\n");
}

}  // namespace fleetwright
