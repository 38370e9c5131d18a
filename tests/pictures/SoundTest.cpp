#include "Sound.h"

#include "TemporaryFolder.h"
#include "faults.h"
#include "renderedSets.h"

#include <gtest/gtest.h>

namespace fleetwright {
namespace {

std::uint32_t number(const std::string& bytes, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = size; i > 0; --i) {
        value = value << 8U | static_cast<unsigned char>(bytes.at(at + i - 1));
    }
    return value;
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

TEST(Sound, AFaultyDescriptionIsNamedWithItsLine) {
    const TemporaryFolder folder;
    const std::string file = folder.write("sound.txt", "# a comment\nvoice start 0 length loud\n");
    EXPECT_EQ(fileFaultOf([&] { waveFile(file); }), file + ": line 2: no voice");
}

}  // namespace
}  // namespace fleetwright
