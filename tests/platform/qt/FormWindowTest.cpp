#include "FormWindow.h"

#include "Button.h"
#include "CheckBox.h"
#include "ComboBox.h"
#include "Form.h"
#include "Frame.h"
#include "ImageList.h"
#include "Label.h"
#include "ListView.h"
#include "Menu.h"
#include "OptionButton.h"
#include "PictureBox.h"
#include "QtDesktop.h"
#include "Slider.h"
#include "StatusBar.h"
#include "TextBox.h"
#include "Timer.h"
#include "TreeView.h"
#include "UpDown.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace fleetwright;

namespace {

/// A form with one control of each kind.
class AllKinds : public Form {
public:
    AllKinds() : Form({.name = "frmAll", .caption = "All kinds", .width = 9000, .height = 6000}) {
        tree.onDblClick = [this] {
            log += "fit " + (tree.selected() == nullptr ? "none" : tree.selected()->key) + ' ';
        };
        tree.onMouseDown = [this](const MousePress& press) {
            log += "tree" + std::to_string(press.button) + ' ';
        };
        list.onDblClick = [this] { log += "row" + std::to_string(*list.selected()) + ' '; };
        mass.onMouseDown = [this](const MousePress&) { log += "mass "; };
        list.addColumn("Name", 1500);
        list.addColumn("Count", 900);
        tree.add("", "ROOT");
        tree.add("ROOT", "leaf");
    }

    std::string log;
    bool keeps = false;

    Frame frame{*this, {.name = "frame", .place = {150, 150, 3000, 1500}, .caption = "Frame"}};
    Label label{frame, {.name = "label", .place = {150, 300, 900, 300}, .caption = "Label"}};
    OptionButton first{
        frame,
        {.name = "first", .place = {150, 600, 900, 300}, .caption = "1", .isOn = true},
        [this] { log += "first "; }};
    OptionButton second{frame,
                        {.name = "second", .place = {150, 900, 900, 300}, .caption = "2"},
                        [this] { log += "second "; }};
    Frame inner{frame, {.name = "inner", .place = {1500, 300, 1200, 900}, .caption = "Inner"}};
    TextBox text{*this, {.name = "text", .place = {3300, 150, 900, 300}}, [this] {
                     log += "text=" + text.text() + ' ';
                 }};
    TextBox lines{*this, {.name = "lines", .place = {6500, 150, 2000, 1500}, .isMultiline = true}};
    PictureBox picture{*this, {.name = "picture", .place = {6500, 1800, 300, 300}}};
    CheckBox down{
        *this,
        {.name = "down", .place = {6500, 5000, 900, 300}, .caption = "Down", .isGraphical = true},
        [this] { log += down.isTicked() ? "down " : "released "; }};
    TextBox mass{*this, {.name = "mass", .place = {3300, 600, 900, 300}, .isLocked = true}};
    Button button{*this,
                  {.name = "button",
                   .place = {3300, 1050, 900, 300},
                   .caption = "OK",
                   .toolTip = "Tip",
                   .accessibleName = "Spoken",
                   .isDefault = true},
                  [this] { log += "button "; }};
    Button refuse{
        *this,
        {.name = "cancel", .place = {3300, 1400, 900, 300}, .caption = "Cancel", .isCancel = true},
        [this] { log += "cancel "; }};
    UpDown arrows{*this,
                  {.name = "arrows", .place = {4500, 150, 300, 600}},
                  {.upClick = [this] { log += "up "; },
                   .downClick = [this] { log += "down "; },
                   .change = {}}};
    Slider slider{*this, {.name = "slider", .place = {4500, 900, 1500, 300}}, [this] {
                      log += "slider=" + std::to_string(slider.value()) + ' ';
                  }};
    ImageList images{this, {.name = "images"}};
    TreeView tree{*this, {.name = "tree", .place = {150, 1800, 3000, 3000}}, &images};
    ListView list{*this, {.name = "list", .place = {3300, 1800, 3000, 3000}}};
    MenuEntry menu{*this, {.name = "menu", .caption = "Menu"}};
    MenuEntry entry{menu, {.name = "entry", .caption = "Entry"}, [this] {
                        entry.setChecked(!entry.isChecked());
                        log += "entry ";
                    }};
    MenuEntry hiddenMenu{*this, {.name = "hidden", .caption = "Hidden", .isVisible = false}};
    Timer timer{*this, "timer", 10, true, [this] { ++ticks; }};
    ComboBox combo{*this, {.name = "combo", .place = {6450, 150, 1500, 300}}};
    StatusBar status{*this, {.name = "status"}};
    int ticks = 0;

protected:
    void Form_Unload(bool& cancel) override { cancel = keeps; }
};

/// Keeps the end of a press from all widgets, as a drag does.
class ReleaseTaker : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        return event->type() == QEvent::MouseButtonRelease;
    }
};

