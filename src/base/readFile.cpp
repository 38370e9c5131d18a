#include "readFile.h"

#include "Error.h"
#include "text.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string_view>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t largestFile = std::size_t{256} * 1024 * 1024;

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

std::string readBytes(const fs::path& path) {
    const auto fail = [&path](int code) {
        throw FileError(path, "cannot be read: " + std::generic_category().message(code));
    };
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.string().c_str(), "rb"));
    if (!file) {
        fail(errno);
    }
    // Its own buffer would only be one more copy: the file is read in one go.
    std::setvbuf(file.get(), nullptr, _IONBF, 0);

    constexpr std::size_t firstTry = 16'384;
    std::error_code noSize;
    const std::uintmax_t size = fs::file_size(path, noSize);
    if (!noSize && size > largestFile) {
        fail(EFBIG);
    }
    std::string bytes(noSize ? firstTry : static_cast<std::size_t>(size) + 1, '\0');
    std::size_t filled = 0;
    while (true) {
        const std::size_t got =
            std::fread(bytes.data() + filled, 1, bytes.size() - filled, file.get());
        filled += got;
        if (std::ferror(file.get()) != 0) {
            fail(errno);
        }
        if (filled < bytes.size()) {
            break;
        }
        if (filled > largestFile) {
            fail(EFBIG);
        }
        bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

std::string readTextFile(const fs::path& file) {
    std::string text = readBytes(file);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) {
        text.erase(0, byteOrderMark.size());
    }
    if (!isUtf8(text)) {
        text = windows1252ToUtf8(text);
    }
    return text;
}

}  // namespace fleetwright
