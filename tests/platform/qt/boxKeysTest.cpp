// Whose a key is that is pressed in a box: the box's, the form's or the menu's.

#include "FormWindowTest.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace fleetwright;

TEST_F(FormWindowTest, AKeyGoesToItsBoxFirstAndThenToTheForm) {
    auto& name = *find<QLineEdit>("name");
    form.name.setFocus();
    EXPECT_EQ(window.focusWidget(), &name);
    QTest::keyClick(&window, Qt::Key_Space);
    EXPECT_EQ(takeLog(), "formkey ");
    // What edits a text is a key of the menu where there is nothing to edit, or to take back.
    const auto isOfText = [&name](Qt::Key key) {
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        event.ignore();
        QApplication::sendEvent(&name, &event);
        return event.isAccepted();
    };
    form.name.setText("marked");
    for (const bool isLocked : {true, false}) {
        form.name.setLocked(isLocked);
        EXPECT_EQ(isOfText(Qt::Key_A), !isLocked);
        EXPECT_EQ(isOfText(Qt::Key_V), !isLocked);
        name.deselect();
        EXPECT_EQ(isOfText(Qt::Key_C), !isLocked);
        name.selectAll();
        EXPECT_TRUE(isOfText(Qt::Key_C));
    }
    // And of those that only some desktops know, everywhere.
    auto* const combo = find<QComboBox>("combo");
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        event.ignore();
        QApplication::sendEvent(combo, &event);
        const bool mayBeOfTexts = std::string_view("ACVXYZ").find(char(key)) != std::string::npos;
        EXPECT_TRUE(mayBeOfTexts || !(event.isAccepted() || isOfText(Qt::Key(key)))) << char(key);
    }
    EXPECT_FALSE(isOfText(Qt::Key_Z));
    QTest::keyClick(&name, Qt::Key_B);
    EXPECT_TRUE(isOfText(Qt::Key_Z));
    form.name.setText("of another ship");
    EXPECT_FALSE(isOfText(Qt::Key_Z));
}

TEST(FormWindow, WhatAFormUndoesItsBoxLeavesToTheMenu) {
    Form form({.name = "frmUndoing"});
    TextBox box(form, {.name = "box", .place = {0, 0, 900, 300}, .isUndoneByForm = true});
    const FormWindow window(form);
    form.show();
    auto* const edit = window.findChild<QLineEdit*>("box");
    QTest::keyClick(edit, Qt::Key_B);
    ASSERT_TRUE(edit->isUndoAvailable());
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    event.ignore();
    QApplication::sendEvent(edit, &event);
    EXPECT_FALSE(event.isAccepted());
}
