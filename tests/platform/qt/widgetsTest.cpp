// Controls and their widgets beside each other: what the program and the user do to them, a line
// each, and how both look then, in a file of cases.

#include "FormWindowTest.h"

#include "caseFile.h"
#include "formTexts.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QTest>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QWheelEvent>

using namespace fleetwright;

namespace {

/// What a widget tells the user, and those who read it to him.
std::string shownBy(QWidget& widget) {
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&widget);
    // On some systems the text of a box with a list is its name, too.
    const bool isCombo = dynamic_cast<QComboBox*>(&widget) != nullptr;
    QString text = told->text(isCombo ? QAccessible::Value : QAccessible::Name) + '=' +
                   told->text(QAccessible::Value);
    if (QAccessibleValueInterface* const value = told->valueInterface()) {
        text += value->currentValue().toString();
    }
    if (auto* const rows = dynamic_cast<QTreeWidget*>(&widget)) {
        for (QTreeWidgetItemIterator each(rows); *each != nullptr; ++each) {
            text += ", " + (*each)->text(0) + ' ' + (*each)->text(1);
            text += (*each)->icon(0).isNull() ? "" : " with picture";
            text += *each == rows->currentItem() ? "*" : "";
            text += (*each)->isExpanded() ? " open" : "";
        }
    }
    if (auto* const combo = dynamic_cast<QComboBox*>(&widget)) {
        text += " of " + QString::number(combo->count());
    }
    text += told->role() == QAccessible::RadioButton ? " choice" : "";
    // A button that is down stands out, and looks closed where it is.
    const QPalette& colours = widget.palette();
    text += colours.button() == colours.brush(QPalette::Disabled, QPalette::Highlight) ? " grey"
            : colours.buttonText() == colours.highlightedText()                        ? " bright"
                                                                                       : "";
    const QAccessible::State state = told->state();
    return text.toStdString() + (state.checked ? " on" : "") + (state.disabled ? " disabled" : "") +
           (state.invisible ? " hidden" : "") + (state.readOnly ? " locked" : "") +
           ((widget.focusPolicy() & Qt::TabFocus) != 0 ? " stop" : "") +
           (widget.window()->focusWidget() == &widget ? " focus" : "");
}

std::string shownBy(const QAction& entry) {
    return (entry.text() + entry.shortcut().toString()).toStdString() +
           (entry.isChecked() ? " on" : "") + (entry.isEnabled() ? "" : " disabled") +
           (entry.isVisible() ? "" : " hidden");
}

class WidgetsPlay {
public:
    WidgetsPlay() {
        collect(m_form, m_controls);
        m_form.show();
        m_window.show();
        m_form.slider.setRange(0, 7);
    }

    std::string run(const std::string& acts) {
        return playActs(acts, {.act = [this](const std::string& act) { doLine(act); },
                               .takeLog = [this] { return std::exchange(m_form.log, {}); },
                               .look = [this] { return look(); },
                               .folder = "nowhere"});
    }

private:
    std::map<std::string, std::string> look() {
        std::map<std::string, std::string> seen;
        for (const auto& [name, control] : m_controls) {
            seen[name] = replaced(stateOf(*control), "\r\n", "+") + " / ";
            if (auto* const widget = m_window.findChild<QWidget*>(name.c_str())) {
                seen[name] += shownBy(*widget);
            } else if (auto* const entry = m_window.findChild<QAction*>(name.c_str())) {
                seen[name] += shownBy(*entry);
            }
        }
        return seen;
    }

