#include "formula_calculate.h"

#include <dlfcn.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

TEST(FormulaModule, HasTheOneExportUnderItsPlainName) {
    void* const module = dlopen(APP_FOLDER "/w_dll.dll", RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module, nullptr) << dlerror();
    const auto calculate = reinterpret_cast<FormulaFunction>(dlsym(module, "formula_calculate"));
    ASSERT_NE(calculate, nullptr);
    char text[] = "roundup(mass * 0.1) * amount + thrust";
    EXPECT_EQ(calculate(text, 30, 1, 1, 2, 60, 4), 14);
    dlclose(module);

    // What else it might show would be open to clashes with the program that loads it.
    FILE* const names =
        popen("nm -D --defined-only --format=just-symbols " APP_FOLDER "/w_dll.dll", "r");
    ASSERT_NE(names, nullptr);
    std::string symbols;
    for (int c = 0; (c = std::fgetc(names)) != EOF;) {
        symbols += static_cast<char>(c);
    }
    pclose(names);
    EXPECT_EQ(symbols, "formula_calculate\n");
}
