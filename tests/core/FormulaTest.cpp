// Formulas: their values, what is said of those that cannot be read, and the module with the one
// that the windows use.

#include "caseFile.h"
#include "formulaFault.h"
#include "formula_calculate.h"
#include "modules.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <string>

using namespace fleetwright;

namespace {

std::atomic<int> g_allocations = 0;

std::int32_t value(std::string text) {
    return formula_calculate(text.data(), 50, 2, 3, 4, 175, 6);
}

std::string repeat(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

}  // namespace

// Both, since one way to free serves both.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++g_allocations;
    return std::malloc(size);
}

void* operator new(std::size_t size) {
    if (void* const memory = operator new(size, std::nothrow)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

TEST(Formula, HasItsValueOrAFault) {
    expectCases("core/golden/formulas.txt", [](const Case& given) {
        std::string text;
        for (const std::string& formula : linesOf(given["formulas"])) {
            text += formula + " -> " + std::to_string(value(formula));
            if (const auto fault = formulaFault(formula)) {
                text += ", column " + std::to_string(fault->column) + ": " + fault->text;
            }
            text += '\n';
        }
        return text;
    });
    EXPECT_EQ(value("\tamount "), 6);
    EXPECT_EQ(formulaFault("")->column, 1);
}

TEST(Formula, ReadsNumbersOfAnyLength) {
    EXPECT_EQ(value("1" + repeat("0", 400)), 0);
    EXPECT_EQ(value("1/1" + repeat("0", 400) + "+4"), 4);
    EXPECT_EQ(value("0." + repeat("0", 400) + "1+4"), 4);
    EXPECT_EQ(value("(0." + repeat("0", 400) + "1>0)+4"), 4);
}

TEST(Formula, Nests64LevelsAndNoMore) {
    const struct {
        const char *open, *middle, *close;
        int perRound;
    } nestings[] = {{"(", "7", ")", 1},      {"min(", "7", ")", 1}, {"- -", "7", "", 2},
                    {"1?", "7", ":0", 1},    {"0?0:", "7", "", 1},  {"1^", "1", "", 1},
                    {"not not ", "7", "", 2}};
    for (const auto& [open, middle, close, perRound] : nestings) {
        const int rounds = 64 / perRound;
        EXPECT_NE(value(repeat(open, rounds) + middle + repeat(close, rounds)), 0) << open;
        const std::string tooDeep = repeat(open, rounds + 1) + middle + repeat(close, rounds + 1);
        EXPECT_EQ(value(tooDeep), 0) << open;
        EXPECT_EQ(formulaFault(tooDeep)->text, "nested deeper than 64 levels") << open;
    }
    // A hostile text gets no deeper, however long it is.
    for (const char* open : {"(", "-", "0?"}) {
        EXPECT_EQ(value(repeat(open, 1'000'000)), 0);
    }
    EXPECT_EQ(value(repeat("1+", 1'000'000) + "1"), 1'000'001);
}

TEST(Formula, AllocatesNothingAndLeavesTheText) {
    std::string text =
        "max(roundup(mass * 0.05); 2) * amount + (hull >= 4 ? 6 : 9.12345678901234567)";
    const std::string before = text;
    const int allocations = g_allocations;
    const std::int32_t first = formula_calculate(text.data(), 50, 2, 3, 4, 175, 6);
    EXPECT_EQ(formula_calculate(text.data(), 50, 2, 3, 4, 175, 6), first);
    EXPECT_EQ(g_allocations, allocations);
    EXPECT_EQ(text, before);
}

TEST(FormulaModule, HasItsExportUnderItsPlainName) {
    void* const module = loadModule(APP_FOLDER "/w_dll.dll");
    const auto calculate = moduleFunction<FormulaFunction>(module, "formula_calculate");
    ASSERT_NE(calculate, nullptr);
    char text[] = "roundup(mass * 0.1) * amount + thrust";
    EXPECT_EQ(calculate(text, 30, 1, 1, 2, 60, 4), 14);
    EXPECT_EQ(moduleSymbol(module, "other"), nullptr);
    freeModule(module);
    EXPECT_EQ(loadModule(APP_FOLDER "/none.dll"), nullptr);
}
