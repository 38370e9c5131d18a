// Pages in PDF files, as other programs read them back.

#include "pdfFile.h"

#include "Raster.h"
#include "TemporaryFolder.h"
#include "caseFile.h"
#include "runCommand.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <future>

using namespace fleetwright;

namespace {

/// A page of lines, and one that is a picture without a drawing.
PageDocument makeDocument() {
    const auto arrow = std::make_shared<Drawing>(36, 36, Box{4, 4, 28, 28});
    arrow->shapes = {{"M4 4L32,18 C32 20 30 22 28 24 Z", 0xFF0000, {}},
                     {.path = "M 4 32 L 32 32", .fill = {}, .stroke = 0xFF, .opacity = 0.5}};
    const auto dots = std::make_shared<Raster>(3, 2);
    dots->pixel(0, 0) = 0x102030;
    dots->pixel(2, 1) = 0xFF0000;
    Page lines;
    lines.items = {
        PageText{.text = "HMS \"Né\" – office ﬁ 3 × (4\\5)", .x = 20, .y = 20, .size = 6},
        PageText{"Ωmega Крейсер 巡洋艦 שלום", 190, 40, 3, PageFont::Bold, PageText::Anchor::End},
        PageText{.text = "سفينة (سلام", .x = 20, .y = 44},
        PageText{.text = "Ark \U0001D538\U0001F600 of \U0001F680\U0001F681", .x = 20, .y = 48},
        PageLine{10, 50, 200, 50},
        PageRectangle{{10, 60, 30, 20}, {}, 0, 0.2, 2},
        PagePicture{arrow, nullptr, {50, 60, 9, 9}, {50, 60, 9, 9}},
        PagePicture{arrow, nullptr, {60, 60, 9, 9}, {60, 60, 9, 4}}};
    lines.contents = {"HMS \"Né\""};
    return {
        paperA4,
        {lines,
         {{PagePicture{nullptr, dots, {20, 20, 30, 20}, {20, 20, 30, 9}}}, {"Ark", "\U0001F680"}}},
        "HMS Né (\"B\")",
        "Ann \U0001F680 <ann@example.org>",
        "Ship & sheet",
        "en",
        1700000000,
        "<x:ship xmlns:x=\"urn:x\">Lines &amp; all</x:ship>"};
}

}  // namespace

TEST(PdfFile, IsWhatOtherProgramsReadOfIt) {
    expectCases("platform/golden/pdf.txt", [](const Case& question) {
        PageDocument document = makeDocument();
        if (question["paper"] == "a card") {
            document.size = {101.5, 50};
            document.date.reset();
        }
        const TemporaryFolder folder;
        folder.write("sheet.pdf", pdfFile(document));
        return runCommand("cd " + folder.path().string() + " && " + question["command"]).output;
    });
}

TEST(PdfFile, HasTheSameBytesInEachThreadAndTimeZone) {
    const std::string pdf = pdfFile(makeDocument());
    setenv("TZ", "Asia/Tokyo", 1);
    auto other = std::async(std::launch::async, [] { return pdfFile(makeDocument()); });
    EXPECT_EQ(pdfFile(makeDocument()), pdf);
    EXPECT_EQ(other.get(), pdf);
    unsetenv("TZ");
}

// A fleet has thousands of pages.
TEST(PdfFile, KeepsNoPageThatIsWritten) {
    std::weak_ptr<const Drawing> last;
    PageDocument document;
    document.morePages = [&last](const PageTaker& take) {
        for (int page = 0; page < 3; ++page) {
            EXPECT_TRUE(last.expired());
            const auto drawing = std::make_shared<const Drawing>(10, 10);
            last = drawing;
            take({{PagePicture{drawing, nullptr, {0, 0, 9, 9}, {0, 0, 9, 9}}}});
        }
    };
    std::string file;
    writePdf(document, [&file](std::string_view bytes) { file += bytes; });
    EXPECT_EQ(file, pdfFile(document));
    EXPECT_NE(file.find("/Count 3 "), std::string::npos);
}
