#include "comparisonJson.h"

namespace fleetwright {

Json cellJson(const ComparedLine::Cell& cell, ComparedLine::About about) {
    const auto& numbers = cell.numbers;
    switch (about) {
    case ComparedLine::About::Figure:
        return numbers.empty() ? Json(cell.text) : Json(numbers[0]);
    case ComparedLine::About::Fire:
        return {{"weapons", numbers[0]}, {"cost", numbers[1]}};
    case ComparedLine::About::System:
        break;
    }
    if (numbers[0] == 0) {
        return nullptr;
    }
    return {{"amount", numbers[0]}, {"mass", numbers[1]}, {"cost", numbers[2]}};
}

}  // namespace fleetwright
