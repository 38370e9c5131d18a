#pragma once

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

}  // namespace fleetwright
