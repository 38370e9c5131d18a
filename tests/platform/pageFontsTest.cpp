#include "pageFonts.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(PageFonts, ShowEachCharacterWithTheFaceThatHasIt) {
    std::string shown;
    for (const PageRun& run :
         pageRuns("Né Ωж\t巡洋\U0001F680\x01\u202E\u200B\xFF\n", PageFont::Regular)) {
        shown += "RBF"[static_cast<std::size_t>(run.face)] + run.text + '|';
    }
    EXPECT_EQ(shown, "RNé Ωж |F巡洋|R\uFFFD\uFFFD|");
    EXPECT_EQ(pageRuns("A", PageFont::Bold).front().face, PageFace::Bold);
}

TEST(PageFonts, AddUpToTheWidthOfALine) {
    EXPECT_DOUBLE_EQ(textWidth("HH\x01", 1024), 1540);
    EXPECT_DOUBLE_EQ(textWidth("H", 2048, PageFont::Bold), 1714);
    EXPECT_DOUBLE_EQ(textWidth("H巡\u0E01", 1), 1540 / 2048. + 1 + 0.5);
}
