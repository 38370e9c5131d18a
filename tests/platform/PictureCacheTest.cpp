#include "PictureCache.h"

#include "Error.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace fleetwright;

namespace {

/// A decoder that counts; the width of a picture is the length of its file.
class CountingDecoder : public PictureFiles {
public:
    Raster load(const std::filesystem::path& file) override {
        ++m_count;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        if (!std::filesystem::exists(file)) {
            throw FileError(file, "is missing");
        }
        return {static_cast<int>(std::filesystem::file_size(file)), 1};
    }
    Raster builtIn(const std::string& name) override {
        ++m_count;
        return {static_cast<int>(name.size()), 1};
    }
    int takeCount() { return m_count.exchange(0); }

private:
    std::atomic<int> m_count = 0;
};

}  // namespace

TEST(PictureCache, DecodesAFileOnceHoweverManyThreadsAskForIt) {
    const TemporaryFolder folder;
    const std::vector<std::string> files = {folder.write("a", "1"), folder.write("b", "12"),
                                            folder.write("c", "123")};
    CountingDecoder decoder;
    PictureCache cache(decoder);
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads(8);
    for (std::thread& thread : threads) {
        thread = std::thread([&] {
            for (int round = 0; round < 20; ++round) {
                for (std::size_t file = 0; file < files.size(); ++file) {
                    const auto width = static_cast<std::size_t>(cache.load(files[file]).width());
                    wrong += width == file + 1 ? 0 : 1;
                }
                wrong += cache.builtIn("four").width() == 4 ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(decoder.takeCount(), 4);
}

TEST(PictureCache, SeesAChangedFileAndAFailureThatIsMended) {
    const TemporaryFolder folder;
    const std::string file = (folder.path() / "x").string();
    CountingDecoder decoder;
    PictureCache cache(decoder);
    EXPECT_THROW(cache.load(file), FileError);
    folder.write("x", "12");
    EXPECT_EQ(cache.load(file).width(), 2);
    folder.write("x", "123");
    EXPECT_EQ(cache.load(file).width(), 3);
    EXPECT_EQ(cache.load(file).width(), 3);
    EXPECT_EQ(decoder.takeCount(), 3);
}
