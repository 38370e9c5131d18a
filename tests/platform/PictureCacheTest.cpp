#include "PictureCache.h"

#include "Error.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace fleetwright;

namespace {

/// A decoder that counts; the width of a picture is the length of its file, or of its name.
class CountingDecoder : public PictureFiles {
public:
    Raster load(const std::filesystem::path& file) override {
        ++count;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        if (!std::filesystem::exists(file)) {
            throw FileError(file, "is missing");
        }
        return {static_cast<int>(std::filesystem::file_size(file)), 1};
    }
    Raster builtIn(const std::string& name) override {
        ++count;
        return {static_cast<int>(name.size()), 1};
    }

    std::atomic<int> count = 0;
};

}  // namespace

TEST(PictureCache, DecodesAFileOnceUntilItChangesHoweverManyThreadsAskForIt) {
    const TemporaryFolder folder;
    const std::string file = (folder.path() / "x").string();
    CountingDecoder decoder;
    PictureCache cache(decoder);
    EXPECT_THROW(cache.load(file), FileError);
    const Raster one = cache.builtIn("one"), again = cache.builtIn("one");
    EXPECT_EQ(&one.row(0)[0], &again.row(0)[0]) << "what is handed out shares its pixels";
    for (const int width : {2, 3}) {
        folder.write("x", std::string(static_cast<std::size_t>(width), 'x'));
        decoder.count = 0;
        std::atomic<int> right = 0;
        {
            std::vector<std::jthread> threads;
            for (int i = 0; i < 8; ++i) {
                threads.emplace_back([&] {
                    right += cache.load(file).width() == width ? 1 : 0;
                    right += cache.builtIn("four").width() == 4 ? 1 : 0;
                });
            }
        }
        EXPECT_EQ(right, 16);
        EXPECT_EQ(decoder.count, width == 2 ? 2 : 1) << "what is built in does not change";
    }
}

TEST(Raster, CopiesThatShareAreChangedAloneAndNeverKeepAKeyTooLong) {
    Raster picture(3, 2);
    std::uint32_t& pixel = picture.pixel(1, 1);
    const Raster shared = picture.shared();
    const Raster::Key key = shared.key();
    pixel = 0x123456;
    EXPECT_TRUE(picture.key() != key && shared.key() == key);
    Raster copies[] = {shared, shared, shared, Raster(2, 3)};
    copies[0].pixel(2, 0) = 0xFFFFFE;
    copies[1].row(1)[0] = 0;
    copies[2].setHeight(1);
    for (const Raster& copy : copies) {
        EXPECT_TRUE(copy.key() != key && shared.key() == key);
    }
}
