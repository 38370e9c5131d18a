// Windows that change their state, size and picture, and the kinds of controls of pages.

#include "FormWindow.h"

#include "CheckBox.h"
#include "DragImage.h"
#include "Form.h"
#include "TextBox.h"
#include "TrayIcon.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QSystemTrayIcon>
#include <QTest>

using namespace fleetwright;

namespace {

class Page : public Form {
public:
    Page() : Form({.name = "page", .width = 4500, .height = 3000, .border = Border::Sizable}) {
        name.onKeyPress = [this](int key) {
            log += "key" + std::to_string(key) + ' ';
            return key == EnterKey;
        };
        name.onDblClick = [this] { log += "open "; };
    }

    std::string log;
    CheckBox tick{*this, {.name = "tick", .place = {0, 0, 1500, 300}, .caption = "Tick"}, [this] {
                      log += tick.isTicked() ? "on " : "off ";
                  }};
    TextBox name{*this, {.name = "name", .place = {0, 2000, 1500, 300}}};
    TrayIcon tray{*this, {.name = "tray", .picture = "tray"}, {}};

protected:
    void Form_Resize() override { log += "resize "; }
    void Form_KeyPress() override { log += "formkey "; }
};

class FormStates : public testing::Test {
protected:
    FormStates() { page.show(); }

    template <typename Widget>
    Widget& widget(const char* name) {
        return *window.findChild<Widget*>(name);
    }

    std::string takeLog() { return std::exchange(page.log, {}); }

    Page page;
    FormWindow window{page};
};

TEST_F(FormStates, CheckBoxesAreTickedFromBothSides) {
    auto& tick = widget<QAbstractButton>("tick");
    tick.click();
    EXPECT_TRUE(page.tick.isTicked());
    page.tick.setTicked(false);
    page.tick.setTicked(false);
    EXPECT_FALSE(tick.isChecked());
    EXPECT_EQ(takeLog(), "on off ");
}

TEST_F(FormStates, AKeyGoesToItsBoxFirstAndThenToTheForm) {
    auto& name = widget<QLineEdit>("name");
    page.name.setFocus();
    EXPECT_EQ(window.focusWidget(), &name);
    QTest::keyClick(&name, Qt::Key_A);
    QTest::keyClick(&name, Qt::Key_Return);
    QTest::keyClick(&name, Qt::Key_F2);
    EXPECT_EQ(page.name.text(), "a");
    EXPECT_EQ(takeLog(), "key97 key13 open ");
    QTest::keyClick(&window, Qt::Key_Space);
    EXPECT_EQ(takeLog(), "formkey ");
    // What edits a text is a key of the menu where there is nothing to edit.
    for (const bool isLocked : {true, false}) {
        page.name.setLocked(isLocked);
        QKeyEvent cut(QEvent::ShortcutOverride, Qt::Key_A, Qt::ControlModifier);
        cut.ignore();
        QApplication::sendEvent(&name, &cut);
        EXPECT_EQ(cut.isAccepted(), !isLocked);
    }
}

TEST_F(FormStates, ATextThatIsOnlyShownIsShownWhole) {
    auto& name = widget<QLineEdit>("name");
    const auto textWidth = [&] { return name.fontMetrics().horizontalAdvance(name.text()); };
    while (textWidth() < name.width()) {
        page.name.setText(page.name.text() + 'n');
    }
    page.name.setLocked(true);
    EXPECT_LT(textWidth(), name.width());
    page.name.setLocked(false);
    EXPECT_GE(textWidth(), name.width()) << "what is typed stands in plain letters";
}

TEST_F(FormStates, TheWindowFollowsTheFormAndTheFormTheWindow) {
    takeLog();
    page.resize(6000 + Form::frameWidth, 4500 + Form::frameHeight);
    EXPECT_EQ(takeLog(), "resize ");
    const double scale = window.centralWidget()->width() / 6000.0;
    EXPECT_NEAR(window.centralWidget()->height(), 4500 * scale, 1);
    window.resize(window.width() + 40, window.height());
    EXPECT_NEAR(page.place().width, 6000 + 40 / scale, 15);
    EXPECT_EQ(takeLog(), "resize ");

    window.setWindowState(Qt::WindowMinimized);
    EXPECT_EQ(page.state(), WindowState::Minimized);
    page.setState(WindowState::Normal);
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(takeLog(), "resize resize ");

    page.tray.setOn(true);
    EXPECT_TRUE(window.findChild<QSystemTrayIcon*>("tray")->isVisible());
    EXPECT_EQ(page.tray.isAvailable(), QSystemTrayIcon::isSystemTrayAvailable());
}

}  // namespace
