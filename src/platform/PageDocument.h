#pragma once

// Printable pages, as whoever writes or prints them sees them. All places are in millimetres from
// the upper left corner of the paper.

#include "Drawing.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace fleetwright {

class Raster;

struct PageSize {
    double width = 210;   ///< millimetres
    double height = 297;  ///< millimetres
};
inline constexpr PageSize paperA4 = {210, 297};
inline constexpr PageSize paperLetter = {215.9, 279.4};
/// What every printer leaves white at each edge of the paper, in millimetres.
inline constexpr double paperMargin = 10;

enum class PageFont { Regular, Bold };

/// One line of text, in the font that the program brings along.
struct PageText {
    enum class Anchor { Start, Middle, End };

    std::string text;  ///< UTF-8
    double x = 0;      ///< of the anchor
    double y = 0;      ///< of the base line
    double size = 3;   ///< of the font, millimetres
    PageFont font = PageFont::Regular;
    Anchor anchor = Anchor::Start;
    std::uint32_t colour = 0x000000;
};

struct PageLine {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double width = 0.2;
    std::uint32_t colour = 0x000000;
};

struct PageRectangle {
    Box place;
    std::optional<std::uint32_t> fill;
    std::optional<std::uint32_t> stroke;
    double strokeWidth = 0.2;
    double radius = 0;  ///< of its corners
};

/// A picture, white ground included: as its drawing, or pixel by pixel where there is none. One of
/// the two is there.
struct PagePicture {
    std::shared_ptr<const Drawing> drawing;
    std::shared_ptr<const Raster> raster;
    Box place;  ///< of the whole picture
    Box clip;   ///< what shows of it
    bool isOnlyHere =
        false;  ///< no other document shows it, so that nothing of it is worth keeping
};

using PageItem = std::variant<PageText, PageLine, PageRectangle, PagePicture>;

struct Page {
    /// Later ones cover earlier ones, but text lies above all else.
    std::vector<PageItem> items;
    /// What begins on this page, for a list of contents: the names of ships.
    std::vector<std::string> contents = {};
};

using PageTaker = std::function<void(const Page&)>;

struct PageDocument {
    PageSize size;
    std::vector<Page> pages;
    std::string title;
    std::string author;
    std::string subject;
    std::string language;              ///< as "en"
    std::optional<std::int64_t> date;  ///< seconds since 1970, UTC; a file without it tells none
    /// XML elements, with their namespaces declared, that say more of the document as properties of
    /// RDF: the ships that it carries.
    std::string metadata;
    /// Hands out those behind `pages`, one by one, as often as it is asked: for a document of
    /// thousands of pages, which are made when they are wanted. Null if there are none.
    std::function<void(const PageTaker&)> morePages = {};

    void eachPage(const PageTaker& take) const {
        for (const Page& page : pages) {
            take(page);
        }
        if (morePages) {
            morePages(take);
        }
    }
};

/// How wide a line of text is, in millimetres, for a font size in millimetres. Control characters
/// have no width.
double textWidth(std::string_view text, double size, PageFont font = PageFont::Regular);

}  // namespace fleetwright
