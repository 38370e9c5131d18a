#include "PackReader.h"

#include "text.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace fleetwright {

namespace {

/// Whether all of a word was a number.
bool isWhole(std::string_view word, const std::from_chars_result& result) {
    return result.ec == std::errc() && result.ptr == word.data() + word.size();
}

}  // namespace

void PackReader::nextLine() {
    endLine();
    const std::size_t end = m_rest.find('\n');
    ++m_line;
    if (end == std::string_view::npos) {
        fail("the line has no end");
    }
    m_words = m_rest.substr(0, end);
    m_rest.remove_prefix(end + 1);
}

std::string_view PackReader::word() {
    if (m_words.empty()) {
        fail("the line is cut short");
    }
    const std::string_view word = m_words.substr(0, m_words.find(' '));
    m_words.remove_prefix(std::min(word.size() + 1, m_words.size()));
    return word;
}

std::string_view PackReader::restOfLine() {
    return std::exchange(m_words, {});
}

std::size_t PackReader::wholeNumber(std::size_t most) {
    const std::string_view text = word();
    std::size_t value = 0;
    if (!isWhole(text, std::from_chars(text.data(), text.data() + text.size(), value)) ||
        value > most) {
        fail(quote(text) + " is no whole number up to " + std::to_string(most));
    }
    return value;
}

double PackReader::number(double least, double most) {
    const std::string_view text = word();
    double value = 0;
    if (!isWhole(text, std::from_chars(text.data(), text.data() + text.size(), value,
                                       std::chars_format::fixed)) ||
        !(value >= least && value <= most)) {
        fail(quote(text) + " is no number that can stand here");
    }
    return value;
}

std::uint64_t PackReader::hexadecimal(std::string_view piece, std::size_t digits) const {
    std::uint64_t value = 0;
    if (piece.size() != digits ||
        !isWhole(piece, std::from_chars(piece.data(), piece.data() + digits, value, 16))) {
        fail(quote(piece) + " is no number of " + std::to_string(digits) + " hexadecimal digits");
    }
    return value;
}

void PackReader::endLine() const {
    if (!m_words.empty()) {
        fail("more than belongs here: " + quote(m_words));
    }
}

}  // namespace fleetwright
