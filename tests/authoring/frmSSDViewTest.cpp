#include "frmSSDView.h"

#include "fakeServices.h"
#include "formText.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

class Viewer : public testing::Test {
protected:
    Viewer() {
        pictures.files["large.bmp"] = Raster(400, 300);
        pictures.files["small.bmp"] = Raster(100, 50);
    }

    void select(const std::optional<std::string>& file) {
        desktop.choice = file;
        window.cmdSelect.press();
    }
    void resize(int width, int height) { window.resize(width, height); }
    /// Width of the picture and size of the window.
    std::string look() const {
        const Form& form = window;
        return std::to_string(window.picImage.picture().width()) + ' ' +
               std::to_string(form.width()) + 'x' + std::to_string(form.height());
    }

    ChoosingDesktop desktop;
    PicturesByName pictures;
    frmSSDView window{{.appFolder = "/app", .desktop = desktop, .pictures = pictures}};
};

// A box has a border of 2 pixels, and the window 200 twips beside the box and 500 below it.
const std::string emptyLook = "0 3165x1295", smallLook = "100 3165x2045",
                  largeLook = "400 6365x5795";

TEST_F(Viewer, GrowsWithThePictureAndNeverShrinks) {
    EXPECT_EQ(formText(window),
              "frmSSDView 0,0 3045x825 \"View SSD\" hidden, border sizable\n"
              "  fraCommands 105,0 2745x645\n"
              "    cmdSelect 105,105 1215x435 \"Select File\"\n"
              "    chkCancel 1425,105 1215x435 \"Cancel\" \"Closes the window\" graphical\n"
              "  picImage 105,735 2745x60 \"Sheet\" framed\n");
    window.show();
    EXPECT_EQ(look(), emptyLook);
    select("small.bmp");
    EXPECT_EQ(look(), smallLook);
    select("large.bmp");
    EXPECT_EQ(look(), largeLook);
    EXPECT_EQ(desktop.asked.initialFolder, "/app/ssds");
    EXPECT_EQ(desktop.asked.filterIndex, 2);
    EXPECT_EQ(desktop.asked.filter, "All Files (*.*)|*.*|Bitmaps(*.bmp)|*.bmp|"
                                    "Gif Files (*.gif)|*.gif|Jpeg Files (*.jpg)|*.jpg");
    resize(1, 1);
    EXPECT_EQ(look(), largeLook);
    select("small.bmp");
    EXPECT_EQ(look(), "100 6365x5795");
    // The user can make it larger, and smaller only as far as the picture lets him.
    resize(9000, 9000);
    EXPECT_EQ(look(), "100 9000x9000");
    resize(1000, 9000);
    EXPECT_EQ(look(), "100 3050x9000");
}

TEST_F(Viewer, FitsOnlyInItsNormalState) {
    for (const WindowState state : {WindowState::Minimized, WindowState::Maximized}) {
        window.show();
        window.setState(state);
        select("large.bmp");
        window.paint();
        EXPECT_EQ(look(), "400 3165x1295");
        window.setState(WindowState::Normal);
        EXPECT_EQ(look(), largeLook);
        window.unload();
    }
}

TEST_F(Viewer, AFailureLeavesThePictureOnShowWithoutAMessage) {
    window.show();
    select("small.bmp");
    for (const std::optional<std::string>& file :
         {std::optional<std::string>("none.bmp"), {""}, {}}) {
        select(file);
        EXPECT_EQ(look(), smallLook);
        EXPECT_EQ(window.picImage.toolTip(), "small.bmp");
        EXPECT_EQ(window.cmdSelect.toolTip(),
                  "Still the picture before: \"none.bmp\" cannot be read");
    }
    select("large.bmp");
    EXPECT_EQ(window.picImage.toolTip() + window.cmdSelect.toolTip(), "large.bmp");
    EXPECT_EQ(desktop.log, "");
}

TEST_F(Viewer, CancelClosesItAndItOpensAnew) {
    window.show();
    select("large.bmp");
    window.setState(WindowState::Maximized);
    window.chkCancel.press();
    EXPECT_FALSE(window.isLoaded() || window.isVisible());
    window.show();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.chkCancel.isTicked());
    EXPECT_EQ(window.state(), WindowState::Normal);
    EXPECT_EQ(window.picImage.toolTip(), "");
    EXPECT_EQ(look(), emptyLook);
}

}  // namespace