class FormWindowTest : public testing::Test {
protected:
    FormWindowTest() {
        form.show();
        window.show();
    }

    template <typename Widget>
    Widget* find(const char* name) {
        return window.findChild<Widget*>(name);
    }

    std::string takeLog() { return std::exchange(form.log, {}); }

    AllKinds form;
    FormWindow window{form};
};

}  // namespace

TEST_F(FormWindowTest, WidgetsStandWhereTheFormPutsThem) {
    const auto* const frame = find<QGroupBox>("frame");
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->title(), "Frame");
    EXPECT_EQ(find<QLabel>("label")->parent(), frame);
    const double scale = frame->width() / (3000 / 15.0);
    EXPECT_GE(scale, 1.0);
    EXPECT_NEAR(find<QTreeWidget>("list")->x(), 3300 / 15.0 * scale, 1.0);
    EXPECT_EQ(window.windowTitle(), "All kinds");
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    const auto* const button = find<QAbstractButton>("button");
    EXPECT_EQ(button->toolTip(), "Tip");
    EXPECT_EQ(button->accessibleName(), "Spoken");
    EXPECT_EQ(find<QLabel>("status")->geometry().bottom() + 1,
              find<QLabel>("status")->parentWidget()->height());
}

TEST_F(FormWindowTest, ModelsShowOnTheirWidgets) {
    form.label.setCaption("New");
    form.second.setOn();
    form.text.setText("abc");
    form.text.setLocked(true);
    form.button.setEnabled(false);
    form.arrows.setVisible(false);
    form.slider.setRange(0, 7);
    form.slider.setValue(5);
    form.status.setText("Saved...");
    form.list.add("a", "a", "3");
    form.list.add("b", "b", "4");
    form.list.select(1);
    form.images.add("ROOT", Raster(32, 32));  // a picture may come after its node
    form.tree.add("ROOT", "late");
    form.tree.setExpanded(*form.tree.find("ROOT"), true);
    form.tree.select(*form.tree.find("late"));
    EXPECT_EQ(find<QLabel>("label")->text(), "New");
    EXPECT_FALSE(find<QAbstractButton>("first")->isChecked());
    EXPECT_TRUE(find<QAbstractButton>("second")->isChecked());
    EXPECT_EQ(find<QLineEdit>("text")->text(), "abc");
    EXPECT_TRUE(find<QLineEdit>("text")->isReadOnly());
    EXPECT_FALSE(find<QAbstractButton>("button")->isEnabled());
    EXPECT_FALSE(find<QWidget>("arrows")->isVisible());
    EXPECT_EQ(find<QSlider>("slider")->value(), 5);
    EXPECT_EQ(find<QLabel>("status")->text(), "Saved...");
    const auto* const list = find<QTreeWidget>("list");
    EXPECT_EQ(list->topLevelItem(1)->text(1), "4");
    EXPECT_EQ(list->indexOfTopLevelItem(list->currentItem()), 1);
    form.list.remove(1);
    EXPECT_EQ(list->topLevelItemCount(), 1);
    EXPECT_EQ(list->currentItem(), nullptr);
    const auto* const tree = find<QTreeWidget>("tree");
    EXPECT_TRUE(tree->topLevelItem(0)->isExpanded());
    EXPECT_FALSE(tree->topLevelItem(0)->icon(0).isNull());
    EXPECT_EQ(tree->currentItem()->text(0), "late");
    // Showing what the rules have done is no act of the user.
    EXPECT_EQ(takeLog(), "second text=abc slider=5 ");
}