    void doLine(const std::string& line) {
        const std::string name = cut(cut(line).second).first;
        const std::string rest = cut(cut(line).second).second;
        const auto found = m_controls.find(name);
        Control* const control = found == m_controls.end() ? nullptr : found->second;
        auto* const widget = m_window.findChild<QWidget*>(name.c_str());
        const std::map<std::string, std::function<void()>> acts = {
            {"look", [&] { m_form.log += look()[name] + ' '; }},
            {"enable", [&] { control->setEnabled(rest == "on"); }},
            {"show", [&] { control->setVisible(rest == "on"); }},
            {"lock", [&] { dynamic_cast<TextBox&>(*control).setLocked(rest == "on"); }},
            {"tip", [&] { control->setToolTip(rest); }},
            {"say",
             [&] {                               // of the first row, where there are rows
                 QApplication::processEvents();  // lays them out
                 auto* const told = QAccessible::queryAccessibleInterface(widget);
                 auto* const rows = told->tableInterface();
                 m_form.log += (rows == nullptr ? told : rows->cellAt(0, 0))
                                   ->text(QAccessible::Description)
                                   .replace('\n', " | ")
                                   .toStdString();
             }},
            {"listen",
             [&] {  // to what Qt makes the event of that a screen reader hears
                 QObject::connect(
                     dynamic_cast<QTreeWidget&>(*widget).selectionModel(),
                     &QItemSelectionModel::currentChanged, [this](const QModelIndex& current) {
                         m_form.log += "now " + current.data().toString().toStdString() + ' ';
                     });
             }},
            {"focus", [&] { widget->setFocus(); }},
            {"click", [&] { QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(5, 5)); }},
            {"double", [&] { QTest::mouseDClick(widget, Qt::LeftButton, {}, QPoint(5, 5)); }},
            {"right",
             [&] {
                 auto& rows = dynamic_cast<QTreeWidget&>(*widget);
                 QTest::mouseClick(rows.viewport(), Qt::RightButton, {}, QPoint(5, 5));
             }},
            {"menu",
             [&] {
                 QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
                 QApplication::sendEvent(widget, &asked);
             }},
            {"type", [&] { QTest::keyClicks(widget, QString::fromStdString(rest)); }},
            {"key",
             [&] {
                 const auto keys = QKeySequence::fromString(QString::fromStdString(rest));
                 QTest::keyClick(widget, keys[0].key(), keys[0].keyboardModifiers());
             }},
            {"voice",
             [&] {
                 QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
                 rest.empty()
                     ? told->actionInterface()->doAction(told->actionInterface()->toggleAction())
                     : told->setText(QAccessible::Value, QString::fromStdString(rest));
             }},
            {"paste",
             [&] {
                 const std::string lines = replaced(rest, "+", "\n");
                 QApplication::clipboard()->setText(QString::fromStdString(lines));
                 QTest::keyClick(widget, Qt::Key_V, Qt::ControlModifier);
             }},
            {"wheel",
             [&] {
                 QWheelEvent turned({}, {}, {}, {0, std::stoi(rest)}, {}, {}, {}, false);
                 QApplication::sendEvent(widget, &turned);
             }},
            {"trigger", [&] { m_window.findChild<QAction*>(name.c_str())->trigger(); }},
            {"set", [&] { set(*control, replaced(rest, "+", "\r\n")); }},
            {"append", [&] { m_form.lines.append(rest + "\r\n"); }},
            {"add", [&] { add(*control, rest); }},
            {"select", [&] { m_form.list.select(std::stoul(rest)); }},
            {"remove", [&] { m_form.list.remove(std::stoul(rest)); }},
            {"picture", [&] { m_form.images.add(rest, Raster(32, 32)); }},
            {"open", [&] { m_form.tree.setExpanded(*m_form.tree.find(rest), true); }},
            {"node", [&] { m_form.tree.select(*m_form.tree.find(rest)); }},
            {"clear", [&] { m_form.combo.clear(); }},
            {"empty", [&] { m_form.lines.clear(); }},
        };
        acts.at(cut(line).first)();
    }

    static void set(Control& control, const std::string& value) {
        if (auto* const label = dynamic_cast<Label*>(&control)) {
            label->setCaption(value);
        } else if (auto* const option = dynamic_cast<OptionButton*>(&control)) {
            option->setOn();
        } else if (auto* const tick = dynamic_cast<CheckBox*>(&control)) {
            tick->setTicked(value == "on");
        } else if (auto* const box = dynamic_cast<TextBox*>(&control)) {
            box->setText(value);
        } else if (auto* const slider = dynamic_cast<Slider*>(&control)) {
            slider->setValue(std::stoi(value));
        } else if (auto* const combo = dynamic_cast<ComboBox*>(&control)) {
            combo->setText(value);
        } else {
            dynamic_cast<StatusBar&>(control).setText(value);
        }
    }

    void add(const Control& control, const std::string& text) {
        if (&control == &m_form.list) {
            m_form.list.add(text, text, "1");
        } else if (&control == &m_form.tree) {
            m_form.tree.add("ROOT", text);
        } else {
            m_form.combo.addItem(text);
        }
    }

    AllKinds m_form;
    FormWindow m_window{m_form};
    Controls m_controls;
};

}  // namespace

TEST(Widgets, ShowTheirControlsAndHandOnWhatIsDone) {
    expectCases("platform/qt/golden/widgets.txt",
                [](const Case& each) { return WidgetsPlay().run(each["acts"]); });
}

TEST_F(FormWindowTest, WhatIsOutOfReachTakesNoActs) {
    form.combo.addItem("item");
    form.list.add("row", "row", "1");
    const auto tryAll = [this] {
        form.first.setOn();
        takeLog();
        form.second.choose();
        form.button.press();
        form.text.type("x" + form.text.text());
        form.slider.slide(form.slider.value() + 1);
        form.arrows.pressUp();
        form.list.select(0);
        form.combo.choose(0);
        form.combo.choose(1);
        return takeLog();
    };
    Controls controls;
    collect(form, controls);
    for (const auto& [name, control] : controls) {
        control->setEnabled(false);
    }
    EXPECT_EQ(tryAll(), "");
    for (const auto& [name, control] : controls) {
        control->setEnabled(true);
        control->setVisible(false);
    }
    EXPECT_EQ(tryAll(), "");
    for (const auto& [name, control] : controls) {
        control->setVisible(true);
    }
    form.hide();
    EXPECT_EQ(tryAll(), "");
    EXPECT_EQ(form.combo.text(), "");
    EXPECT_EQ(form.list.selected(), std::nullopt);
    form.show();
    EXPECT_EQ(tryAll(), "second button text=x slider=1 change up ");
    EXPECT_EQ(form.combo.text(), "item");
    EXPECT_EQ(form.list.selected(), 0U);
}

TEST_F(FormWindowTest, TreesRefuseDoubleKeysAndUnknownParents) {
    EXPECT_THROW(form.tree.add("ROOT", "leaf"), std::logic_error);
    EXPECT_THROW(form.tree.add("none", "x"), std::logic_error);
    EXPECT_EQ(form.tree.nodes().size(), 2U);
}
