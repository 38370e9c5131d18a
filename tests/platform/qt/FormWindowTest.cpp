#include "FormWindowTest.h"

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
#include <QTreeWidget>

using namespace fleetwright;

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

TEST_F(FormWindowTest, TextsFromOthersDoNothingButShow) {
    const std::string text = "<b>A</b>\x1B\u202E";
    form.button.setToolTip(text);
    form.list.add("a", text, text);
    form.verbatim.setCaption("A\tB & C");
    form.status.setText(std::string(200, 'W') + text);
    const QString tip = "<p>&lt;b&gt;A&lt;/b&gt;\uFFFD\uFFFD</p>";
    EXPECT_EQ(find<QAbstractButton>("button")->toolTip().remove('\n'), tip);
    const auto* const row = find<QTreeWidget>("list")->topLevelItem(0);
    EXPECT_EQ(row->text(0) + row->text(1), QString("<b>A</b>\uFFFD\uFFFD").repeated(2));
    EXPECT_EQ(window.findChild<QAction*>("verbatim")->text(), "A\uFFFDB && C");
    EXPECT_TRUE(find<QLabel>("status")->toolTip().contains("&lt;b&gt;A&lt;/b&gt;\uFFFD"));
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
    EXPECT_EQ(takeLog(), "mass formkey ");
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

TEST_F(FormWindowTest, CheckBoxesAreTickedFromBothSides) {
    for (CheckBox* const box : {&form.tick, &form.down}) {
        auto* const widget = find<QAbstractButton>(box->name().c_str());
        QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(5, 5));
        EXPECT_TRUE(widget->isChecked() && box->isTicked());
        box->setTicked(false);
        box->setTicked(false);
        EXPECT_FALSE(widget->isChecked());
    }
    EXPECT_EQ(takeLog(), "on off down released ");
}

TEST_F(FormWindowTest, AKeyGoesToItsBoxFirstAndThenToTheForm) {
    auto& name = *find<QLineEdit>("name");
    form.name.setFocus();
    EXPECT_EQ(window.focusWidget(), &name);
    QTest::keyClick(&name, Qt::Key_A);
    QTest::keyClick(&name, Qt::Key_Return);
    QTest::keyClick(&name, Qt::Key_F2);
    EXPECT_EQ(form.name.text(), "a");
    EXPECT_EQ(takeLog(), "key97 key13 open ");
    QTest::keyClick(&window, Qt::Key_Space);
    EXPECT_EQ(takeLog(), "formkey ");
    // What edits a text is a key of the menu where there is nothing to edit.
    for (const bool isLocked : {true, false}) {
        form.name.setLocked(isLocked);
        QKeyEvent cut(QEvent::ShortcutOverride, Qt::Key_A, Qt::ControlModifier);
        cut.ignore();
        QApplication::sendEvent(&name, &cut);
        EXPECT_EQ(cut.isAccepted(), !isLocked);
    }
}

TEST_F(FormWindowTest, ATextThatIsOnlyShownIsShownWhole) {
    auto& name = *find<QLineEdit>("name");
    const auto textWidth = [&] { return name.fontMetrics().horizontalAdvance(name.text()); };
    while (textWidth() < name.width()) {
        form.name.setText(form.name.text() + 'n');
    }
    form.name.setLocked(true);
    EXPECT_LT(textWidth(), name.width());
    form.name.setLocked(false);
    EXPECT_GE(textWidth(), name.width()) << "what is typed stands in plain letters";
}

TEST_F(FormWindowTest, ALongTextGetsTheRoomBesideItAndThenNarrowerLetters) {
    const auto* const label = find<QLabel>("label");
    const QRect place = label->geometry();
    const int room = find<QGroupBox>("inner")->x() - place.x();
    std::string caption = "n";
    for (int stretch = 0; stretch == 0; caption += 'n') {
        form.label.setCaption(caption);
        stretch = label->font().stretch() == QFont().stretch() ? 0 : label->font().stretch();
        EXPECT_EQ(label->geometry().topLeft(), place.topLeft());
        EXPECT_TRUE(label->width() >= place.width() && label->width() < room) << caption;
        EXPECT_LE(label->sizeHint().width(), label->width()) << caption;
    }
    EXPECT_GT(label->width(), place.width());
    form.label.setCaption(std::string(100, 'n'));
    EXPECT_EQ(label->font().stretch(), 70);
    EXPECT_LT(label->width(), room);
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
    form.entry.setEnabled(false);
    EXPECT_FALSE(entry->isEnabled());
    form.entry.setVisible(false);
    EXPECT_FALSE(entry->isVisible());
    const auto* const verbatim = find<QAction>("verbatim");
    EXPECT_EQ(verbatim->text(), "Rock && Co");
    EXPECT_EQ(verbatim->shortcut(), QKeySequence("Ctrl+R"));
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

TEST_F(FormWindowTest, StaysOnTheScreenWhenItComesToTheTop) {
    const WId handle = window.winId();
    for (const bool isTopmost : {true, false}) {
        form.setTopmost(isTopmost);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint), isTopmost);
        EXPECT_EQ(window.winId(), handle);
    }
}
