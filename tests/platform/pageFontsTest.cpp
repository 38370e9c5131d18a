#include "pageFonts.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(PageFonts, ShowEachCharacterWithTheFaceThatHasIt) {
    const auto shown = [](std::string_view text, PageFont font) {
        std::string runs;
        for (const PageRun& run : pageRuns(text, font)) {
            runs += "RBF"[static_cast<std::size_t>(run.face)] + run.text + '|';
        }
        return runs;
    };
    EXPECT_EQ(shown("Né Ωж\t巡洋\U0001F680", PageFont::Regular), "RNé Ωж |F巡洋|R\uFFFD|");
    EXPECT_EQ(shown("A巡", PageFont::Bold), "BA|F巡|");
    EXPECT_EQ(shown("\x01\u202E\u200B\xFF", PageFont::Regular), "R\uFFFD|");
    EXPECT_EQ(shown("\n", PageFont::Regular), "");
}

TEST(PageFonts, AddUpToTheWidthOfALine) {
    EXPECT_DOUBLE_EQ(textWidth("H", 2048), 1540);
    EXPECT_DOUBLE_EQ(textWidth("HH\x01", 1024), 1540);
    EXPECT_DOUBLE_EQ(textWidth("H", 2048, PageFont::Bold), 1714);
    EXPECT_DOUBLE_EQ(textWidth("H巡\u0E01", 1), 1540 / 2048. + 1 + 0.5);
    EXPECT_EQ(textWidth("", 3), 0);
}
