#include "pageFonts.h"

#include "pageFontData.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>

namespace fleetwright {

namespace {

constexpr char32_t missing = U'\uFFFD';
constexpr double unitsPerSize = 2048;

PageFace faceOf(PageFont font) {
    return font == PageFont::Bold ? PageFace::Bold : PageFace::Regular;
}

/// The run and the face that have a character, if any has.
struct FoundLetter {
    const LetterRun* run;
    PageFace face;
};

FoundLetter findLetter(char32_t character, PageFont font) {
    const PageFace face = faceOf(font);
    const LetterRun* const run = letterRunOf(character, face);
    return run != nullptr
               ? FoundLetter{run, face}
               : FoundLetter{letterRunOf(character, PageFace::Fallback), PageFace::Fallback};
}

/// Hands over what is drawn of a text, the sign and its characters each.
template <typename Take>
void walkSigns(std::string_view text, PageFont font, Take take) {
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        const char32_t character = text.front() == '\t' ? U' ' : codePoint(text);
        if (!isInvisible(character)) {
            take(pageSign(character, font), text.substr(0, length));
        }
        text.remove_prefix(length);
    }
}

constexpr std::size_t asciiCount = 128, latinCount = 256;

/// How far a sign moves the pen, in 2048ths of the font's size. These are whole numbers, so that
/// sums of them are exact, and quick.
int advanceOf(const PageSign& sign) {
    return static_cast<int>(sign.width * unitsPerSize);
}

/// How far the first characters of Unicode move the pen in a font; 0 for those that are not drawn.
using LatinAdvances = std::array<int, latinCount>;

const LatinAdvances& latinAdvances(PageFont font) {
    const auto all = [](PageFont ofFont) {
        LatinAdvances advances{};
        for (std::size_t code = 0; code < latinCount; ++code) {
            const char both[] = {static_cast<char>(0xC0U | code >> 6U),
                                 static_cast<char>(0x80U | (code & 0x3FU))};
            const char one = static_cast<char>(code);
            const auto take = [&](const PageSign& sign, std::string_view) {
                advances[code] = advanceOf(sign);
            };
            walkSigns(code < asciiCount ? std::string_view(&one, 1) : std::string_view(both, 2),
                      ofFont, take);
        }
        return advances;
    };
    static const LatinAdvances regular = all(PageFont::Regular);
    static const LatinAdvances bold = all(PageFont::Bold);
    return font == PageFont::Bold ? bold : regular;
}

}  // namespace

const LetterRun* letterRunOf(char32_t character, PageFace face) {
    const std::span<const LetterRun> runs = pageLetters[static_cast<std::size_t>(face)];
    const auto next =
        std::upper_bound(runs.begin(), runs.end(), character,
                         [](char32_t code, const LetterRun& run) { return code < run.first; });
    if (next == runs.begin() || character - std::prev(next)->first >= std::prev(next)->count) {
        return nullptr;
    }
    return &*std::prev(next);
}

PageSign pageSign(char32_t character, PageFont font) {
    char32_t drawn = character;
    FoundLetter found = findLetter(drawn, font);
    if (found.run == nullptr) {
        drawn = missing;
        found = findLetter(drawn, font);
        assert(found.run != nullptr);  // the delivered fonts have that one
    }
    return {character, drawn, found.face, found.run->advance / unitsPerSize};
}

std::vector<PageSign> pageSigns(std::string_view text, PageFont font) {
    std::vector<PageSign> signs;
    walkSigns(text, font,
              [&signs](const PageSign& sign, std::string_view) { signs.push_back(sign); });
    return signs;
}

std::vector<PageRun> pageRuns(std::string_view text, PageFont font) {
    std::vector<PageRun> runs;
    walkSigns(text, font, [&runs](const PageSign& sign, std::string_view character) {
        if (runs.empty() || runs.back().face != sign.face) {
            runs.push_back({.face = sign.face, .text = {}, .width = 0});
        }
        if (sign.drawn == missing) {
            runs.back().text += "\uFFFD";
        } else {
            runs.back().text += character == "\t" ? " " : character;
        }
        runs.back().width += sign.width;
    });
    return runs;
}

double startOf(const PageText& text) {
    if (text.anchor == PageText::Anchor::Start) {
        return text.x;
    }
    const double width = textWidth(text.text, text.size, text.font);
    return text.x - (text.anchor == PageText::Anchor::Middle ? width / 2 : width);
}

double textWidth(std::string_view text, double size, PageFont font) {
    const LatinAdvances& advances = latinAdvances(font);
    std::int64_t width = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (const auto code = static_cast<unsigned char>(text[at]); code < asciiCount) {
            width += advances[code];
            ++at;
            continue;
        }
        const std::string_view rest = text.substr(at);
        const std::string_view character = rest.substr(0, characterLength(rest));
        if (const char32_t code = codePoint(character); code < latinCount) {
            width += advances[code];
        } else {
            walkSigns(character, font, [&width](const PageSign& sign, std::string_view) {
                width += advanceOf(sign);
            });
        }
        at += character.size();
    }
    return static_cast<double>(width) / unitsPerSize * size;
}

}  // namespace fleetwright
