#pragma once

#include "CommandRow.h"
#include "sheetDocument.h"

#include <string>
#include <string_view>

// The options of commands that lay sheets out on pages.

namespace fleetwright {

/// Throw UsageError for what is no paper, or no number of sheets.
void checkPaper(std::string_view option, const std::string& name);
void checkPerPage(std::string_view option, const std::string& number);

inline constexpr OptionRow paperOption = {.name = "--paper",
                                          .value = "A4|Letter",
                                          .help = "The paper of a .pdf or .svg",
                                          .byDefault = "A4",
                                          .check = checkPaper};
inline constexpr OptionRow perPageOption = {.name = "--per-page",
                                            .value = "1|2|4",
                                            .help = "How many small sheets share a page of a "
                                                    ".pdf, by default 1, in a fleet 4",
                                            .check = checkPerPage};
inline constexpr OptionRow plainOption = {
    .name = "--plain", .help = "Leave out all but the drawing and its text in a .pdf or .svg"};

/// What a command line says of them; small sheets share a page by `usualPerPage` where it says
/// nothing of that.
SheetOptions sheetOptionsOf(const Options& options, int usualPerPage = 1);

}  // namespace fleetwright
