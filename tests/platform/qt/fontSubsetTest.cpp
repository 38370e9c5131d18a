// The fonts that documents hold, against those that they are taken from.

#include "FontSubset.h"
#include "pageFontFiles.h"

#include <gtest/gtest.h>

#include <QPainterPath>
#include <QRawFont>

#include <cmath>

using namespace fleetwright;

namespace {

/// What a font draws of a character, row by row, and how far that moves the pen.
std::string drawn(const QRawFont& font, char32_t character) {
    const QList<quint32> glyphs = font.glyphIndexesForString(QString::fromUcs4(&character, 1));
    const QPainterPath path = font.pathForGlyph(glyphs.at(0));
    std::string picture =
        std::to_string(std::lround(8 * font.advancesForGlyphIndexes(glyphs).at(0).x()));
    for (int y = -16; y < 6; ++y) {
        picture += '\n';
        for (int x = -8; x < 24; ++x) {
            picture += path.contains(QPointF(x + 0.48, y + 0.47)) ? '#' : '.';
        }
    }
    return picture;
}

}  // namespace

TEST(FontSubset, DrawsWhatItsFaceDoes) {
    constexpr std::u32string_view ofFaces[] = {U"Bé\u01D5\u0186 g%\u0301\U0001D538\uFFFD",
                                               U"Bé\u01D5\u0186 g%\uFFFD",
                                               U"巡洋\u0E01\u0E31\u2FFF"};
    for (const PageFace face : pageFaces) {
        std::vector<FontSubset::Sign> signs = {{U'x', U'x'}};
        for (const char32_t character : ofFaces[static_cast<std::size_t>(face)]) {
            signs.push_back({character, character});
        }
        const FontSubset subset(
            face, face == PageFace::Fallback ? std::vector(signs.begin() + 1, signs.end()) : signs);
        const QRawFont made(QByteArray::fromStdString(subset.file()), 16, QFont::PreferNoHinting);
        QFont whole = pageFont(face);
        whole.setPixelSize(16);
        whole.setHintingPreference(QFont::PreferNoHinting);
        const QRawFont expected = QRawFont::fromFont(whole);
        ASSERT_TRUE(made.isValid());
        EXPECT_EQ(made.weight(), expected.weight());
        EXPECT_EQ(made.familyName(), expected.familyName());
        for (const FontSubset::Sign& sign : subset.signs()) {
            EXPECT_EQ(drawn(made, sign.character), drawn(expected, sign.character))
                << std::hex << std::uint32_t(sign.character);
        }
        EXPECT_EQ(made.glyphIndexesForString("y").at(0), 0U);
        // Browsers take no font without: one map, for all of Unicode.
        EXPECT_EQ(made.fontTable("cmap").left(8).toHex(), "000000010003000a");
    }
}