TEST_F(FormWindowTest, MouseAndKeysReachTheModels) {
    QTest::mouseClick(find<QAbstractButton>("second"), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseClick(find<QAbstractButton>("second"), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(takeLog(), "second ");
    QTest::keyClicks(find<QLineEdit>("text"), "7x");
    EXPECT_EQ(takeLog(), "text=7 text=7x ");
    QTest::mouseClick(find<QLineEdit>("mass"), Qt::LeftButton);
    QTest::keyClicks(find<QLineEdit>("mass"), "9");
    EXPECT_EQ(takeLog(), "mass ");
    QTest::mouseClick(find<QAbstractButton>("button"), Qt::LeftButton);
    QTest::mouseClick(find<QAbstractButton>("arrowsUp"), Qt::LeftButton);
    QTest::mouseClick(find<QAbstractButton>("arrowsDown"), Qt::LeftButton);
    EXPECT_EQ(takeLog(), "button up down ");
    form.slider.setRange(0, 7);
    QTest::keyClick(find<QSlider>("slider"), Qt::Key_Right);
    EXPECT_EQ(takeLog(), "slider=1 ");
    EXPECT_TRUE(form.second.isOn());
}

TEST_F(FormWindowTest, CombosTakeWhatIsTypedAndWhatIsChosen) {
    form.combo.addItem("Kestrel");
    form.combo.addItem("Kite");
    auto* const combo = find<QComboBox>("combo");
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(combo->currentText(), "");
    QTest::keyClicks(combo->lineEdit(), "Kes");
    EXPECT_EQ(form.combo.text(), "Kes");  // and no more than that
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(combo->count(), 2);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(form.combo.text(), combo->currentText().toStdString());
    EXPECT_NE(form.combo.text(), "Kes");
    form.combo.setText("Heron");
    EXPECT_EQ(combo->currentText(), "Heron");
    form.combo.clear();
    EXPECT_EQ(combo->count(), 0);
    EXPECT_EQ(combo->currentText(), "");
}

TEST_F(FormWindowTest, GroupsOfOptionsAreOneStopWithArrowsInside) {
    auto* const first = find<QAbstractButton>("first");
    auto* const second = find<QAbstractButton>("second");
    EXPECT_EQ(first->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(second->focusPolicy(), Qt::ClickFocus);
    QTest::keyClick(first, Qt::Key_Down);
    EXPECT_EQ(takeLog(), "second ");
    QTest::keyClick(second, Qt::Key_Right);
    QTest::keyClick(first, Qt::Key_Left);
    EXPECT_EQ(takeLog(), "first second ");
    EXPECT_EQ(second->focusPolicy(), Qt::StrongFocus);
    form.first.setEnabled(false);
    QTest::keyClick(second, Qt::Key_Down);
    EXPECT_EQ(takeLog(), "");
}

TEST_F(FormWindowTest, ScreenReadersAreToldWhatThereIs) {
    const auto nameOf = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(find<QWidget>(name))->text(QAccessible::Name);
    };
    form.status.setText("Saved...");
    EXPECT_EQ(nameOf("status"), "Saved...");
    EXPECT_EQ(nameOf("button"), "Spoken");
    EXPECT_EQ(nameOf("inner"), "Inner");
}

TEST_F(FormWindowTest, EnterAndEscapeAnswerDialogs) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    find<QTreeWidget>("list")->setFocus();
    QTest::keyClick(find<QSlider>("slider"), Qt::Key_Return);
    EXPECT_EQ(takeLog(), "button ");
    find<QAbstractButton>("cancel")->setFocus();
    QTest::keyClick(find<QAbstractButton>("cancel"), Qt::Key_Return);
    EXPECT_EQ(takeLog(), "cancel ");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(takeLog(), "cancel ");
}

TEST_F(FormWindowTest, OnlyMovingTheFocusInsideTheWindowLosesIt) {
    int lost = 0;
    form.text.onLostFocus = [&] { ++lost; };
    auto* const text = find<QLineEdit>("text");
    QFocusEvent toAnotherProgram(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QFocusEvent toAMenu(QEvent::FocusOut, Qt::MenuBarFocusReason);
    QFocusEvent byTab(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(text, &toAnotherProgram);
    QApplication::sendEvent(text, &toAMenu);
    EXPECT_EQ(lost, 0);
    QApplication::sendEvent(text, &byTab);
    EXPECT_EQ(lost, 1);
}

TEST_F(FormWindowTest, ClickingWhatIsSelectedIsAClickAndWidthsAreTheUsers) {
    int clicks = 0;
    form.tree.onClick = [&] { ++clicks; };
    auto* const tree = find<QTreeWidget>("tree");
    const QPoint root = tree->visualItemRect(tree->topLevelItem(0)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, root);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, root);
    EXPECT_EQ(clicks, 2);
    auto* const list = find<QTreeWidget>("list");
    list->setColumnWidth(0, 123);
    form.list.add("a", "a", "1");
    EXPECT_EQ(list->columnWidth(0), 123);
}

TEST_F(FormWindowTest, TheFirstMoveWithTheButtonDownDragsAndATremblingHandClicks) {
    QWidget* const tree = find<QTreeWidget>("tree")->viewport();
    QWindow* const pointed = window.windowHandle();
    const QPoint from = tree->mapTo(&window, QPoint(9, 9));
    QPoint to;
    const auto endDrag = [&] {
        ReleaseTaker drag;
        qApp->installEventFilter(&drag);
        QTest::mouseRelease(pointed, Qt::LeftButton, {}, to);
    };
    form.tree.onClick = [&] { form.log += "click "; };
    form.tree.onMouseMove = [&](const MousePress&) {
        form.log += "move ";
        endDrag();
    };
    for (const int way : {0, 1, 60}) {
        QTest::mousePress(pointed, Qt::LeftButton, {}, from);
        to = from + QPoint(way, 0);
        QCursor::setPos(window.mapToGlobal(to));
        QMouseEvent move(QEvent::MouseMove, QPoint(9 + way, 9), window.mapToGlobal(to),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(tree, &move);
        QApplication::processEvents();
        if (way == 0) {
            endDrag();
        }
    }
    EXPECT_EQ(takeLog(), "tree1 tree1 move click tree1 move ");
}

TEST_F(FormWindowTest, NothingIsDraggedByAButtonThatIsUpAgain) {
    QWidget* const tree = find<QTreeWidget>("tree")->viewport();
    form.tree.onMouseMove = [&](const MousePress&) { form.log += "move "; };
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {},
                      tree->mapTo(&window, QPoint(9, 9)));
    // What has come between is known by the place of the release alone.
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {},
                        tree->mapTo(&window, QPoint(9, 60)));
    EXPECT_EQ(takeLog(), "tree1 ");
}

TEST_F(FormWindowTest, TreeAndListTakeKeysForEachActOfTheMouse) {
    auto* const tree = find<QTreeWidget>("tree");
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(takeLog(), "fit none ");
    tree->setCurrentItem(tree->topLevelItem(0));
    QTest::keyClick(tree, Qt::Key_Right);
    EXPECT_TRUE(form.tree.find("ROOT")->isExpanded);
    QTest::keyClick(tree, Qt::Key_Down);
    EXPECT_EQ(form.tree.selected()->key, "leaf");
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_EQ(takeLog(), "fit leaf ");
    // The right button selects nothing and opens what belongs to the selected node.
    const QRect root = tree->visualItemRect(tree->topLevelItem(0));
    QTest::mouseClick(tree->viewport(), Qt::RightButton, {}, root.center());
    EXPECT_EQ(takeLog(), "tree2 ");
    EXPECT_EQ(form.tree.selected()->key, "leaf");

    form.list.add("a", "a", "1");
    auto* const list = find<QTreeWidget>("list");
    list->setCurrentItem(list->topLevelItem(0));
    EXPECT_EQ(form.list.selected(), 0U);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(takeLog(), "row0 ");
    double top = 0;
    form.list.onMouseDown = [&](const MousePress& press) { top = press.y / 3000; };
    QTest::mousePress(list->viewport(), Qt::RightButton, {}, {1, 0});
    EXPECT_NEAR(top * list->height(), list->viewport()->y(), 1.0);
    QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, {1, 0});
}

