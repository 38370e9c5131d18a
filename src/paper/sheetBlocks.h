#pragma once

// What a sheet says, as blocks for columns of one width. All measures are in millimetres.

#include "PageFlow.h"
#include "pageTexts.h"
#include "sheetDocument.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

class KeptTexts;

/// The block of text of a drawing, taken apart.
struct SheetText {
    std::vector<std::string> lines;   ///< on top: name, designer, points and so on
    std::string separator;            ///< what stands between; empty if nothing is listed
    std::vector<std::string> listed;  ///< systems without a place on the drawing, a line a piece
};
SheetText sheetText(std::string_view text);

/// The usual size of the font for the text of a drawing.
inline constexpr double textLineSize = 2.8;

/// Lines of text.
std::vector<PageBlock> lineBlocks(const std::vector<std::string>& lines, double width, double size);
/// "fore, port; mass 3, 10 points each", or "2 with the hull; 1 more: mass 1, 4 points", in which
/// blanks that part no line are no-break spaces.
std::string particulars(const LegendRow& row);
/// What blocks are made with: whoever tries many layouts needs the heights alone.
enum class BlockParts { All, Heights };
/// The list of systems without a place, equal ones once with their count, for columns of any width.
class ListText {
public:
    explicit ListText(const SheetText& text);

    /// Under a heading if that is not empty.
    std::vector<PageBlock> blocks(double width, double size, std::string_view heading,
                                  BlockParts parts) const;

private:
    std::string m_separator;
    std::vector<MeasuredText> m_lines;
};
/// The legend, for columns of any width.
class LegendText {
public:
    /// With texts that were measured for other sheets, if some are kept.
    LegendText(const std::vector<LegendRow>& legend, KeptTexts* kept);

    /// The letters are larger or smaller than usual by this factor.
    std::vector<PageBlock> blocks(double width, double factor, BlockParts parts) const;

private:
    struct Row {
        SheetRecord::Picture picture;
        std::shared_ptr<const MeasuredText> name;
        std::shared_ptr<const MeasuredText> particulars;
        std::shared_ptr<const MeasuredText> rules;
    };

    static PageBlock block(const Row& row, double width, double factor, BlockParts parts);

    std::vector<Row> m_rows;
};
/// A ship's name above what goes on on another page.
PageBlock continuedBlock(const std::string& shipName, double width);

}  // namespace fleetwright
