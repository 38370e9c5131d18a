#include "TextFile.h"

#include "Error.h"
#include "utf8.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace fleetwright {

namespace {

constexpr std::size_t largestFile = std::size_t{256} * 1024 * 1024;

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

std::filesystem::path nativePath(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string readBytes(const std::filesystem::path& path) {
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
    const std::uintmax_t size = std::filesystem::file_size(path, noSize);
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

std::string readTextFile(const std::filesystem::path& file) {
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

bool LineReader::next(std::string_view& line) {
    if (m_at == m_text.size()) {
        return false;
    }
    // Each kind of end is looked for once and remembered until the reading has passed it, so that
    // a text without one of them is not searched for it at every line.
    const auto find = [this](char end, std::size_t& place) {
        if (m_lineNumber == 0 || place < m_at) {
            place = std::min(m_text.find(end, m_at), m_text.size());
        }
    };
    find('\n', m_lineFeed);
    find('\r', m_carriageReturn);
    ++m_lineNumber;
    const std::size_t end = std::min(m_lineFeed, m_carriageReturn);
    line = m_text.substr(m_at, end - m_at);
    const bool isCrLf = m_lineFeed == end + 1 && m_carriageReturn == end;
    m_at = std::min(end + (isCrLf ? 2 : 1), m_text.size());
    return true;
}

}  // namespace fleetwright
