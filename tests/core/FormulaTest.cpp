#include "allocationCount.h"
#include "formulaFault.h"
#include "formula_calculate.h"

#include <gtest/gtest.h>

#include <string>

using namespace fleetwright;

namespace {

std::int32_t value(std::string text) {
    return formula_calculate(text.data(), 50, 2, 3, 4, 175, 6);
}

void expectValues(std::initializer_list<std::pair<const char*, std::int32_t>> cases) {
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(value(text), expected) << text;
        EXPECT_FALSE(formulaFault(text)) << text;
    }
}

std::string repeat(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

}  // namespace

TEST(Formula, KnowsTheShipAndItsOperators) {
    expectValues({
        {"mass", 50},
        {"HULL", 2},
        {"Ftl", 3},
        {"thrust", 4},
        {"hullCost", 175},
        {"\tamount ", 6},
        {"1+2*3", 7},
        {"(1+2)*3", 9},
        {"10-4-3", 3},
        {"100/10/5", 2},
        {"7%4", 3},
        {"-7%4", -3},
        {"7%-4", 3},
        {"2^3^2", 512},
        {"-2^2", -4},
        {"2^-1*4", 2},
        {"2^ + 3", 8},
        {"2 - -3", 5},
        {"- - 5", 5},
        {"+-5", -5},
        {"2*-3", -6},
        {"6/4*2", 3},
        {"1=1", 1},
        {"1==2", 0},
        {"1<>2", 1},
        {"1!=1", 0},
        {"2<2", 0},
        {"2<=2", 1},
        {"3>2", 1},
        {"2>=3", 0},
        {"3>2>1", 0},
        {"1<2=1", 1},
        {"1+1=2", 1},
        {"not 0", 1},
        {"NOT 5", 0},
        {"not 1 = 0", 1},
        {"not 2 ^ 0", 0},
        {"2^not 0", 2},
        {"5 and 3", 1},
        {"0 or 0.5", 1},
        {"1 or 0 and 0", 1},
        {"1and 2", 1},
        {"0 and 1 or 1", 1},
        {"1?2:3", 2},
        {"0?2:0?4:5", 5},
        {"1?0?7:8:9", 8},
        {"1 or 1 ? 4 : 5", 4},
        {"hull >= 4 ? 6 : 9", 9},
        {"(mass>30)*amount", 6},
    });
}

TEST(Formula, KnowsItsFunctions) {
    expectValues({
        {"roundup(30*0.1)", 3},
        {"roundup(2.25)", 3},
        {"RoundUp (-13.5)", -12},
        {"floor(-2.5)", -3},
        {"ceil(2.1)", 3},
        {"round(2.5)", 2},
        {"round(3.5)", 4},
        {"trunc(-2.9)", -2},
        {"abs(-3)", 3},
        {"min(3;1;2)", 1},
        {"max( 3 ; 7 ; 2 )", 7},
        {"min(4)", 4},
        {"max(roundup(mass*0.05);2)*amount", 18},
    });
}

TEST(Formula, RoundsItsResultTiesToEvenWithin32Bits) {
    expectValues({
        {"0.5", 0},
        {"1.5", 2},
        {"2.5", 2},
        {"-2.5", -2},
        {"0.1+0.2", 0},
        {"2147483647.4", 2147483647},
        {"2147483647.5", 0},
        {"-2147483648.5", INT32_MIN},
        {"99999999999999999999999", 0},
        {"0.00000000000000000000000000001*0", 0},
        {"123456789012345678901234567890/123456789012345678901234567890", 1},
        {"0^-1", 0},
        {"(-1)^0.5", 0},
        {"1/(0^-1)", 0},
    });
    EXPECT_EQ(value("1" + repeat("0", 400)), 0);
    EXPECT_EQ(value("1/1" + repeat("0", 400) + "+4"), 4);
    EXPECT_EQ(value("0." + repeat("0", 400) + "1+4"), 4);
}

TEST(Formula, DividesByZeroOnlyWhereItCounts) {
    for (const char* text :
         {"1/0", "5%0", "0*(1/0)", "1/-0", "1?1/0:2", "1 and 1/0", "max(1;1/0)"}) {
        EXPECT_EQ(value(text), 0) << text;
        EXPECT_FALSE(formulaFault(text)) << text;
    }
    for (const char* text : {"0?1/0:7", "1?7:1/0", "(0 and 1/0)+7", "(1 or 1/0)+6", "1?7:(1?1/0:1)",
                             "0?(1/0?1:2):7"}) {
        EXPECT_EQ(value(text), 7) << text;
    }
}

