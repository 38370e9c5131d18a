#include "runCommand.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(FormulaModule, HasNoOtherExport) {
    const CommandResult names =
        runCommand("nm -D --defined-only --format=just-symbols " APP_FOLDER "/w_dll.dll");
    EXPECT_EQ(names.output, "formula_calculate\n");
}
