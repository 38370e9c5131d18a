// Windows that the user makes larger or smaller.

#include "Drawing.h"
#include "FormWindowTest.h"
#include "QtDesktop.h"
#include "fakeServices.h"

#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace fleetwright;

namespace {

class NoDrawings : public Drawings {
public:
    std::shared_ptr<const Drawing> of(const Raster&) const override { return nullptr; }
};

/// Places, letters and measures of all that is in a window, a line for each control.
QString looksOf(const QWidget& window) {
    QString looks;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) {
            continue;
        }
        const QRect place = widget->geometry();
        looks += QString("%1 %2,%3 %4x%5 %6 %7 %8\n")
                     .arg(widget->objectName())
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height())
                     .arg(widget->font().pointSizeF())
                     .arg(widget->font().stretch())
                     .arg(widget->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, widget));
    }
    return looks;
}

}  // namespace

TEST_F(FormWindowTest, AZoomTakesAllThatIsInAWindowAlongAndBack) {
    form.label.setCaption("A text that needs narrower letters");
    form.picture.setPicture(Raster(40, 20));
    form.list.add("a", "a", "1");
    QApplication::processEvents();
    const QString before = looksOf(window);
    auto* const list = find<QTreeWidget>("list");
    const auto rowHeight = [list] { return list->visualItemRect(list->topLevelItem(0)).height(); };
    EXPECT_GE(rowHeight(), 24) << "easy to hit";
    const QRect label = find<QWidget>("label")->geometry();
    const int width = list->columnWidth(0), arrow = find<QWidget>("arrowsDown")->y();
    const double size = find<QWidget>("button")->font().pointSizeF();

    form.setZoom(Zoom(200));
    EXPECT_NEAR(find<QWidget>("label")->y(), 2 * label.y(), 1);
    EXPECT_EQ(find<QWidget>("button")->font().pointSizeF(), 2 * size);
    EXPECT_EQ(find<QWidget>("picture")->size(), QSize(80, 40));
    EXPECT_NEAR(find<QWidget>("arrowsDown")->y(), 2 * arrow, 1);
    EXPECT_EQ(list->columnWidth(0), 2 * width);
    EXPECT_GE(rowHeight(), 48);
    // A window that opens at this zoom looks the same.
    FormWindow other(form);
    other.show();
    EXPECT_EQ(looksOf(window).toStdString(), looksOf(other).toStdString());

    form.setZoom(Zoom());
    QApplication::processEvents();
    EXPECT_EQ(looksOf(window).toStdString(), before.toStdString());
}

TEST_F(FormWindowTest, AZoomedWindowStaysOnTheScreenAndItsFormKnowsWhereItIs) {
    const QRect room = window.screen()->availableGeometry();
    window.move(room.center());
    form.setZoom(Zoom(300));
    EXPECT_EQ(window.frameGeometry() | room, room);
    form.setZoom(Zoom(125));
    const Scale scale(form.place().width, form.place().height);
    EXPECT_NEAR(form.left(), scale.twips(window.x()) / 1.25, 1);
    // The mouse is where the user sees it.
    MousePress pressed;
    form.tree.onMouseDown = [&](const MousePress& press) { pressed = press; };
    QTest::mouseClick(find<QTreeWidget>("tree")->viewport(), Qt::RightButton, {}, {50, 50});
    EXPECT_NEAR(pressed.x, scale.twips(50) / 1.25, 1);
}

TEST(Zoom, KeysZoomAnyWindowAndTheSettingsKeepItByItsName) {
    MemorySettings settings;
    const NoDrawings drawings;
    QtDesktop desktop;
    desktop.equip(settings, drawings);
    AllKinds form;
    MenuEntry menus{form.menu, {.name = "menus", .caption = "In", .shortcut = "Ctrl+="}, [&] {
                        form.setZoom(Zoom(300));
                    }};
    settings.values["Zoom/frmAll"] = "no number";
    desktop.present(form);
    form.show();
    EXPECT_EQ(form.zoom(), Zoom());
    QWidget* window = nullptr;
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        window = each->objectName() == "frmAll" ? each : window;
    }
    const auto press = [&](int key) {
        QTest::keyClick(window, static_cast<Qt::Key>(key), Qt::ControlModifier);
        return settings.values["Zoom/frmAll"];
    };
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    EXPECT_EQ(press(Qt::Key_Plus), "110");
    EXPECT_EQ(press(Qt::Key_Minus), "100");
    EXPECT_EQ(press(Qt::Key_Minus), "90");
    EXPECT_EQ(press(Qt::Key_Equal), "300") << "a key of a menu is the menu's";
    settings.isReadOnly = true;
    press(Qt::Key_0);
    EXPECT_EQ(form.zoom(), Zoom());
    AllKinds next;
    desktop.present(next);
    next.show();
    EXPECT_EQ(next.zoom(), Zoom(300));
    // A dialog that nobody has zoomed is as its owner is.
    AllKinds dialog;
    dialog.setCaption("Dialog");
    QTimer::singleShot(0, [&] {
        EXPECT_EQ(dialog.zoom(), Zoom(300));
        dialog.unload();
    });
    settings.values.clear();
    desktop.showModal(dialog, next);
    desktop.dismiss(next);
    desktop.dismiss(form);
}
