#include "FormWindowTest.h"
#include "QtDesktop.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QToolButton>
#include <QWhatsThis>

#include <algorithm>

using namespace fleetwright;

namespace {

bool isTextShown() {
    const QWidgetList all = QApplication::topLevelWidgets();
    return std::any_of(all.begin(), all.end(), [](const QWidget* widget) {
        return widget->inherits("QWhatsThat") && widget->isVisible();
    });
}

}  // namespace

// Each widget has its control's text, for the pointer, for the key and for screen readers.
TEST(WhatsThis, IsToldToWhoeverAsks) {
    AllKinds form;
    QtDesktop desktop([](const Control& control) {
        return control.name() == "label" ? std::string() : control.name() + " & <b>";
    });
    desktop.present(form);
    form.show();
    const QWidgetList all = QApplication::topLevelWidgets();
    QWidget* const window = *std::find_if(all.begin(), all.end(), [](const QWidget* widget) {
        return widget->objectName() == "frmAll";
    });
    const auto find = [window](const char* name) { return window->findChild<QWidget*>(name); };

    for (const char* const name : {"text", "tree", "arrowsUp"}) {
        find(name)->setFocus();
        QTest::keyClick(find(name), Qt::Key_F1, Qt::ShiftModifier);
        EXPECT_TRUE(isTextShown()) << name;
        QWhatsThis::hideText();
    }
    EXPECT_EQ(window->findChild<QAction*>("verbatim")->whatsThis().contains("&lt;b&gt;"), true);
    EXPECT_TRUE(find("label")->whatsThis().isEmpty());

    const auto described = [&](const char* name) {
        return QAccessible::queryAccessibleInterface(find(name))->text(QAccessible::Description);
    };
    EXPECT_EQ(described("text"), "text & <b>");
    EXPECT_EQ(described("button"), "Tip");  // it has a tool tip
    form.text.setToolTip("New tip");
    EXPECT_EQ(described("text"), "New tip");

    desktop.askWhatsThis();
    form.log.clear();
    QTest::mouseClick(find("cancel"), Qt::LeftButton);
    EXPECT_TRUE(isTextShown());
    EXPECT_EQ(form.log, "");
    QWhatsThis::hideText();
}
