#include "pageFontFiles.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>

// Widgets need an application, and here no screen.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (QFontDatabase::families().isEmpty()) {  // as on Windows without a screen
        constexpr int points = 9;
        const QString family = fleetwright::pageFont(fleetwright::PageFace::Regular).family();
        QApplication::setFont(QFont(family, points));
    }
    return RUN_ALL_TESTS();
}
