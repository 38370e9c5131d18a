#include "TextFile.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <regex>

using namespace fleetwright;

namespace {

/// The first group of every match.
std::vector<std::string> found(const std::string& text, const std::string& pattern) {
    const std::regex regex(pattern);
    return {std::sregex_token_iterator(text.begin(), text.end(), regex, 1), {}};
}

}  // namespace

TEST(Manual, NamesEveryCommandAndOptionOfTheHelp) {
    const std::string help = runTool("/", {"--help"}).output;
    const std::string manual = readTextFile(SOURCE_FOLDER "/docs/man/fleetwright-cli.1");
    const std::vector<std::string> commands = found(help, "\n  ([a-z]+) ");
    const std::vector<std::string> options = found(help, "[ \\[]-(-?[a-z][a-z-]*)");
    EXPECT_GE(commands.size(), 7U);
    EXPECT_GE(options.size(), 10U);
    for (const std::string& command : commands) {
        EXPECT_NE(manual.find("\n.It Cm " + command), std::string::npos) << command;
    }
    for (const std::string& option : options) {
        EXPECT_TRUE(std::regex_search(manual, std::regex("Fl " + option + "\\b"))) << option;
    }
}
