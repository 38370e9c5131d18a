// Printing through the dialog, to a file as long as there is no printer.

#include "Hands.h"
#include "MainWindow.h"
#include "RunningProgram.h"
#include "runTool.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

using namespace fleetwright;

namespace {

/// The lines of a text, with one blank between words and without those that are empty.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream all(text);
    for (std::string line; std::getline(all, line);) {
        std::istringstream words(line);
        std::string joined;
        for (std::string word; words >> word;) {
            joined += (joined.empty() ? "" : " ") + word;
        }
        if (!joined.empty()) {
            lines.push_back(joined);
        }
    }
    return lines;
}

}  // namespace

TEST(PrintTest, ReportReachesThePaper) {
    RunningProgram program;
    const std::filesystem::path folder = program.folder().path();
    const std::string ship = folder / "ships" / "Provost.shp";
    program.start();
    const MainWindow window;
    window.load(ship);
    window.waitUntilActive();
    press({"ctrl+p"});
    const Window dialog("Print");
    const std::string pdf = folder / "report.pdf";
    dialog.click("text", "Output file:");
    press({"ctrl+a"});
    type(pdf);
    waitFor("the name of the file to be typed",
            [&] { return dialog.get("text", "Output file:").text() == pdf; });
    dialog.click("push button", "Print");
    dialog.waitUntilGone();
    waitFor("the file to be whole",
            [&] { return program.folder().read("report.pdf").ends_with("%%EOF\n"); });
    const std::string text = folder / "report.txt";
    ASSERT_EQ(std::system(("pdftotext -layout " + pdf + ' ' + text).c_str()), 0);
    const ToolRun report = runTool(folder, {"report", ship});
    ASSERT_EQ(report.status, 0) << report.errors;
    EXPECT_EQ(linesOf(program.folder().read("report.txt")), linesOf(report.output));
}
