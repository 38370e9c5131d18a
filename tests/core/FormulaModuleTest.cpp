#include "formula_calculate.h"
#include "runCommand.h"

#include <dlfcn.h>

#include <gtest/gtest.h>

TEST(FormulaModule, HasTheOneExportUnderItsPlainName) {
    void* const module = dlopen(APP_FOLDER "/w_dll.dll", RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module, nullptr) << dlerror();
    const auto calculate = reinterpret_cast<FormulaFunction>(dlsym(module, "formula_calculate"));
    ASSERT_NE(calculate, nullptr);
    char text[] = "roundup(mass * 0.1) * amount + thrust";
    EXPECT_EQ(calculate(text, 30, 1, 1, 2, 60, 4), 14);
    dlclose(module);

    // What else it might show would be open to clashes with the program that loads it.
    const fleetwright::CommandResult names = fleetwright::runCommand(
        "nm -D --defined-only --format=just-symbols " APP_FOLDER "/w_dll.dll");
    EXPECT_EQ(names.output, "formula_calculate\n");
}
