#include "text.h"
#include "readFile.h"

#include "Error.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace fleetwright;

namespace {

std::string readBack(const std::string& bytes) {
    const TemporaryFolder folder;
    return readTextFile(folder.write("file", bytes));
}

std::string linesOf(std::string_view text) {
    LineReader reader(text);
    std::string lines;
    std::string_view line;
    while (reader.next(line)) {
        lines += std::to_string(reader.lineNumber()) + '[' + std::string(line) + ']';
    }
    return lines;
}

}  // namespace

TEST(TextFile, IsUtf8OrElseWindows1252) {
    EXPECT_EQ(readBack(""), "");
    EXPECT_EQ(readBack("plain"), "plain");
    EXPECT_EQ(readBack("\xEF\xBB\xBFÉtoile €"), "Étoile €");
    EXPECT_EQ(readBack("\xC9toile \x80 \x81 \x9F"), "Étoile € \u0081 Ÿ");
    // One bad byte anywhere makes the whole file an old one.
    EXPECT_EQ(readBack(std::string(100, 'a') + "Ä\xFF"), std::string(100, 'a') + "Ã„ÿ");
    const std::string big(70000, 'x');
    EXPECT_EQ(readBack(big), big);
}

TEST(TextFile, NamesWhatCannotBeRead) {
    const TemporaryFolder folder;
    EXPECT_THROW(readTextFile(folder.path() / "nothing"), FileError);
    EXPECT_THROW(readTextFile(folder.path()), FileError);
}

TEST(TextFile, LinesEndAtCrLfOrBoth) {
    EXPECT_EQ(linesOf(""), "");
    EXPECT_EQ(linesOf("a"), "1[a]");
    EXPECT_EQ(linesOf("a\n"), "1[a]");
    EXPECT_EQ(linesOf("a\r\nb\rc\nd"), "1[a]2[b]3[c]4[d]");
    EXPECT_EQ(linesOf("\n\r\r\n\n\r"), "1[]2[]3[]4[]5[]");
    EXPECT_EQ(linesOf("a\rb\r"), "1[a]2[b]");
    EXPECT_EQ(linesOf("a\n\rb"), "1[a]2[]3[b]");
}

TEST(Utf8, KnowsWellFormedCharacters) {
    for (const char* text : {"", "é", "€", "𝄞", "\u07FF\u0800\uFFFF", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(isUtf8(text)) << text;
    }
    for (const char* text : {"\x80", "\xC0\x80", "\xC1\xBF", "\xC3", "\xE0\x9F\xBF", "\xED\xA0\x80",
                             "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                             "\xF8\x88\x80\x80\x80", "12345678\xE2\x82"}) {
        EXPECT_FALSE(isUtf8(text)) << text;
    }
}

TEST(Utf8, CountsCharactersNotBytes) {
    EXPECT_EQ(characterCount("aé€𝄞"), 4U);
    EXPECT_EQ(characterCount("a\xFFz"), 3U);
    EXPECT_EQ(lastCharacter("x€"), "€");
    EXPECT_EQ(lastCharacter("\xA4"), "\xA4");
    EXPECT_EQ(withoutLastCharacters("né.téx", 4), "né");
    EXPECT_EQ(withoutLastCharacters("é", 4), "");
}

TEST(Capitals, FoldWhatOldFilesHold) {
    EXPECT_EQ(toCapitals("q-Ship 7 @[`{éñÿœß€я"), "Q-SHIP 7 @[`{ÉÑŸŒß€я");
    EXPECT_EQ(toSmallLetters("AZ az @[`{ÉÑŸŒß€Я"), "az az @[`{éñÿœß€Я");
}
