#pragma once

// The string helpers on which every text format of the program is read.
//
// The two cutters keep what they have not handed out yet, one memory each and for each thread:
// a line is taken apart by one call with the line and further calls with an empty text. A line
// with too few pieces repeats its last one for ever, and an empty line goes on with what the line
// before has left; the file formats rest on both.

#include <cstddef>
#include <string>
#include <string_view>

namespace fleetwright {

/// `text` with its characters in reverse order.
std::string strReverse(std::string_view text);

/// The piece of `source` in front of the earliest delimiter, or all of it if there is none. Each
/// character of `delims` is a delimiter, found without regard to case unless `bExact`. An empty
/// `source` is first replaced by what the call before has left.
std::string strTok(std::string& source, std::string_view delims, bool bExact);

/// The part of `source` behind the earliest delimiter, or nothing if there is none; otherwise as
/// `strTok`, with a memory of its own.
std::string strTokTail(std::string& source, std::string_view delims, bool bExact);

/// Makes `rest` what `strTok` has left on this thread.
void leaveForStrTok(std::string_view rest);

/// Takes one line apart as repeated calls of `strTok` do, without copying and without touching
/// `strTok`'s memory. For readers of many lines. The line must outlive the pieces.
class LineCutter {
public:
    explicit LineCutter(std::string_view line) : m_rest(line) {}

    /// The piece in front of the next delimiter, or all that is left.
    std::string_view next(char delimiter) {
        const std::size_t place = m_rest.find(delimiter);
        if (place == std::string_view::npos) {
            return m_rest;
        }
        const std::string_view piece = m_rest.substr(0, place);
        m_rest.remove_prefix(place + 1);
        return piece;
    }

    /// All that is left, delimiters included.
    std::string_view rest() const { return m_rest; }

private:
    std::string_view m_rest;
};

}  // namespace fleetwright
