#pragma once

#include "OpenFile.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

namespace fleetwright {

/// A file that is read, whole or in pieces, and open until this object ends: whoever replaces it
/// meanwhile does not change what is read. Throws FileError for what cannot be read, also for a
/// file so large that it is none of ours.
class InputFile {
public:
    explicit InputFile(const std::filesystem::path& file);

    /// Its bytes when it was opened.
    std::size_t size() const { return static_cast<std::size_t>(m_file.size()); }
    /// Reads on, at most so many bytes; how many have come. None: that was all.
    std::size_t read(char* bytes, std::size_t most);
    /// So many bytes from a place on, fewer if the file ends before.
    std::string piece(std::size_t place, std::size_t length);

private:
    void check(std::uintmax_t size);

    std::error_code m_error;
    OpenFile m_file;
    std::size_t m_place = 0;  // where it is read on
};

}  // namespace fleetwright
