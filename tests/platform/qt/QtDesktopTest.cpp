#include "QtDesktop.h"

#include "FormWindowTest.h"
#include "TemporaryFolder.h"
#include "contrast.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace fleetwright;

namespace {

/// Does this to each dialog that opens from now on, as many as there are acts.
void inDialogs(std::vector<std::function<void(QDialog&)>> acts) {
    QTimer::singleShot(0, [acts = std::move(acts)]() mutable {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        const auto act = std::move(acts.front());
        acts.erase(acts.begin());
        if (!acts.empty()) {
            inDialogs(std::move(acts));
        }
        act(*dialog);
    });
}

auto choose(const QString& name) {
    return [name](QDialog& dialog) {
        dynamic_cast<QFileDialog&>(dialog).selectFile(name);
        dialog.accept();
    };
}

auto answer(QMessageBox::StandardButton button) {
    return
        [button](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(button)->click(); };
}

void cancel(QDialog& dialog) {
    dialog.reject();
}

}  // namespace

TEST(QtDesktop, TheFiltersOfFileDialogsShowToTheLetter) {
    QStringList shown;
    QString first;
    inDialogs({[&](QDialog& dialog) {
        auto* const filters = dialog.findChild<QComboBox*>("fileTypeCombo");
        first = filters->currentText();
        EXPECT_EQ(dialog.size().expandedTo({760, 460}), dialog.size());
        const auto* const header = dialog.findChild<QTreeView*>("treeView")->header();
        EXPECT_EQ(header->sectionResizeMode(0), QHeaderView::Stretch) << "names have what is left";
        EXPECT_EQ(header->sectionResizeMode(1), QHeaderView::ResizeToContents);
        EXPECT_EQ(header->sectionResizeMode(3), QHeaderView::ResizeToContents);
        for (int i = 0; i < filters->count(); ++i) {
            shown += filters->itemText(i);
        }
        dialog.reject();
    }});
    const auto file = QtDesktop().chooseFileToOpen(
        {.filter = "All Files (*.*)|*.*|Ship Files(*.shp)|*.shp|Others",
         .filterIndex = 2,
         .initialFolder = "."});
    EXPECT_FALSE(file);
    EXPECT_EQ(shown, QStringList({"All Files (*.*)", "Ship Files(*.shp)", "Others"}));
    EXPECT_EQ(first, "Ship Files(*.shp)");
}

TEST(QtDesktop, FileDialogsHandOnWhatIsChosenAndAskBeforeAFileIsReplaced) {
    const TemporaryFolder folder;
    const std::string wasp = folder.write("Wasp.shp", "");
    const FileDialog dialog{.filter = "All", .initialFolder = folder.path(), .extension = ".shp"};
    const std::string bee = (folder.path() / "Bee").string();
    QtDesktop desktop;
    inDialogs({choose("Wasp.shp")});
    EXPECT_EQ(desktop.chooseFileToOpen(dialog), wasp);
    inDialogs({choose("Wasp"),
               [](QDialog& question) {
                   EXPECT_EQ(dynamic_cast<QMessageBox&>(question).textFormat(), Qt::PlainText);
                   answer(QMessageBox::No)(question);
               },
               choose("Bee")});
    EXPECT_EQ(desktop.chooseFileToSave(dialog), bee);
    inDialogs({choose("Wasp"), answer(QMessageBox::Yes)});
    EXPECT_EQ(desktop.chooseFileToSave(dialog), (folder.path() / "Wasp").string());
    inDialogs({cancel});
    EXPECT_EQ(desktop.chooseFileToSave(dialog), std::nullopt);
}

TEST(QtDesktop, TheEndingOfAFileOrElseTheChosenFilterSaysItsKind) {
    const TemporaryFolder folder;
    folder.write("Wasp 1.2.b", "");
    const auto chosen = [&](int filter, const char* name,
                            std::vector<std::function<void(QDialog&)>> further) {
        further.insert(further.begin(), [&](QDialog& dialog) {
            auto& asking = dynamic_cast<QFileDialog&>(dialog);
            asking.selectNameFilter(asking.nameFilters().at(filter));
            choose(name)(dialog);
        });
        inDialogs(std::move(further));
        const auto file =
            QtDesktop().chooseFileToSave({.filter = "All (*.*)|*.*|A (*.a)|*.a|B (*.b)|*.b",
                                          .initialFolder = folder.path(),
                                          .endings = {".a", ".a", ".b"}});
        return std::filesystem::path(file.value_or("none")).filename().string();
    };
    EXPECT_EQ(chosen(0, "Bee 1.2", {}) + chosen(1, "Bee.B", {}), "Bee 1.2.aBee.B");
    EXPECT_EQ(chosen(2, "Wasp 1.2", {answer(QMessageBox::No), cancel}), "none");
}

TEST(QtDesktop, WhatIsMarkedInDialogsCanBeRead) {
    QPalette pale;
    pale.setColor(QPalette::Highlight, QColor(150, 190, 230));
    pale.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(pale);
    const TemporaryFolder folder;
    folder.write("Wasp.shp", "");
    const FileDialog files{.filter = "All", .initialFolder = folder.path(), .extension = ".shp"};
    QtDesktop desktop;
    QStringList seen;
    const auto look = [&seen](QDialog& dialog) {
        const QPalette colours = dialog.palette();
        EXPECT_GE(
            contrast(colours.color(QPalette::Highlight), colours.color(QPalette::HighlightedText)),
            readableContrast);
        seen << dialog.objectName();
        dialog.reject();
    };
    inDialogs({look});
    desktop.chooseFileToOpen(files);
    inDialogs({choose("Wasp"), look, look});
    desktop.chooseFileToSave(files);
    inDialogs({look});
    desktop.showMessage("text", "title", Buttons::Ok, Icon::None);
    EXPECT_EQ(seen, QStringList({"fileDialog", "", "fileDialog", "messageBox"}));
    QApplication::setPalette({});
}

TEST(QtDesktop, MessagesHaveTheirTitleIconAndAnswers) {
    QtDesktop desktop;
    const struct {
        const char* title;
        Buttons buttons;
        Icon icon;
        QMessageBox::StandardButton button;
        Answer answer;
        QString shown;
    } cases[] = {
        {"", Buttons::Ok, Icon::None, QMessageBox::Ok, Answer::Ok,
         QApplication::applicationName() + " 0"},
        {"A\u202E", Buttons::YesNo, Icon::Information, QMessageBox::Yes, Answer::Yes, "A\uFFFD 1"},
        {"A\u202E", Buttons::YesNo, Icon::Critical, QMessageBox::No, Answer::No, "A\uFFFD 3"},
        {"B", Buttons::YesNo, Icon::Critical, QMessageBox::NoButton, Answer::No, "B 3"}};
    for (const auto& each : cases) {
        inDialogs({[&](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.text(), "<b>\uFFFD\nLose it?");
            EXPECT_EQ(box.windowTitle() + ' ' + QString::number(box.icon()), each.shown);
            each.button == QMessageBox::NoButton ? box.reject() : box.button(each.button)->click();
        }});
        EXPECT_EQ(desktop.showMessage("<b>\x1B\nLose it?", each.title, each.buttons, each.icon),
                  each.answer);
    }
}

TEST(QtDesktop, MenusOpenAtTheKeyboardOfTheirOwnWindowOrAtThePointer) {
    AllKinds form;
    AllKinds other;
    QtDesktop desktop;
    desktop.present(form);
    desktop.present(other);
    form.show();
    other.show();
    other.button.setFocus();
    const auto placeOf = [&](AllKinds& owner) {
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
