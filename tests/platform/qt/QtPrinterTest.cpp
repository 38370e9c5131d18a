#include "QtPrinter.h"
#include "QtPagePrinter.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPageSize>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>
#include <QSpinBox>
#include <QTimer>

#include <cmath>
#include <filesystem>
#include <functional>

using namespace fleetwright;

namespace {

/// The text of a PDF file, as another program reads it back.
std::string textOf(const std::string& pdf) {
    return runCommand("pdftotext -layout '" + pdf + "' -").output;
}

TEST(QtPrinter, PrintsLinesThatCanBeReadBackAndBreaksLongOnes) {
    const TemporaryFolder folder;
    const std::string pdf = (folder.path() / "report.pdf").string();
    QtPrinter printer;
    printer.chooseFile(pdf);
    printer.setFontName("Courier New");
    printer.setFontSize(10);
    printer.printLine("Ship Name: Né");
    printer.printLine("");
    printer.printLine("    3\tGun");
    printer.printLine(std::string(200, 'x') + "end");
    for (int line = 5; line <= 100; ++line) {
        printer.printLine("line " + std::to_string(line));
    }
    printer.setFontSize(30);
    printer.printLine(std::string(60, 'y'));
    printer.endDocument();
    const std::string text = textOf(pdf);
    EXPECT_TRUE(text.starts_with("Ship Name: Né\n\n    3   Gun\nxxx")) << text.substr(0, 80);
    EXPECT_EQ(text.find(std::string(120, 'x')), std::string::npos);
    EXPECT_EQ(text.find(std::string(60, 'y')), std::string::npos) << "large letters";
    EXPECT_NE(text.find("xend\n"), std::string::npos);
    EXPECT_NE(text.find('\f'), std::string::npos) << "more than one page";
    EXPECT_NE(text.find("line 100\n"), std::string::npos);
}

TEST(QtPrinter, SaysThatItDoesNotPrintAndGoesOnWithTheNextFile) {
    const TemporaryFolder folder;
    QtPrinter printer;
    printer.chooseFile((folder.path() / "none" / "report.pdf").string());
    EXPECT_THROW(printer.printLine("lost"), Error);
    const std::string pdf = (folder.path() / "report.pdf").string();
    printer.chooseFile(pdf);
    printer.printLine("found");
    printer.endDocument();
    EXPECT_TRUE(textOf(pdf).starts_with("found\n"));
}

TEST(QtPrinter, KeepsToTheMarginsOfThePageAndLeavesNoLineAloneOnTheNext) {
    const TemporaryFolder folder;
    const std::string pdf = (folder.path() / "report.pdf").string();
    QtPrinter printer;
    printer.chooseFile(pdf);
    printer.setFontSize(10);
    const auto linesIn = [&](int lines, const std::string& part) {
        for (int line = 0; line < lines; ++line) {
            printer.printLine("MMM");
        }
        printer.endDocument();
        const std::string command = "pdftotext " + part + " '" + pdf + "' - 2>/dev/null";
        return std::stoi(runCommand(command + " | grep -c M").output);
    };
    int lines = 60;
    while (linesIn(lines, "-f 2") == 0) {
        ++lines;
    }
    EXPECT_EQ(linesIn(lines, "-f 2"), 3);
    EXPECT_EQ(linesIn(1, "-x 0 -y 0 -H 841 -W 42"), 0) << "15 mm";
    // Characters that are twice as wide as others, and those that UTF-16 has two units for.
    std::string wide, two;
    for (int i = 0; i < 100; ++i) {
        wide += "漢";
        two += "𝔸";
    }
    for (const std::string& line : {wide, two, 'M' + two}) {
        printer.printLine(line);
    }
    printer.endDocument();
    const auto seen = [&](const std::string& part) {
        return runCommand("pdftotext " + part + " '" + pdf + "' - | tr -d '\\n\\f'").output;
    };
    EXPECT_EQ(seen("-x 555 -y 0 -H 841 -W 60"), "");
    EXPECT_EQ(seen("").find("\uFFFD"), std::string::npos) << seen("");
}

/// Acts on the next dialog.
void onDialog(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0,
                       [act] { act(dynamic_cast<QDialog&>(*QApplication::activeModalWidget())); });
}

TEST(QtPrinter, PrintsAsManyCopiesAsItsDialogSaysOrNone) {
    QtPrinter printer;
    printer.setTitle("HMS A/B");
    const auto choose = [&](bool isAccepted) {
        onDialog([=](QDialog& dialog) {
            EXPECT_TRUE(dialog.findChild<QLineEdit*>("filename")->text().endsWith("/HMS A_B.pdf"));
            EXPECT_EQ(dialog.findChild<QSpinBox*>("copies")->value(), 1);
            dialog.findChild<QSpinBox*>("copies")->setValue(2);
            isAccepted ? dialog.accept() : dialog.reject();
        });
        return printer.choose();
    };
    EXPECT_EQ(choose(false), std::nullopt);
    EXPECT_EQ(choose(true), 2);
    EXPECT_EQ(choose(true), 2);
    printer.setFontName("Courier New");
    printer.setFontSize(11);
    EXPECT_EQ(printer.fontName() + ' ' + std::to_string(printer.fontSize()), "Courier New 11");
}

TEST(QtPagePrinter, PrintsAndShowsPagesAsTheyAreLaidOut) {
    const TemporaryFolder folder;
    const std::string pdf = (folder.path() / "sheet.pdf").string();
    const auto layout = [](const PageSize& size) {
        const PageText text = {"on paper", size.width - 10, size.height - 10,
                               5,          PageFont::Bold,  PageText::Anchor::End};
        PageDocument document;
        document.size = size;
        document.title = "U.S. A/B";
        document.pages = {Page{{text}}, Page{{text}}};
        return document;
    };
    const auto chooseFile = [&](QDialog& dialog) {
        auto* const file = dialog.findChild<QLineEdit*>("filename");
        EXPECT_TRUE(file->text().endsWith("/U.S. A_B.pdf"));
        file->setText(QString::fromStdString(pdf));
        dialog.accept();
    };
    QtPagePrinter printer;
    onDialog([](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(printer.print(layout).way, Printout::Way::Nowhere);
    onDialog(chooseFile);
    EXPECT_EQ(printer.print(layout).file, pdf);
    onDialog([&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QPrintPreviewWidget*>()->pageCount(), 2);
        const QSize room = dialog.screen()->availableSize() - QSize(10, 40);
        EXPECT_EQ(dialog.height(), std::min(900, room.height()));
        EXPECT_GE(dialog.width(), std::min(800, room.width()));
        dynamic_cast<QPrintPreviewDialog&>(dialog).printer()->setPageSize(QPageSize(QPageSize::A9));
        onDialog(chooseFile);
        for (QAction* const action : dialog.findChildren<QAction*>()) {
            action->text() == "Print" ? action->trigger() : void();
        }
    });
    const Printout label = printer.preview(layout);
    EXPECT_EQ(label.file, pdf);
    EXPECT_EQ(std::lround(label.paper.width), 105) << "room for a sheet";
    EXPECT_FALSE(std::filesystem::exists(pdf)) << "whoever has the pages saves them";
    onDialog([](QDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(printer.preview(layout).way, Printout::Way::Nowhere);
    EXPECT_THROW(printer.preview([](const PageSize&) -> PageDocument { throw Error("no map"); }),
                 Error);
}

}  // namespace
