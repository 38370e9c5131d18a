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
    /// Name and width of the picture, and size of the window.
    std::string look() const {
        const Form& form = window;
        return window.picImage.toolTip() + ' ' + std::to_string(window.picImage.picture().width()) +
               ' ' + std::to_string(form.width()) + 'x' + std::to_string(form.height());
    }

    ChoosingDesktop desktop;
    PicturesByName pictures;
    frmSSDView window{{"/app", desktop, pictures}};
};

// A box has a border of 2 pixels, and the window 200 twips beside the box and 500 below it.
const std::string emptyView = " 0 3165x1295", smallView = "small.bmp 100 3165x2045",
                  largeView = "large.bmp 400 6365x5795";

TEST_F(Viewer, GrowsWithThePictureAndNeverShrinks) {
    select("small.bmp");
    EXPECT_EQ(look(), smallView);
    EXPECT_EQ(desktop.asked.initialFolder, "/app/ssds");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    select("large.bmp");
    window.Form::resize(1, 1);
    EXPECT_EQ(look(), largeView);
    select("small.bmp");
    EXPECT_EQ(look(), "small.bmp 100 6365x5795");
    // The user can make it larger, and smaller only as far as the picture lets him.
    window.Form::resize(9000, 9000);
    EXPECT_EQ(look(), "small.bmp 100 9000x9000");
    window.Form::resize(1000, 9000);
    EXPECT_EQ(look(), "small.bmp 100 3050x9000");
}

TEST_F(Viewer, FitsOnlyInItsNormalStateAndOpensAnew) {
    for (const WindowState state : {WindowState::Minimized, WindowState::Maximized}) {
        window.setState(state);
        select("large.bmp");
        window.paint();
        EXPECT_EQ(look(), "large.bmp 400 3165x1295");
        window.setState(WindowState::Normal);
        EXPECT_EQ(look(), largeView);
        window.setState(state);
        window.chkCancel.press();
        EXPECT_FALSE(window.isLoaded() || window.isVisible());
        window.show();
        EXPECT_EQ(look(), emptyView);
        EXPECT_TRUE(window.isVisible() && !window.chkCancel.isTicked());
    }
}

TEST_F(Viewer, AFailureLeavesThePictureOnShowWithoutAMessage) {
    select("small.bmp");
    for (const std::optional<std::string>& file :
         {std::optional<std::string>("none.bmp"), {""}, {}}) {
        select(file);
        EXPECT_EQ(look() + window.cmdSelect.toolTip(),
                  smallView + "Still the picture before: \"none.bmp\" cannot be read");
    }
    select("large.bmp");
    EXPECT_EQ(look() + window.cmdSelect.toolTip() + desktop.log, largeView);
}

}  // namespace
