#include "InputFile.h"

#include "Error.h"
#include "entryCalls.h"

#include <string_view>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = std::uintmax_t{256} * 1024 * 1024;

/// The path of a file; throws for a name that none can have.
fs::path checkedName(fs::path path) {
    if (const std::string_view why = entryCalls::whyNoName(path); !why.empty()) {
        throw FileError(path, "cannot be read: " + std::string(why));
    }
    return path;
}

}  // namespace

InputFile::InputFile(const fs::path& file)
    : m_file(checkedName(file), OpenFile::Use::Read, m_error) {
    check(m_file.size());
}

void InputFile::check(std::uintmax_t size) {
    if (!m_error && size > largestFile) {
        m_error = std::make_error_code(std::errc::file_too_large);
    }
    if (m_error) {
        throw FileError(m_file.path(), "cannot be read: " + m_error.message());
    }
}

std::size_t InputFile::read(char* bytes, std::size_t most) {
    const std::size_t count = m_file.read(bytes, most, m_error);
    m_place += count;
    check(m_place);  // it may grow meanwhile
    return count;
}

std::string InputFile::piece(std::size_t place, std::size_t length) {
    if (place != m_place) {
        m_error = m_file.seek(place);
        check(0);
        m_place = place;
    }
    std::string bytes(length, '\0');
    std::size_t filled = 0;
    while (filled < length) {
        const std::size_t count = read(bytes.data() + filled, length - filled);
        if (count == 0) {
            bytes.resize(filled);
            break;
        }
        filled += count;
    }
    return bytes;
}

}  // namespace fleetwright
