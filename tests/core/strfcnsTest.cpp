#include "strfcns.h"

#include <gtest/gtest.h>

#include <thread>

using namespace fleetwright;

namespace {

/// The first pieces of `line`.
std::string pieces(std::string line, const std::string& delims, int calls, bool exact = true) {
    std::string result;
    for (int i = 0; i < calls; ++i) {
        result += '[' + strTok(line, delims, exact) + ']';
        line.clear();
    }
    return result;
}

std::string tail(std::string line, const std::string& delims) {
    return strTokTail(line, delims, true);
}

}  // namespace

TEST(StrTok, CutsAndRepeatsTheLastPiece) {
    EXPECT_EQ(pieces("a,b,c", ",", 5), "[a][b][c][c][c]");
    EXPECT_EQ(pieces("abc", ",", 2), "[abc][abc]");
    EXPECT_EQ(pieces(",b", ",", 3), "[][b][b]");
    EXPECT_EQ(pieces("a,,b", ",", 3), "[a][][b]");
    EXPECT_EQ(pieces("a,", ",", 3), "[a][][]");
    EXPECT_EQ(pieces("a:b,c", ",:", 3), "[a][b][c]");
    EXPECT_EQ(pieces("aXbxc", "x", 2), "[aXb][c]");
    EXPECT_EQ(pieces("aXbxc", "x", 3, false), "[a][b][c]");
    EXPECT_EQ(pieces("a é b € c", "€é", 3), "[a ][ b ][ c]");
}

TEST(StrTok, HasAMemoryApartFromStrTokTailAndOneForEachThread) {
    std::string line = "12,34,5";
    EXPECT_EQ(strTok(line, ",", true), "12");
    EXPECT_EQ(tail("56,78,9", ","), "78,9");
    std::string elsewhere;
    std::thread([&] {
        std::string empty;
        elsewhere = "[" + strTok(empty, ",", true) + "]";
    }).join();
    EXPECT_EQ(elsewhere, "[]");
    // An empty source takes the rest into the caller's text.
    std::string goOn;
    EXPECT_EQ(strTok(goOn, "", true), "34,5");
    EXPECT_EQ(goOn, "34,5");
    EXPECT_EQ(tail("1234", ","), "");
    EXPECT_EQ(tail("", ""), "");
}

TEST(StrReverse, TurnsCharactersAround) {
    EXPECT_EQ(strReverse("C:\\ships\\a.shp"), "phs.a\\spihs\\:C");
    EXPECT_EQ(strReverse("né€"), "€én");
    EXPECT_EQ(strReverse(""), "");
}
