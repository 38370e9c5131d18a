#include "readFile.h"

#include "InputFile.h"
#include "text.h"

#include <algorithm>
#include <string_view>

namespace fleetwright {

namespace fs = std::filesystem;

std::string readBytes(const fs::path& path) {
    constexpr std::size_t leastMore = 16'384;
    InputFile file(path);
    std::string bytes(file.size() + 1, '\0');
    std::size_t filled = 0;
    bool isAtEnd = false;
    while (!isAtEnd) {
        const std::size_t got = file.read(bytes.data() + filled, bytes.size() - filled);
        filled += got;
        // All that it had when it was opened, and not the byte more that there was room for.
        isAtEnd = got == 0 || filled == file.size();
        if (filled == bytes.size()) {
            bytes.resize(std::max(bytes.size() * 2, leastMore));
        }
    }
    bytes.resize(filled);
    return bytes;
}

std::string toUtf8(std::string contents) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (contents.starts_with(byteOrderMark)) {
        contents.erase(0, byteOrderMark.size());
    }
    return isUtf8(contents) ? contents : windows1252ToUtf8(contents);
}

std::string readTextFile(const fs::path& file) {
    return toUtf8(readBytes(file));
}

}  // namespace fleetwright
