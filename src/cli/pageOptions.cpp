#include "pageOptions.h"

#include "text.h"
#include "wholeNumber.h"

namespace fleetwright {

namespace {

PageSize paperOf(const std::string& name) {
    if (toCapitals(name) == "A4") {
        return paperA4;
    }
    if (toCapitals(name) == "LETTER") {
        return paperLetter;
    }
    throw UsageError("--paper is A4 or Letter");
}

}  // namespace

void checkPaper(std::string_view, const std::string& name) {
    paperOf(name);
}

void checkPerPage(std::string_view, const std::string& number) {
    if (number != "1" && number != "2" && number != "4") {
        throw UsageError("--per-page is 1, 2 or 4");
    }
}

SheetOptions sheetOptionsOf(const Options& options, int usualPerPage) {
    const std::string perPage = options.value("--per-page");
    return {.paper = paperOf(options.value("--paper")),
            .perPage = perPage.empty() ? usualPerPage : wholeNumber(perPage),
            .isPlain = options.has("--plain")};
}

}  // namespace fleetwright
