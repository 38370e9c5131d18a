#include "frmSSDView.h"

#include "fakeServices.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

class Viewer : public testing::Test {
protected:
    Viewer() {
        pictures.files["large.bmp"] = Raster(400, 300);
        pictures.files["small.bmp"] = Raster(100, 50);
        window.show();
    }

    void select(const std::optional<std::string>& file) {
        desktop.choice = file;
        window.cmdSelect.press();
    }

    std::pair<int, int> size() const {
        const Form& form = window;
        return {form.width(), form.height()};
    }

    ChoosingDesktop desktop;
    PicturesByName pictures;
    frmSSDView window{{.appFolder = "/app", .desktop = desktop, .pictures = pictures}};
};

// The picture with its border, and what the window has around it.
const std::pair largeWindow(105 + 404 * 15 + 200, 735 + 304 * 15 + 500);

TEST_F(Viewer, GrowsWithThePictureAndNeverShrinks) {
    EXPECT_EQ(size(), std::pair(3165, 1295));
    select("small.bmp");
    EXPECT_EQ(size(), std::pair(3165, 735 + 54 * 15 + 500));
    select("large.bmp");
    EXPECT_EQ(size(), largeWindow);
    EXPECT_EQ(desktop.asked.initialFolder, "/app/ssds");
    select("small.bmp");
    EXPECT_EQ(size(), largeWindow);
    // The user can make it larger, and smaller only as far as the picture lets him.
    window.resize(9000, 9000);
    EXPECT_EQ(size(), std::pair(9000, 9000));
    window.resize(1000, 9000);
    EXPECT_EQ(size(), std::pair(105 + 2745 + 200, 9000));
    select("large.bmp");
    window.resize(1, 1);
    EXPECT_EQ(size(), largeWindow);
}

TEST_F(Viewer, FitsOnlyInItsNormalState) {
    for (const WindowState state : {WindowState::Minimized, WindowState::Maximized}) {
        window.unload();
        window.show();
        const auto before = size();
        window.setState(state);
        select("large.bmp");
        window.paint();
        EXPECT_EQ(size(), before);
        window.setState(WindowState::Normal);
        EXPECT_EQ(size(), largeWindow);
    }
}

TEST_F(Viewer, AFailureLeavesThePictureOnShowWithoutAMessage) {
    select("small.bmp");
    for (const std::optional<std::string>& file :
         {std::optional<std::string>("none.bmp"), {""}, {}}) {
        select(file);
        EXPECT_EQ(window.picImage.picture().width(), 100);
        EXPECT_EQ(window.picImage.toolTip(), "small.bmp");
    }
    EXPECT_EQ(desktop.log, "");
}

TEST_F(Viewer, CancelClosesItAndItOpensAnew) {
    select("large.bmp");
    window.chkCancel.press();
    EXPECT_FALSE(window.isLoaded() || window.isVisible());
    window.show();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.chkCancel.isTicked());
    EXPECT_TRUE(window.picImage.picture().isEmpty());
    EXPECT_EQ(size(), std::pair(3165, 1295));
}

}  // namespace
