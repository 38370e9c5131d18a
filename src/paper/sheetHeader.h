#pragma once

#include "PageFlow.h"
#include "sheetDocument.h"

#include <string>
#include <vector>

namespace fleetwright {

/// One of the figures in the head of a page.
struct HeadFigure {
    std::string label;  ///< in capitals
    std::string value;
};
std::vector<HeadFigure> headFigures(const SheetFacts& facts);

/// Figures between two lines, in as many rows as they need.
PageBlock figuresBlock(const std::vector<HeadFigure>& figures, double width);

/// The head of a sheet: the ship's name, what kind of ship it is, and its figures. Beside the name
/// stand the lines of the drawing's text that are handed in.
PageBlock sheetHeader(const SheetFacts& facts, const std::vector<PageBlock>& lines, double width);

/// The room beside the name: how wide lines may be there, and how high all of them together. No
/// width in a narrow head, which has none.
Box roomInHeader(double width);

}  // namespace fleetwright
