#include "fleetLines.h"

#include "text.h"

#include <algorithm>

namespace fleetwright {

namespace {

constexpr std::string_view blanks = " \t";

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    const std::size_t end = text.find_last_not_of(blanks);
    return begin == text.size() ? text.substr(begin) : text.substr(begin, end + 1 - begin);
}

bool isQuoted(std::string_view text) {
    return text.size() >= 2 && text.starts_with('"') && text.ends_with('"');
}

}  // namespace

bool FleetLine::isBlank() const {
    return withoutBlanks(text).empty();
}

bool FleetLine::isComment() const {
    return withoutBlanks(text).starts_with('#');
}

FleetLine cutFleetLine(std::string_view& text) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view lineEnd = lineEndOf(text.substr(end));
    FleetLine line;
    line.text = text.substr(0, end);
    line.whole = text.substr(0, end == text.size() ? end : end + lineEnd.size());
    text.remove_prefix(line.whole.size());

    const std::size_t parting = line.text.find('=');
    if (parting != std::string_view::npos && !line.isComment()) {
        line.key = toSmallLetters(withoutBlanks(line.text.substr(0, parting)));
        const std::string_view written = withoutBlanks(line.text.substr(parting + 1));
        line.value = isQuoted(written) ? written.substr(1, written.size() - 2) : written;
        line.valueAt = static_cast<std::size_t>(written.data() - line.text.data());
    }
    return line;
}

std::string_view lineEndOf(std::string_view text) {
    const std::size_t at = text.find_first_of("\r\n");
    if (at == std::string_view::npos || text.substr(at).starts_with("\r\n")) {
        return "\r\n";
    }
    return text[at] == '\r' ? "\r" : "\n";
}

std::string writtenValue(std::string_view value) {
    if (withoutBlanks(value).size() != value.size() || isQuoted(value)) {
        return '"' + std::string(value) + '"';
    }
    return std::string(value);
}

std::string oneLine(std::string_view text) {
    std::string line;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (text.front() == '\r' || text.front() == '\n') {
            line += ' ';
        } else {
            line += isUtf8(text.substr(0, length)) ? text.substr(0, length) : "\uFFFD";
        }
        text.remove_prefix(length);
    }
    return line;
}

}  // namespace fleetwright
