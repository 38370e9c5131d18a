#pragma once

#include "PageFlow.h"
#include "sheetBlocks.h"
#include "sheetDocument.h"

#include <optional>
#include <vector>

namespace fleetwright {

class Silhouette;

/// One sheet in its part of a page: the head, the drawing, and text and legend in columns beside
/// and below it, or in the corners that it leaves. How large the drawing gets depends on the
/// drawing and on the room alone, never on how much there is to read. Measures are in millimetres.
class SheetCard {
public:
    /// The least side of a system's picture that can be played with.
    static constexpr double leastSymbol = 9;

    /// The sheet outlives the card.
    SheetCard(const VectorSheet& sheet, const Box& room, bool isPlain);

    /// Whether the drawing has that size here, and its text a place.
    bool isGoodHere() const;
    /// Puts the sheet on a page and returns what is left to read, which found no room there.
    std::vector<PageBlock> putOn(Page& page) const;

private:
    /// Where text can stand. Of columns in corners there are no others.
    struct Columns {
        std::vector<Box> beside;
        std::vector<Box> below;
        std::vector<Box> inCorners;  ///< of the drawing, which stands in the middle of the room

        std::vector<Box> inOrder() const;
    };

    double scaleFor(const Box& ink) const;
    Columns columnsAround(double scale, double columnWidth) const;
    Columns columnsInCorners(const Silhouette& silhouette, double columnWidth) const;
    std::vector<PageBlock> textOfDrawing(double width) const;
    std::vector<PageBlock> textToRead(double width, double factor) const;
    PageFlow fittingText(Columns& columns) const;
    std::optional<PageFlow> textFor(const Columns& columns, double width) const;

    const VectorSheet& m_sheet;
    Box m_room;  ///< all of it
    bool m_isPlain;
    SheetText m_text;
    std::vector<PageBlock> m_linesInHead;
    PageBlock m_head;
    Box m_body;      ///< what the head leaves
    Box m_ink;       ///< what shows of the drawing, pixels of the outline
    double m_scale;  ///< millimetres to the pixel
};

/// The columns of a room, at least one, in which text is good to read.
std::vector<Box> readingColumns(const Box& room);

}  // namespace fleetwright
