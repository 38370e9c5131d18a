#pragma once

// Designs as one line of text, for chats, mails and QR codes: "FW1:" and letters.
// docs/file-formats.md says what they mean.

#include "Error.h"

#include <string>
#include <string_view>

namespace fleetwright {

/// A text with no code, or with one that does not hold a design that is whole and sound.
class DesignCodeError : public Error {
public:
    using Error::Error;
};

/// Ship files longer than this, in bytes, have no code.
inline constexpr std::size_t longestCodedShip = 1 << 20;

/// A ship file as a code. Throws DesignCodeError if it is too long for one.
std::string designCode(std::string_view shipFile);

/// Whether what looks like a code, be it sound or not, begins somewhere in a text.
bool hasDesignCode(std::string_view text);

/// Whether a text is meant as a code: it begins with one, perhaps in brackets, in quotation marks,
/// in the marks by which chats set words off, or behind blanks. Names of files are not.
bool isDesignCode(std::string_view text);

/// The ship file, to the byte, in the code that stands somewhere in a text. What mails and chats do
/// to it does not matter: white space, the case of its letters, ">" in front of its lines. Throws
/// DesignCodeError if there is none, if it is damaged, or if there are codes of several designs.
std::string shipInCode(std::string_view text);

}  // namespace fleetwright
