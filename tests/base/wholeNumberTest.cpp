#include "wholeNumber.h"

#include "Error.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(WholeNumber, ReadsWhatIsANumber) {
    const struct {
        const char* text;
        std::int32_t number;
    } cases[] = {
        {"50", 50},
        {"  7  ", 7},
        {"+3", 3},
        {"-12", -12},
        {"5.", 5},
        {".5", 0},
        {"-.5", 0},
        {"0.5", 0},
        {"1.5", 2},
        {"2.5", 2},
        {"3.5", 4},
        {"-2.5", -2},
        {"2.50000000000000000000001", 3},
        {"2.4999999999999999999999", 2},
        {"00000000000000000000012", 12},
        {"2147483647", 2147483647},
        {"-2147483648", INT32_MIN},
        {"2147483647.49", 2147483647},
        {"-2147483648.5", INT32_MIN},
    };
    for (const auto& example : cases) {
        EXPECT_EQ(wholeNumber(example.text), example.number) << example.text;
    }
}

TEST(WholeNumber, RefusesWhatIsNone) {
    for (const char* text : {"", "  ", ".", "-", "+-1", "- 1", "1e3", "1,5", "1 2", "0x10", "&H10",
                             "1..2", "12a", "\t1", "١"}) {
        EXPECT_THROW(wholeNumber(text), NotANumberError) << text;
    }
    for (const char* text : {"2147483648", "2147483647.5", "-2147483649", "99999999999999999999"}) {
        EXPECT_THROW(wholeNumber(text), OverflowError) << text;
    }
}
