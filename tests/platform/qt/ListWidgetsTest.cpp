// The mouse and the keyboard on trees and lists.

#include "DragImage.h"
#include "Drawing.h"
#include "FormWindowTest.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>
#include <QWindow>

using namespace fleetwright;

namespace {

/// Keeps the end of a press from all widgets, as a drag does.
class ReleaseTaker : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        return event->type() == QEvent::MouseButtonRelease;
    }
};

/// Does something when a drag has just begun and looks for the drawing of its picture: no screen is
/// there on which it would go on.
class ActsWhenAsked : public Drawings {
public:
    std::shared_ptr<const Drawing> of(const Raster&) const override {
        if (const auto now = std::exchange(act, nullptr)) {
            now();
        }
        return nullptr;
    }
    mutable std::function<void()> act;
};

}  // namespace

TEST_F(FormWindowTest, ClickingWhatIsSelectedIsAClickAndWidthsAreTheUsers) {
    int clicks = 0;
    form.tree.onClick = [&] { ++clicks; };
    auto* const tree = find<QTreeWidget>("tree");
    const QPoint root = tree->visualItemRect(tree->topLevelItem(0)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, root);
    // This would take the selection away, and leave the acts that are about it.
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::ControlModifier, root);
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(tree->topLevelItem(0)->isSelected());
    auto* const list = find<QTreeWidget>("list");
    list->setColumnWidth(0, 123);
    form.list.add("a", "a", "1");
    EXPECT_EQ(list->columnWidth(0), 123);
}

