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

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

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
        bytes.resize(bytes.size() * 2);
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace

std::filesystem::path nativePath(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
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
    // One fast search finds the LF, and a CR in front of it is looked for in the line alone. The
    // LF is remembered, so that a text whose lines end in CR alone is not searched again and again.
    if (m_lineNumber == 0 || m_lineFeed < m_at) {
        m_lineFeed = std::min(m_text.find('\n', m_at), m_text.size());
    }
    ++m_lineNumber;
    line = m_text.substr(m_at, m_lineFeed - m_at);
    const std::size_t carriageReturn = line.find('\r');
    if (carriageReturn == std::string_view::npos) {
        m_at = std::min(m_lineFeed + 1, m_text.size());
        return true;
    }
    line = line.substr(0, carriageReturn);
    const std::size_t behind = m_at + carriageReturn + 1;
    m_at = behind == m_lineFeed && m_lineFeed < m_text.size() ? behind + 1 : behind;
    return true;
}

}  // namespace fleetwright
