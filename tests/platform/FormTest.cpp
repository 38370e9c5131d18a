// What becomes of a form, whoever acts on it.

#include "Form.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

using namespace fleetwright;

namespace {

class Told : public Form {
public:
    Told() : Form({.name = "frmTold", .caption = "Told", .width = 3000, .height = 1500}) {
        m_changed = Changed.connect([this] { log += "changed "; });
        m_zoomed = Zoomed.connect([this] { log += "zoomed "; });
        m_raised = Raised.connect([this] { log += "raised "; });
    }

    std::string take() { return std::exchange(log, {}); }

    std::string log;
    bool isKept = false;
    bool isFaulty = false;

protected:
    void Form_Load() override { log += "load "; }
    void Form_Unload(bool& cancel) override {
        log += "unload ";
        EXPECT_TRUE(unload()) << "it is going already";
        if (isFaulty) {
            throw std::runtime_error("fault");
        }
        cancel = isKept;
    }
    void Form_Opened() override { log += "opened "; }
    void Form_Activate() override { log += "activate "; }
    void Form_Resize() override { log += "resize "; }

private:
    Connection m_changed, m_zoomed, m_raised;
};

}  // namespace

TEST(Form, LoadsOpensAndGoesOnceEachTime) {
    Told form;
    EXPECT_TRUE(form.unload());
    EXPECT_EQ(form.take(), "") << "it was not loaded";
    for (int time = 0; time < 2; ++time) {
        form.show();
        form.load();
        EXPECT_EQ(form.take(), "load changed raised ");
        form.activate();
        form.activate();
        EXPECT_EQ(form.take(), "opened activate activate ");
        form.show();
        EXPECT_EQ(form.take(), "raised ");
        form.isKept = true;
        EXPECT_FALSE(form.unload());
        form.isKept = false;
        form.isFaulty = true;
        EXPECT_THROW(form.unload(), std::runtime_error);
        form.isFaulty = false;
        EXPECT_TRUE(form.isLoaded() && form.isVisible());
        EXPECT_TRUE(form.unload());
        EXPECT_FALSE(form.isLoaded() || form.isVisible());
        EXPECT_EQ(form.take(), "unload unload unload changed ");
    }
}

TEST(Form, TellsOfEachChangeOnce) {
    Told form;
    for (const std::string expected :
         {"changed changed changed resize changed changed resize zoomed ", ""}) {
        form.setCaption("Other");
        form.setTopmost(true);
        form.setState(WindowState::Minimized);
        form.moveTo(10, 0);
        form.resize(form.frameWidth + 4000, form.frameHeight + 1500);
        form.setZoom(Zoom(150));
        EXPECT_EQ(form.take(), expected);
    }
    form.moveTo(10, 20);
    form.resize(form.width(), form.height() + 100);
    EXPECT_EQ(form.take(), "changed changed resize ");
    EXPECT_EQ(std::pair(form.left(), form.top()), std::pair(10, 20));
    EXPECT_EQ(form.place(), (Place{0, 0, 4000, 1600}));
    form.setPicture(Raster(1, 1));
    EXPECT_EQ(form.take(), "changed ");
    const Form bare({.name = "frmBare", .width = 30, .height = 20, .border = Border::None});
    EXPECT_EQ(std::pair(bare.width(), bare.height()), std::pair(30, 20));
}
