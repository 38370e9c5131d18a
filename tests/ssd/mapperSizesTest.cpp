#include "mapperSizes.h"

#include "Error.h"

#include <gtest/gtest.h>

using namespace fleetwright;

TEST(MapperSizes, FollowTheSheetOrTheFrame) {
    MapperMeasures measures{.sheetTop = 735,
                            .sheetWidth = 6000,
                            .sheetHeight = 9000,
                            .frameLeft = 105,
                            .frameWidth = 4635};
    EXPECT_EQ(fitToSheet(measures), (WindowSize{6305, 9935}));
    measures.sheetWidth = 3000;
    EXPECT_EQ(fitToSheet(measures), (WindowSize{4940, 9935}));
    measures.sheetWidth = 32'767;
    EXPECT_EQ(fitToSheet(measures).width, 33'072);
    measures.sheetWidth = 32'768;
    EXPECT_THROW(fitToSheet(measures), OverflowError);
}

TEST(MapperSizes, KeepAWindowAboveItsSmallestSize) {
    const MapperMeasures measures{.sheetTop = 735,
                                  .sheetWidth = 6000,
                                  .sheetHeight = 9000,
                                  .frameLeft = 105,
                                  .frameWidth = 4635};
    EXPECT_EQ(keepMinimumSize(measures, {6305, 9935}), (WindowSize{6305, 10'235}));
    EXPECT_EQ(keepMinimumSize(measures, {4939, 10'234}), (WindowSize{4940, 10'235}));
    EXPECT_EQ(keepMinimumSize(measures, {4940, 10'236}), (WindowSize{4940, 10'236}));
}
