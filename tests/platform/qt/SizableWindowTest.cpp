#include "Form.h"
#include "FormWindow.h"
#include "Menu.h"
#include "PictureBox.h"
#include "StatusBar.h"
#include "TrayIcon.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QSystemTrayIcon>
#include <QTest>

using namespace fleetwright;

namespace {

/// A form that wants to be at least so wide.
class WideForm : public Form {
public:
    WideForm()
        : Form({.name = "frmWide",
                .caption = "Wide",
                .width = 6000,
                .height = 3000,
                .border = Border::Sizable}) {}

    PictureBox sheet{*this, {.name = "sheet", .place = {150, 150, 1500, 1500}}};
    TrayIcon tray{*this, {.name = "tray", .picture = "tray"}, {}};
    int refusals = 0;

protected:
    void Form_Resize() override {
        if (state() == WindowState::Normal && width() < 6000 + frameWidth) {
            ++refusals;
            resize(6000 + frameWidth, height());
        }
    }
};

class SizableWindow : public testing::Test {
protected:
    SizableWindow() { form.show(); }

    WideForm form;
    FormWindow window{form};
};

}  // namespace

TEST_F(SizableWindow, ShowsAllOfAFormBelowMenusOfAnyHeight) {
    const QString usual = QApplication::style()->name();
    QApplication::setStyle("windows");  // which has some room below them
    const MenuEntry menu(form, {.name = "menu", .caption = "Menu"});
    FormWindow other(form);
    other.show();
    const auto* const view = other.findChild<QScrollArea*>();
    EXPECT_EQ(view->size(), view->widget()->size()) << "so nothing scrolls";
    QApplication::setStyle(usual);
}

TEST_F(SizableWindow, TheFormDecidesHowSmallItGets) {
    const QSize first = window.size();
    EXPECT_NEAR(first.width(), 2.0 * first.height(), 1) << "as the form is";
    window.resize(first.width() + 50, first.height() + 50);
    EXPECT_EQ(window.width(), first.width() + 50);
    EXPECT_GT(form.width(), 6000 + Form::frameWidth);
    window.resize(first.width() / 2, first.height());
    EXPECT_NEAR(window.width(), first.width(), 1);
    // A maximized window keeps the screen, whatever changes meanwhile.
    window.showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window.width() > first.width() + 100; }));
    EXPECT_EQ(form.state(), WindowState::Maximized);
    const QSize large = window.size();
    form.setCaption("Other");
    EXPECT_EQ(window.size(), large);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.place().width > 9000; })) << "it has the room";
    window.showNormal();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.width() <= first.width() + 1; }));
    EXPECT_NEAR(form.place().width, 6000, 15);
    // A desktop that insists on a size of its own is not asked for ever.
    form.refusals = 0;
    for (int i = 0; i < 100; ++i) {
        window.resize(first.width() / 3, first.height());
    }
    EXPECT_LT(form.refusals, 10);
}

TEST_F(SizableWindow, FollowsItsFormAndItsFormFollowsIt) {
    form.resize(7500 + Form::frameWidth, 4500 + Form::frameHeight);
    const double scale = window.centralWidget()->width() / 7500.0;
    EXPECT_NEAR(window.centralWidget()->height(), 4500 * scale, 1);
    window.resize(window.width() + 40, window.height());
    EXPECT_NEAR(form.place().width, 7500 + 40 / scale, 15);
    window.setWindowState(Qt::WindowMinimized);
    EXPECT_EQ(form.state(), WindowState::Minimized);
    form.setState(WindowState::Normal);
    EXPECT_FALSE(window.isMinimized());
    form.tray.setOn(true);
    auto* const icon = window.findChild<QSystemTrayIcon*>("tray");
    EXPECT_TRUE(icon->isVisible());
    std::string clicks;
    form.tray.onLeftClick = [&] { clicks += "left "; };
    form.tray.onRightClick = [&] { clicks += "right "; };
    for (const auto reason :
         {QSystemTrayIcon::MiddleClick, QSystemTrayIcon::Context, QSystemTrayIcon::Trigger}) {
        emit icon->activated(reason);
    }
    EXPECT_EQ(clicks, "") << "Qt has not done with the click";
    QApplication::processEvents();
    EXPECT_EQ(clicks, "right left ");
    EXPECT_EQ(form.tray.isAvailable(), QSystemTrayIcon::isSystemTrayAvailable());
}

