#pragma once

// Lines of text that fit a width on the paper. Widths and sizes are in millimetres.

#include "PageDocument.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// How far letters rise above their base line, accents on capitals included, times the font's size.
inline constexpr double letterHeight = 0.97;

/// The colour of what stands behind the rest: captions, labels, notes.
inline constexpr std::uint32_t quietInk = 0x555555;

/// A line in this style, in a smaller font of `smallest` at the least if it is too wide, and
/// without its end, for which "…" stands, if that is not enough.
PageText fittedText(std::string_view text, PageText style, double width, double smallest);

/// The height of a caption below a picture.
inline constexpr double captionRoom = 2.6;
/// Puts a drawing that was made for this page here, and a few words below the middle of it.
void putCaptioned(Page& page, std::shared_ptr<const Drawing> drawing, const Box& place,
                  std::string_view caption);

/// A text that is measured once, and set in lines of any width and size.
class MeasuredText {
public:
    static constexpr std::size_t any = static_cast<std::size_t>(-1);

    explicit MeasuredText(std::string_view text, PageFont font = PageFont::Regular);

    bool isEmpty() const { return m_text.empty(); }
    /// Lines no wider than this in a font of this size, parted at blanks, or inside of words that
    /// are too long: one line at the least. If they are more than `most`, the last one ends in "…".
    std::vector<std::string> lines(double size, double width, std::size_t most = any) const;
    /// How many lines those are.
    std::size_t lineCount(double size, double width, std::size_t most = any) const;

private:
    template <typename Take>
    std::size_t breakLines(double size, double width, std::size_t most, Take take) const;

    struct Word {
        std::size_t start;
        std::size_t length;  ///< bytes
        double width;        ///< in sizes of the font
    };

    std::string m_text;
    PageFont m_font;
    double m_blank;  ///< the width of one, in sizes of the font
    double m_width;  ///< of all of it, in sizes of the font
    std::vector<Word> m_words;
};

}  // namespace fleetwright
