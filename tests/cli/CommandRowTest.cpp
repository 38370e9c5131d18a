#include "runCommand.h"
#include "runTool.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

std::string hello(const std::string& arguments) {
    return runCommand(CLI_WITH_HELLO " " + arguments).output;
}

/// What bash makes of a command line whose last word is not finished.
std::string completed(const std::string& words, int last) {
    return runCommand("bash -c '. " COMPLETION "; COMP_WORDS=(fleetwright-cli " + words +
                      "); COMP_CWORD=" + std::to_string(last) +
                      "; _fleetwright_cli; echo \"${COMPREPLY[@]}\"'")
        .output;
}

}  // namespace

TEST(CommandRow, IsAllThatANewCommandTakes) {
    EXPECT_EQ(hello("hello you --loud"), "HELLO you\n");
    EXPECT_EQ(hello("hello"),
              "fleetwright-cli: too few words for hello WORLD (see fleetwright-cli --help)\n");
    EXPECT_NE(hello("--help").find("  hello WORLD                   Greet the WORLD\n"),
              std::string::npos);
    EXPECT_TRUE(hello("hello -h").starts_with("Greet the WORLD.\n"));
    EXPECT_NE(hello("hello -h").find("\n  --loud  "), std::string::npos);
    EXPECT_EQ(hello("eval 1"), "1\n");
}

TEST(CommandRow, CompletesCommandsOptionsAndChoices) {
    EXPECT_EQ(completed("re", 1), "report recovered\n");
    EXPECT_EQ(completed("--app = here fig", 4), "figures\n");
    EXPECT_EQ(completed("--app here figures --au", 4), "--auto-mass\n");
    EXPECT_EQ(completed("figures --map", 2), "\n") << "which is an option of sheet";
    EXPECT_EQ(completed("figures fig", 2), "\n") << "which is a file";
    EXPECT_EQ(completed("sheet --paper A", 3), "A4\n");
    EXPECT_EQ(completed("sheet --paper = L", 4), "Letter\n");
    EXPECT_EQ(completed("sheet --map --pa", 3), "\n") << "which is a name";
}
