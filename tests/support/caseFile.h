#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

/// A case of a file of cases: texts under their names.
struct Case {
    std::string title;
    std::vector<std::pair<std::string, std::string>> texts;

    /// The text of this name; empty if there is none. Its last line has no end.
    std::string operator[](const std::string& name) const;
};

/// The lines of a text.
std::vector<std::string> linesOf(const std::string& text);

/// Holds each case of a file below tests/ against what `act` makes of its texts:
///
///     === the title of a case
///     --- the name of a text
///     the text, in any number of lines
///     --- makes
///     what the act is to make of these texts
///
/// If it makes something else, the test fails, and the file as it would have to be is left in the
/// folder of temporary files, to be read and put in the place of the old one.
void expectCases(const std::string& file, const std::function<std::string(const Case&)>& act);

}  // namespace fleetwright
