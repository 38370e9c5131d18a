#include "readFile.h"

#include "Error.h"
#include "OpenFile.h"
#include "entryCalls.h"
#include "text.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t largestFile = std::size_t{256} * 1024 * 1024;

}  // namespace

std::string readBytes(const fs::path& path) {
    if (const std::string_view why = entryCalls::whyNoName(path); !why.empty()) {
        throw FileError(path, "cannot be read: " + std::string(why));
    }
    std::error_code error;
    const auto check = [&path, &error](std::uintmax_t size) {
        if (!error && size > largestFile) {
            error = std::make_error_code(std::errc::file_too_large);
        }
        if (error) {
            throw FileError(path, "cannot be read: " + error.message());
        }
    };
    OpenFile file(path, OpenFile::Use::Read, error);
    const std::uintmax_t size = file.size();
    check(size);

    constexpr std::size_t leastMore = 16'384;
    std::string bytes(static_cast<std::size_t>(size) + 1, '\0');
    std::size_t filled = 0;
    bool isAtEnd = false;
    while (!isAtEnd) {
        const std::size_t got = file.read(bytes.data() + filled, bytes.size() - filled, error);
        filled += got;
        check(filled);  // it may grow meanwhile
        // All that it had when it was opened, and not the byte more that there was room for.
        isAtEnd = got == 0 || filled == size;
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
