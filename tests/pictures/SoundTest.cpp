#include "Sound.h"

#include "Error.h"
#include "TemporaryFolder.h"
#include "renderedSets.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace fleetwright {
namespace {

std::uint32_t number(const std::string& bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i > 0; --i) {
        value = value << 8U | static_cast<unsigned char>(bytes.at(at + i - 1));
    }
    return value;
}

int sample(const std::string& bytes, std::size_t index) {
    return static_cast<std::int16_t>(number(bytes, 44 + 2 * index, 2));
}

TEST(Sound, IsAPlainWaveFileOfLessThanASecond) {
    const std::string wave = waveFile(projectArtwork().file("blaster.txt"));
    ASSERT_GT(wave.size(), 44U);
    EXPECT_EQ(wave.substr(0, 4), "RIFF");
    EXPECT_EQ(wave.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(number(wave, 4, 4), wave.size() - 8);
    EXPECT_EQ(number(wave, 20, 2), 1U);  // plain samples
    const std::uint32_t channels = number(wave, 22, 2);
    const std::uint32_t rate = number(wave, 24, 4);
    EXPECT_EQ(channels, 1U);
    EXPECT_EQ(number(wave, 28, 4), rate * 2);
    EXPECT_EQ(number(wave, 34, 2), 16U);
    EXPECT_EQ(wave.substr(36, 4), "data");
    const std::uint32_t dataSize = number(wave, 40, 4);
    EXPECT_EQ(dataSize, wave.size() - 44);
    EXPECT_LT(dataSize, rate * 2);
    EXPECT_GT(dataSize, rate / 2);
}

TEST(Sound, IsHeardWithoutClippingAndFadesAway) {
    const std::string wave = waveFile(projectArtwork().file("blaster.txt"));
    const std::size_t count = (wave.size() - 44) / 2;
    int loudest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        loudest = std::max(loudest, std::abs(sample(wave, i)));
    }
    EXPECT_GT(loudest, 8000);
    EXPECT_LT(loudest, 32767);
    EXPECT_LT(std::abs(sample(wave, 0)), 200);
    EXPECT_LT(std::abs(sample(wave, count - 1)), 200);
}

TEST(Sound, AFaultyDescriptionIsNamedWithItsLine) {
    const TemporaryFolder folder;
    const std::string file = folder.write("sound.txt", "# a comment\nvoice start 0 length loud\n");
    try {
        waveFile(file);
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.file(), file);
        EXPECT_STREQ(error.what(), "line 2: no voice");
    }
}

}  // namespace
}  // namespace fleetwright