TEST_F(FormWindowTest, ARowChosenByTheRightButtonCountsAsClicked) {
    form.list.add("a", "a", "1");
    form.list.onClick = [&] { form.log += "row "; };
    QWidget* const rows = find<QTreeWidget>("list")->viewport();
    QTest::mousePress(window.windowHandle(), Qt::RightButton, {},
                      rows->mapTo(&window, QPoint(5, 5)));
    EXPECT_EQ(takeLog(), "row ");
    QTest::mouseRelease(window.windowHandle(), Qt::RightButton, {},
                        rows->mapTo(&window, QPoint(5, 5)));
}

TEST_F(FormWindowTest, NoTimerRunsIntoRulesThatPaint) {
    form.ticks = 0;
    QTest::qSleep(30);
    form.repaint();
    EXPECT_EQ(form.ticks, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ticks > 0; }));
}

TEST_F(FormWindowTest, MenusTimersAndClosing) {
    EXPECT_EQ(window.menuBar()->actions().size(), 1);
    auto* const entry = find<QAction>("entry");
    entry->trigger();
    EXPECT_TRUE(entry->isChecked());
    entry->trigger();
    EXPECT_FALSE(entry->isChecked());
    EXPECT_EQ(takeLog(), "entry entry ");
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.ticks > 1; }));
    form.keeps = true;
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    form.keeps = false;
    EXPECT_TRUE(window.close());
    EXPECT_FALSE(form.isVisible());
    // What is unloaded has nothing left to do.
    form.ticks = 0;
    QTest::qWait(50);
    EXPECT_EQ(form.ticks, 0);
    form.show();
    EXPECT_TRUE(window.isVisible());
    form.hide();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FormWindowTest, TextsOfManyLines) {
    auto* const lines = find<QPlainTextEdit>("lines");
    ASSERT_NE(lines, nullptr);
    EXPECT_TRUE(lines->verticalScrollBar()->isVisible());
    form.lines.setText("a\r\nb\r\n");
    EXPECT_EQ(lines->toPlainText(), "a\nb\n");
    form.lines.append("c\r\n");
    EXPECT_EQ(lines->toPlainText(), "a\nb\nc\n");
    lines->moveCursor(QTextCursor::End);
    QTest::keyClicks(lines, "d");
    QTest::keyClick(lines, Qt::Key_Return);
    EXPECT_EQ(form.lines.text(), "a\r\nb\r\nc\r\nd\r\n");
    // What has nothing to do with the text leaves the user's place in it.
    form.lines.setToolTip("tip");
    EXPECT_EQ(lines->textCursor().position(), 8);
    form.lines.setLocked(true);
    QTest::keyClicks(lines, "x");
    EXPECT_EQ(form.lines.text(), "a\r\nb\r\nc\r\nd\r\n");
    form.lines.setEnabled(false);
    EXPECT_FALSE(lines->isEnabled());
}