TEST(Formula, SaysWhatCannotBeReadAndWhere) {
    const struct {
        const char* text;
        int column;
        const char* words;
    } cases[] = {
        {"", 1, "a number, a name or ( is expected here, not the end"},
        {"1 + ", 5, "a number, a name or ( is expected here, not the end"},
        {"1 + foo", 5, "unknown name \"foo\""},
        {"hullcosts", 1, "unknown name \"hullcosts\""},
        {"mass2", 1, "unknown name \"mass2\""},
        {"1 2", 3, "an operator or the end is expected here, not \"2\""},
        {"(1", 3, ") is expected here, not the end"},
        {"1)", 2, "an operator or the end is expected here, not \")\""},
        {"5.", 2, "an operator or the end is expected here, not \".\""},
        {".5", 1, "a number, a name or ( is expected here, not \".\""},
        {"1 ? 2", 6, ": is expected here, not the end"},
        {"floor 2", 7, "a function needs its arguments in ( )"},
        {"floor(1;2)", 8, "this function takes one argument"},
        {"min()", 5, "a number, a name or ( is expected here, not \")\""},
        {"0 ? é : 1", 5, "a number, a name or ( is expected here, not \"é\""},
        {"1 ! 2", 3, "an operator or the end is expected here, not \"!\""},
        {"1 < = 2", 5, "a number, a name or ( is expected here, not \"=\""},
        {"1 and2", 3, "an operator or the end is expected here, not \"and2\""},
        {"0 ? 1/0 : (", 12, "a number, a name or ( is expected here, not the end"},
    };
    for (const auto& example : cases) {
        EXPECT_EQ(value(example.text), 0) << example.text;
        const auto fault = formulaFault(example.text);
        ASSERT_TRUE(fault) << example.text;
        EXPECT_EQ(fault->column, example.column) << example.text;
        EXPECT_EQ(fault->text, example.words) << example.text;
    }
}

TEST(Formula, Nests64LevelsAndNoMore) {
    const struct {
        const char *open, *middle, *close;
    } nestings[] = {
        {"(", "7", ")"},   {"min(", "7", ")"}, {"- -", "7", ""},      {"1?", "7", ":0"},
        {"0?0:", "7", ""}, {"1^", "1", ""},    {"not not ", "7", ""},
    };
    for (const auto& nesting : nestings) {
        const int perRound = nesting.open[0] == '-' || nesting.open[0] == 'n' ? 2 : 1;
        const int rounds = 64 / perRound;
        EXPECT_NE(
            value(repeat(nesting.open, rounds) + nesting.middle + repeat(nesting.close, rounds)), 0)
            << nesting.open;
        const std::string tooDeep =
            repeat(nesting.open, rounds + 1) + nesting.middle + repeat(nesting.close, rounds + 1);
        EXPECT_EQ(value(tooDeep), 0) << nesting.open;
        EXPECT_EQ(formulaFault(tooDeep)->text, "nested deeper than 64 levels") << nesting.open;
    }
    // A hostile text gets no deeper, however long it is.
    EXPECT_EQ(value(repeat("(", 1'000'000)), 0);
    EXPECT_EQ(value(repeat("-", 1'000'000)), 0);
    EXPECT_EQ(value(repeat("0?", 1'000'000)), 0);
    EXPECT_EQ(value(repeat("1+", 1'000'000) + "1"), 1'000'001);
}

TEST(Formula, AllocatesNothingAndLeavesTheText) {
    std::string text =
        "max(roundup(mass * 0.05); 2) * amount + (hull >= 4 ? 6 : 9.12345678901234567)";
    const std::string before = text;
    const int allocations = allocationCount();
    const std::int32_t first = formula_calculate(text.data(), 50, 2, 3, 4, 175, 6);
    EXPECT_EQ(formula_calculate(text.data(), 50, 2, 3, 4, 175, 6), first);
    EXPECT_EQ(allocationCount(), allocations);
    EXPECT_EQ(text, before);
}
