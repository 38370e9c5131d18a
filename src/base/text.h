#pragma once

// Texts, which are UTF-8 in memory: their characters, letters and lines, and how a piece of one is
// shown.

#include <cstddef>
#include <string>
#include <string_view>

namespace fleetwright {

/// Length in bytes of the character at the start of `text`, which is not empty. A byte that
/// begins no well-formed UTF-8 character counts as a character of its own.
std::size_t characterLength(std::string_view text);

/// The code point of the character at the start of `text`, which is not empty; U+FFFD for a byte
/// that begins no well-formed character.
char32_t codePoint(std::string_view text);

/// Whether `text` is well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool isUtf8(std::string_view text);

/// Number of characters in `text`.
std::size_t characterCount(std::string_view text);

/// `text` without its last `count` characters, or nothing at all if it is shorter than that.
std::string_view withoutLastCharacters(std::string_view text, std::size_t count);

/// The last character of `text`; empty for an empty text.
std::string_view lastCharacter(std::string_view text);

/// Windows-1252 bytes as UTF-8. The five bytes without a character become U+0081 and so on.
std::string windows1252ToUtf8(std::string_view bytes);

/// `text` in capitals: the letters of ASCII and of Windows-1252, whatever the process's locale.
/// Those are the letters that the program's text formats were written in; others stay.
std::string toCapitals(std::string_view text);

/// `text` in small letters, which undoes `toCapitals`.
std::string toSmallLetters(std::string_view text);

/// `text` without the blanks at both of its ends. Only the blank itself counts, no tab.
std::string_view trimmed(std::string_view text);

/// `text` with its first letter as a capital.
std::string asSentence(std::string_view text);

/// Whether a character does nothing but show: it controls nothing, ends no line and turns no
/// direction of writing.
bool onlyShows(char32_t character);

/// Whether a character has no picture, since it only says how others are to be treated.
bool isInvisible(char32_t character);

/// A piece of text from outside, such as a name, a file's name or a line, as people get to see it:
/// in a message, on a terminal, on the status line. U+FFFD stands for each character that does more
/// than show, and for what is no UTF-8. Of a text of more than `most` characters the middle is
/// left out, with "…" in its place.
std::string shownText(std::string_view text, std::size_t most = 200);

/// A whole text of ours that may hold pieces from outside: as above, but its line ends and tabs
/// stay, and nothing is left out.
std::string shownLines(std::string_view text);

/// `shownText` between quotation marks.
std::string quote(std::string_view piece);

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
