#pragma once

#include "PageFlow.h"
#include "Silhouette.h"
#include "sheetBlocks.h"
#include "sheetDocument.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace fleetwright {

/// One sheet in its part of a page: the head, the drawing, and text and legend in columns beside
/// and below it, or in the corners that it leaves. The drawing gets as large as it can with all of
/// that beside it; much to read makes it no smaller than the room alone asks for. Where all of that
/// leaves room, there are the fire power and the design as a QR code. Measures are in millimetres.
class SheetCard {
public:
    /// The least side of a system's picture that can be played with.
    static constexpr double leastSymbol = 9;

    /// What a card has for itself. In a part of a page the font and the drawing are as small as it
    /// takes to have all of the text there, within what can be read and played with.
    enum class Room { Page, Part };

    /// The sheet outlives the card, and so do the parts that are kept.
    SheetCard(const VectorSheet& sheet, const Box& box, Room room, const SheetOptions& options);

    /// Whether the drawing has that size here, and all of its text a place.
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

    /// The heights of all there is to read, for columns of one width.
    struct Reading {
        double width;
        double factor;  ///< by which letters are larger or smaller than usual
        PageFlow flow;
    };
    /// A drawing of this size, and columns for one of several readings.
    struct Places {
        double scale;
        Columns columns;
        std::size_t reading;
    };
    struct Fitting {
        std::vector<Reading> readings;
        Places places;
    };
    struct Layout {
        double scale;
        Columns columns;
        PageFlow flow;
    };

    double largestScale() const;
    double roomyScale() const;
    double leastScale() const;
    Columns columnsAround(double scale, double columnWidth) const;
    std::vector<PageBlock> textOfDrawing(double width, double size) const;
    PageFlow textToRead(double width, double factor, BlockParts parts) const;
    std::vector<Reading> readings(double factor) const;
    std::optional<Places> placesAt(double scale, const std::vector<Reading>& readings,
                                   const Silhouette& silhouette) const;
    std::optional<Fitting> fittingReadings(const Silhouette& silhouette) const;
    Layout bestLayout(const Silhouette& silhouette) const;
    void addExtras(Page& text, const Silhouette& silhouette, const Box& drawing) const;

    const VectorSheet& m_sheet;
    Box m_box;  ///< all of it
    Room m_room;
    bool m_isPlain;
    Silhouette::Outlines* m_outlines;  ///< null if none are kept
    SheetText m_text;
    ListText m_list;
    LegendText m_legend;
    std::vector<PageBlock> m_linesInHead;
    PageBlock m_head;
    Box m_body;  ///< what the head leaves
    Box m_ink;   ///< what shows of the drawing, pixels of the outline
    // Millimetres to the pixel, however much there is to read.
    double m_roomyScale;  ///< of a drawing whose text goes on on another page
    double m_leastScale;  ///< of one that has all of its text beside it
};

/// The columns of a room, at least one, in which text is good to read.
std::vector<Box> readingColumns(const Box& room);

}  // namespace fleetwright
