#include "FormWindowTest.h"
#include "QtDesktop.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <QWhatsThis>

#include <algorithm>

using namespace fleetwright;

// Each widget has its control's text, for the key, for screen readers and for the pointer.
TEST_F(FormWindowTest, TellsWhatsThisToWhoeverAsks) {
    FormWindow asked(form, nullptr, [](const Control& control) { return control.name() + " <b>"; });
    const auto find = [&asked](const char* name) { return asked.findChild<QWidget*>(name); };
    const auto isTold = [] {
        const QWidgetList all = QApplication::topLevelWidgets();
        return std::any_of(all.begin(), all.end(), [](const QWidget* widget) {
            return widget->inherits("QWhatsThat") && widget->isVisible();
        });
    };
    find("arrowsUp")->setFocus();
    QTest::keyClick(find("arrowsUp"), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_TRUE(isTold());
    QWhatsThis::hideText();
    EXPECT_TRUE(asked.findChild<QAction*>("verbatim")->whatsThis().contains("&lt;b&gt;"));

    const auto described = [&](const char* name) {
        return QAccessible::queryAccessibleInterface(find(name))->text(QAccessible::Description);
    };
    EXPECT_EQ(described("text"), "text <b>");
    form.text.setToolTip("Tip");
    EXPECT_EQ(described("text"), "Tip");

    QtDesktop().askWhatsThis();
    takeLog();
    QTest::mouseClick(find("cancel"), Qt::LeftButton);
    EXPECT_TRUE(isTold());
    EXPECT_EQ(takeLog(), "");
    QWhatsThis::hideText();
}
