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

/// The signs that a document shows, by their faces.
class ShownSigns {
public:
    void add(const PageText& text) {
        const auto font = static_cast<std::size_t>(text.font);
        for (std::string_view rest = text.text; !rest.empty();) {
            // Nearly all characters are of few, which are looked up once.
            if (const auto code = static_cast<unsigned char>(rest.front()); code < asciiCount) {
                if (!std::exchange(m_isKnown[font][code], true)) {
                    addAll(rest.substr(0, 1), text.font);
                }
                rest.remove_prefix(1);
                continue;
            }
            const std::string_view character = rest.substr(0, characterLength(rest));
            rest.remove_prefix(character.size());
            if (character.size() == 1 || m_others[font].insert(codePoint(character)).second) {
                addAll(character, text.font);
            }
        }
    }
    std::vector<FontSubset::Sign>& of(PageFace face) {
        return m_signs[static_cast<std::size_t>(face)];
    }

private:
    static constexpr std::size_t asciiCount = 128;

    void addAll(std::string_view character, PageFont font) {
        for (const PageSign& sign : pageSigns(character, font)) {
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
