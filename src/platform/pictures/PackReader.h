#pragma once

#include "FaultError.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fleetwright {

/// Takes the text of a pack apart, strictly as it is written: a line feed behind each line, one
/// blank between two words. Whatever does not find what it is asked for throws FaultError.
class PackReader {
public:
    /// A text, or what follows in it from the line of this number on.
    explicit PackReader(std::string_view text, int line = 1) : m_rest(text), m_line(line - 1) {}

    bool isAtEnd() const { return m_rest.empty(); }
    /// The text behind the line at hand.
    std::string_view rest() const { return m_rest; }

    /// Goes on to the next line; there must be no word left in the one at hand.
    void nextLine();
    std::string_view word();
    /// What is left in the line, blanks included.
    std::string_view restOfLine();
    std::size_t wholeNumber(std::size_t most);
    /// A decimal number between these two, without an exponent.
    double number(double least, double most);
    /// The number in a piece of the line, which is so many hexadecimal digits.
    std::uint64_t hexadecimal(std::string_view piece, std::size_t digits) const;
    void endLine() const;

    [[noreturn]] void fail(const std::string& fault) const { throw FaultError({m_line, fault}); }

private:
    std::string_view m_rest;   // of the text
    std::string_view m_words;  // that are left in the line
    int m_line;
};

}  // namespace fleetwright