TEST_F(FormWindowTest, AStrongRowIsBoldAsLongAsItIsStrong) {
    auto* const list = find<QTreeWidget>("list");
    ListView::Row row = {.key = "a", .text = "a", .subItem = "1"};
    for (const bool isStrong : {true, false}) {
        row.isStrong = isStrong;
        form.list.setContent({.rows = {row}, .selected = {}});
        EXPECT_EQ(list->topLevelItem(0)->font(0).bold(), isStrong);
        EXPECT_EQ(list->topLevelItem(0)->font(1).bold(), isStrong);
    }
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
    form.tree.onMouseMove = [&](const MousePress& move) {
        form.log += "move" + std::to_string(move.button) + ' ';
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
    EXPECT_EQ(takeLog(), "tree1 tree1 move1 click tree1 move1 ");
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

TEST_F(FormWindowTest, ThePlaceOfAPressCountsTheHeadingOfTheList) {
    auto* const list = find<QTreeWidget>("list");
    double top = 0;
    form.list.onMouseDown = [&](const MousePress& press) { top = press.y / 3000; };
    QTest::mousePress(list->viewport(), Qt::RightButton, {}, {1, 0});
    EXPECT_NEAR(top * list->height(), list->viewport()->y(), 1.0);
    QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, {1, 0});
}

TEST_F(FormWindowTest, APressTellsOfItsButtonAndOfTheKeysThatAreDown) {
    std::string told;
    form.list.onMouseDown = [&](const MousePress& press) {
        told += std::to_string(press.button) + '+' + std::to_string(press.shift) + ' ';
    };
    QWidget* const rows = find<QTreeWidget>("list")->viewport();
    QTest::mouseClick(rows, Qt::RightButton, Qt::ShiftModifier);
    QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier);
    QTest::mouseClick(rows, Qt::MiddleButton, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(told, "2+1 1+2 4+5 ");
}

TEST_F(FormWindowTest, APictureIsDroppedOnAnyPartOfAListInItsWindowAlone) {
    AllKinds other;
    DragImage image(form, {.name = "image"}), stranger(other, {.name = "stranger"});
    const ActsWhenAsked drawings;
    form.setZoom(Zoom(200));
    FormWindow dragging(form, nullptr, {}, &drawings), beside(other);
    image.setPicture(Raster(32, 32));
    form.list.onDragDrop = [&](const Control& dropped) { form.log += dropped.name() + ' '; };
    other.list.onDragDrop = [&](const Control&) { form.log += "elsewhere "; };
    const auto drop = [](const FormWindow& target) {
        auto* const list = target.findChild<QTreeWidget*>("list");
        QMimeData data;
        int taken = 0;
        for (QWidget* const part : {list->viewport(), list->header()->viewport()}) {
            QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(part, &enter);
            QDropEvent event({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(part, &event);
            taken += enter.isAccepted() ? 1 : 0;
        }
        return taken;
    };
    drawings.act = [&] {
        EXPECT_EQ(drop(dragging), 2);
        EXPECT_EQ(drop(beside), 0);
        image.drag();  // there is one pointer
        EXPECT_EQ(drop(dragging), 2);
    };
    image.drag();
    EXPECT_FALSE(drawings.act) << "it was dragged";
    EXPECT_EQ(takeLog(), "image image image image ");
    EXPECT_EQ(drop(dragging), 0) << "the drag has ended";
}

TEST_F(FormWindowTest, TipsAreOfTheRowBelowThePointerOrElseOfTheList) {
    form.list.setContent({.rows = {{"a", "Ant"}, {"b", "Bee"}}, .selected = {}});
    form.list.setToolTip("A list");
    form.list.onMouseDown = [&](const MousePress& press) {
        form.log += "menu" + std::to_string(press.button) + ' ';
    };
    auto* const list = find<QTreeWidget>("list");
    QApplication::processEvents();
    const auto tipAt = [list](const QPoint& place) {
        QHelpEvent asked(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
        QApplication::sendEvent(list->viewport(), &asked);
        return QToolTip::text();
    };
    const QPoint second = list->visualItemRect(list->topLevelItem(1)).center();
    EXPECT_EQ(tipAt(second), "row\n<b");
    EXPECT_EQ(tipAt({5, list->viewport()->height() - 2}), "A list");
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        if (each->inherits("QTipLabel")) {
            each->close();
        }
    }
    form.list.onDblClick = [&] { form.log += "double "; };
    for (const auto button : {Qt::MiddleButton, Qt::LeftButton}) {
        QTest::mouseClick(list->viewport(), button, {}, second);
        QTest::mouseDClick(list->viewport(), button, {}, second);
        QTest::mouseRelease(list->viewport(), button, {}, second);
        EXPECT_EQ(takeLog().find("double") != std::string::npos, button == Qt::LeftButton);
    }
    for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
        QContextMenuEvent asked(reason, second, list->viewport()->mapToGlobal(second));
        QApplication::sendEvent(list->viewport(), &asked);
    }
    EXPECT_EQ(takeLog(), "menu2 ") << "the mouse has told of itself";
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

TEST_F(FormWindowTest, EnterActsOnWhatIsInSightAndATreeCanBeHadBackAsItWas) {
    auto* const tree = find<QTreeWidget>("tree");
    const auto pressEnter = [&] {
        takeLog();
        QTest::keyClick(tree, Qt::Key_Return);
        return takeLog();
    };
    for (int i = 0; i < 40; ++i) {
        form.tree.add("ROOT", "n" + std::to_string(i));
    }
    form.tree.setExpanded(*form.tree.find("ROOT"), true);
    form.tree.select(*form.tree.find("n20"));
    for (const int place : {0, tree->verticalScrollBar()->maximum()}) {
        tree->verticalScrollBar()->setValue(place);
        EXPECT_EQ(pressEnter(), "Enter ") << place;
        EXPECT_EQ(pressEnter(), "Enter fit n20 ");
    }
    form.tree.setExpanded(*form.tree.find("ROOT"), false);
    EXPECT_EQ(pressEnter(), "Enter ");
    EXPECT_EQ(pressEnter(), "Enter fit n20 ");

    tree->verticalScrollBar()->setValue(3);
    const TreeView::View before = form.tree.view();
    form.tree.select(*form.tree.find("ROOT"));
    form.tree.setExpanded(*form.tree.find("ROOT"), false);
    form.tree.setView(before);
    EXPECT_EQ(tree->currentItem()->text(0), "n20");
    EXPECT_EQ(form.tree.view().top, before.top);
    EXPECT_EQ(before.top->key, "n1");
    form.tree.setView({});
    EXPECT_EQ(tree->currentItem(), nullptr);
    EXPECT_FALSE(tree->topLevelItem(0)->isExpanded());
}

TEST_F(FormWindowTest, EnterInAListIsTheListsWhereItHasSomethingToDo) {
    form.list.setContent({.rows = {{"a", "Ant"}}, .selected = 0});
    auto* const list = find<QTreeWidget>("list");
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(takeLog(), "formkey ");
    form.list.onEnter = [&] { form.log += "opened "; };
    QTest::keyClick(list, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_Enter);
    EXPECT_EQ(takeLog(), "opened opened ");
}
