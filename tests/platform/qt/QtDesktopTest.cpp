#include "QtDesktop.h"

#include "Button.h"
#include "Form.h"
#include "Menu.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace fleetwright;

namespace {

/// A form with a button for the keyboard, and with a menu.
class PageWithMenu : public Form {
public:
    PageWithMenu() : Form({.name = "page", .width = 4500, .height = 3000}) {}

    Button button{
        *this, {.name = "button", .place = {1500, 900, 900, 300}, .caption = "OK"}, [] {}};
    MenuEntry menu{*this, {.name = "menu", .caption = "Menu"}};
    MenuEntry entry{menu, {.name = "entry", .caption = "Entry"}};
};

}  // namespace

TEST(QtDesktop, TheFiltersOfFileDialogsShowToTheLetter) {
    QStringList shown;
    QString first;
    QTimer::singleShot(0, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        auto* const filters = dialog->findChild<QComboBox*>("fileTypeCombo");
        first = filters->currentText();
        for (int i = 0; i < filters->count(); ++i) {
            shown += filters->itemText(i);
        }
        dialog->reject();
    });
    const auto file = QtDesktop().chooseFileToOpen(
        {.filter = "All Files (*.*)|*.*|Ship Files(*.shp)|*.shp|Others",
         .filterIndex = 2,
         .initialFolder = "."});
    EXPECT_FALSE(file);
    EXPECT_EQ(shown, QStringList({"All Files (*.*)", "Ship Files(*.shp)", "Others"}));
    EXPECT_EQ(first, "Ship Files(*.shp)");
}

TEST(QtDesktop, MessagesShowWhatTheyHoldAndBringTheAnswer) {
    QString shown;
    const auto answer = [&shown](QMessageBox::StandardButton button, Buttons buttons) {
        QTimer::singleShot(0, [&shown, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            shown = box->windowTitle() + '|' + box->text();
            box->button(button)->click();
        });
        return QtDesktop().showMessage("<b>\x1B\nLose it?", "A\u202E", buttons, Icon::None);
    };
    EXPECT_EQ(answer(QMessageBox::Ok, Buttons::Ok), Answer::Ok);
    EXPECT_EQ(shown, "A\uFFFD|<b>\uFFFD\nLose it?");
    EXPECT_EQ(answer(QMessageBox::Yes, Buttons::YesNo), Answer::Yes);
    EXPECT_EQ(answer(QMessageBox::No, Buttons::YesNo), Answer::No);
}

TEST(QtDesktop, MenusOpenAtTheKeyboardOfTheirOwnWindowOrAtThePointer) {
    PageWithMenu form;
    PageWithMenu other;
    QtDesktop desktop;
    desktop.present(form);
    desktop.present(other);
    form.show();
    other.show();
    other.button.setFocus();
    const auto placeOf = [&](PageWithMenu& owner) {
        QPoint place;
        QTimer::singleShot(0, [&] {
            QWidget* const menu = QApplication::activePopupWidget();
            place = menu->pos();
            menu->close();
        });
        desktop.popUp(owner.menu);
        return place;
    };
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    const QWidget* const focus = QApplication::focusWidget();
    ASSERT_FALSE(focus->underMouse());
    EXPECT_EQ(placeOf(other), focus->mapToGlobal(focus->rect().center()));
    EXPECT_EQ(placeOf(form), QCursor::pos());
}
