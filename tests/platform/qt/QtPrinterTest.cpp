#include "QtPrinter.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QSpinBox>
#include <QTimer>

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

TEST(QtPrinter, PrintsAsManyCopiesAsItsDialogSaysOrNone) {
    QtPrinter printer;
    const auto choose = [&](bool isAccepted) {
        QTimer::singleShot(0, [=] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            dialog->findChild<QSpinBox*>("copies")->setValue(2);
            isAccepted ? dialog->accept() : dialog->reject();
        });
        return printer.choose();
    };
    EXPECT_EQ(choose(false), std::nullopt);
    EXPECT_EQ(choose(true), 2);
}

}  // namespace
