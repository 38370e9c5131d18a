#pragma once

#include "testWindow.h"

#include <gtest/gtest.h>

namespace fleetwright {

/// Tests of a main window that is shown with a new ship.
class ShownWindow : public testing::Test {
protected:
    ShownWindow() { window.show(); }

    TestWindow test;
    frmMain& window = test.window();
};

}  // namespace fleetwright
