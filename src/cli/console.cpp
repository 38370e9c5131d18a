#include "console.h"

#include "terminal.h"
#include "text.h"

namespace fleetwright {

namespace {

/// A text of ours, whatever its length; what it holds from outside is cut already.
std::string wholeLine(std::string_view text) {
    return shownText(text, std::string_view::npos) + '\n';
}

}  // namespace

void printResults(std::string_view text) {
    static const bool isShown = isTerminal(stdout);
    const std::string shown = isShown ? shownLines(text) : std::string();
    const std::string_view printed = isShown ? shown : text;
    std::fwrite(printed.data(), 1, printed.size(), stdout);
}

std::string resultLine(std::string_view text) {
    return isTerminal(stdout) ? wholeLine(text) : std::string(text) + '\n';
}

void complain(std::string_view line) {
    std::fputs(wholeLine(line).c_str(), stderr);
}

}  // namespace fleetwright
