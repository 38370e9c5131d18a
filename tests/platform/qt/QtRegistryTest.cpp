#include "QtRegistry.h"

#include <gtest/gtest.h>

#include <string>

using namespace fleetwright;

TEST(QtRegistry, HandsOutValuesWithTheirTypes) {
    using namespace std::string_literals;
    const std::string key = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    QtRegistry registry;
    const auto text = registry.read(key, "CurrentVersion");
    ASSERT_TRUE(text);
    EXPECT_EQ(text->type, Registry::textType);
    EXPECT_EQ(text->bytes.substr(0, 2) + text->bytes.substr(3), "6.\0"s);
    const auto number = registry.read(
        "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System", "EnableLUA");
    ASSERT_TRUE(number);
    EXPECT_EQ(number->type, Registry::numberType);
    EXPECT_EQ(number->bytes.substr(1), "\0\0\0"s);
    EXPECT_FALSE(registry.read(key, "None"));
    EXPECT_FALSE(registry.read(key + "\\None", "CurrentVersion"));
}
