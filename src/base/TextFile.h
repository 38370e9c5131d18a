#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace fleetwright {

/// The native path of a path in UTF-8, which is how the program keeps paths as texts.
std::filesystem::path nativePath(std::string_view utf8);

/// The contents of a file, byte for byte. Throws FileError, also for a file so large that it is
/// none of ours.
std::string readBytes(const std::filesystem::path& file);

/// The contents of a text file as UTF-8. A byte order mark is passed over, and a file that is
/// not valid UTF-8 is taken as Windows-1252, so that old files keep their accents.
/// Throws FileError as `readBytes` does.
std::string readTextFile(const std::filesystem::path& file);

/// Takes a text apart into its lines, which end at CR, LF or CR LF. An end of line at the very
/// end of the text opens no further line.
class LineReader {
public:
    explicit LineReader(std::string_view text) : m_text(text) {}

    /// Puts the next line, without its end, into `line`; false when there is none.
    bool next(std::string_view& line);

    /// Number of the line that `next` has delivered last, from 1; 0 before the first.
    int lineNumber() const { return m_lineNumber; }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    // Places of the next LF and CR, or the text's size; out of date once `m_at` has passed them.
    std::size_t m_lineFeed = 0;
    std::size_t m_carriageReturn = 0;
    int m_lineNumber = 0;
};

}  // namespace fleetwright