TEST_F(SizableWindow, ScrollsAFormThatIsLargerThanTheScreen) {
    form.resize(6000 + Form::frameWidth, 30000 + Form::frameHeight);
    const QSize shown = window.size();
    const QSize room = window.screen()->availableSize();
    EXPECT_EQ(shown.height(), room.height() - 40) << "room for a title";
    form.resize(30000 + Form::frameWidth, 30000 + Form::frameHeight);
    EXPECT_EQ(window.size(), room - QSize(10, 40));
    form.resize(6000 + Form::frameWidth, 30000 + Form::frameHeight);
    EXPECT_EQ(form.place().height, 30000) << "the screen is no matter of the form's";
    EXPECT_EQ(Scale(60000, 60000).pixels(1500), 80) << "it can be read, and scrolls";
    auto* const view = qobject_cast<QScrollArea*>(window.centralWidget());
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->viewport()->width(), view->widget()->width()) << "the bar stands beside it";
    EXPECT_EQ(view->verticalScrollBar()->maximum() + view->viewport()->height(),
              view->widget()->height());
    form.setZoom(Zoom(150));
    EXPECT_EQ(view->viewport()->width(), view->widget()->width()) << "a large bar, too";
    form.setZoom(Zoom());
    // The user moves one edge; the other dimension stays what it was.
    window.resize(shown.width() + 50, shown.height());
    EXPECT_EQ(view->viewport()->width(), view->widget()->width());
    EXPECT_EQ(form.place().height, 30000);
}

TEST_F(SizableWindow, ScrollsToWhatHasOutgrownAWindowThatIsLeftAlone) {
    const auto* const view = qobject_cast<QScrollArea*>(window.centralWidget());
    EXPECT_EQ(view->verticalScrollBar()->maximum(), 0);
    window.showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.state() == WindowState::Maximized; }));
    form.sheet.setPlace({150, 150, 1500, 45000});
    const int bottom = window.findChild<QWidget*>("sheet")->geometry().bottom() + 1;
    EXPECT_GT(bottom, window.screen()->availableSize().height());
    EXPECT_EQ(view->verticalScrollBar()->maximum() + view->viewport()->height(), bottom);
}

TEST(SizableWindowWithMenus, HasRoomForItsFormBelowThem) {
    Form form({.name = "frmMenus", .width = 6000, .height = 3000, .border = Border::Sizable});
    MenuEntry menu(form, {.name = "menu", .caption = "Menu"});
    StatusBar status(form, {.name = "status"});
    FormWindow window(form);
    form.show();
    window.resize(window.width() - 30, window.height() - 30);
    QApplication::processEvents();
    const auto* const view = qobject_cast<QScrollArea*>(window.centralWidget());
    EXPECT_EQ(view->viewport()->size(), view->widget()->size());
    // What the line has room for no longer is in its tool tip.
    const auto* const line = window.findChild<QWidget*>("status");
    status.setText("Saved in a folder with a long name");
    EXPECT_EQ(line->toolTip(), "");
    window.resize(150, window.height());
    QApplication::processEvents();
    EXPECT_EQ(line->toolTip(), "Saved in a folder with a long name");
    // It stands at the edge of what is seen.
    form.resize(6000 + Form::frameWidth, 30000 + Form::frameHeight);
    QApplication::processEvents();
    EXPECT_EQ(line->mapTo(view->viewport(), line->rect().bottomLeft()),
              view->viewport()->rect().bottomLeft());
}

TEST(OwnedWindow, StandsWhereItsOwnerPutsIt) {
    Form owner({.name = "frmLarge", .caption = "Larger than screens", .height = 45000});
    PictureBox part(owner, {.name = "part", .place = {6000, 9000, 1500, 1500}});
    FormWindow window(owner);
    owner.show();
    window.move(40, 30);
    Form dialog({.name = "frmDialog", .caption = "Dialog", .width = 3000, .height = 1500});
    FormWindow inFront(dialog, &window);
    EXPECT_EQ(inFront.windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(inFront.windowType(), Qt::Dialog);
    dialog.moveTo(owner.left() + 6000, owner.top() + 9000);
    const QPoint place = window.findChild<QWidget*>("part")->pos();
    EXPECT_NEAR(inFront.x() - window.x(), place.x(), 1);
    EXPECT_NEAR(inFront.y() - window.y(), place.y(), 1);
}

TEST(FormWindow, WithoutABorderIsInTheMiddleAndKeepsItsSize) {
    Form splash({.name = "frmSplash", .width = 3000, .height = 1500, .border = Border::None});
    FormWindow window(splash);
    splash.show();
    EXPECT_EQ(window.windowType(), Qt::SplashScreen);
    const QPoint middle = window.screen()->availableGeometry().center();
    EXPECT_EQ(QRect(window.pos(), window.centralWidget()->size()).center(), middle);
    EXPECT_TRUE(window.findChildren<QShortcut*>().isEmpty());
}