TEST_F(FormWindowTest, PicturesAreAsLargeOnTheScreenAsTheyAre) {
    auto* const box = find<QFrame>("picture");
    Raster picture(120, 40);
    picture.pixel(119, 39) = 0xFF0000;
    form.picture.setPicture(picture);
    EXPECT_EQ(box->size(), QSize(120, 40));
    EXPECT_EQ(box->grab().toImage().pixelColor(119, 39), QColor(Qt::red));
    form.picture.paintStretch(100, 39, 50, 0x0000FF);
    form.picture.showPainted();
    EXPECT_EQ(box->grab().toImage().pixelColor(119, 39), QColor(Qt::blue));
    EXPECT_EQ(box->grab().toImage().pixelColor(99, 39), QColor(Qt::white));
}

TEST_F(FormWindowTest, AButtonThatStaysDown) {
    auto* const down = find<QAbstractButton>("down");
    QTest::mouseClick(down, Qt::LeftButton);
    EXPECT_TRUE(down->isChecked() && form.down.isTicked());
    form.down.setTicked(false);
    EXPECT_FALSE(down->isChecked());
    EXPECT_EQ(takeLog(), "down released ");
}

TEST(TopmostWindow, StaysOnTheScreenWhenItBecomesOne) {
    AllKinds form;
    FormWindow window(form);
    form.show();
    const WId handle = window.winId();
    form.setTopmost(true);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window.winId(), handle);
    form.setTopmost(false);
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window.winId(), handle);
}

TEST(QtDesktop, TheProgramEndsAlthoughAWindowHasSomethingToEndFirst) {
    AllKinds form;
    form.keeps = true;
    QtDesktop desktop;
    desktop.present(form);
    form.show();
    QTimer::singleShot(0, [&] { desktop.unloadAllForms(); });
    QTimer::singleShot(5000, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
}
