#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// What is wrong with a file, and where.
struct Fault {
    /// Line, counted from 1; 0 where no single line is at fault.
    int line = 0;
    std::string text;

    friend bool operator==(const Fault&, const Fault&) = default;
};

/// Puts faults in the order of their lines; those of no single line come last.
inline void sortByLine(std::vector<Fault>& faults) {
    std::stable_sort(faults.begin(), faults.end(), [](const Fault& a, const Fault& b) {
        return a.line != 0 && (b.line == 0 || a.line < b.line);
    });
}

/// A fault as one line of text: "FILE:LINE: what is wrong", or without the line where no single one
/// is at fault.
inline std::string complaint(const std::string& file, const Fault& fault) {
    const std::string line = fault.line == 0 ? "" : std::to_string(fault.line) + ":";
    return file + ":" + line + " " + fault.text;
}

/// A piece of a file as the texts of faults show it: U+FFFD stands for a control character, for a
/// NUL would cut the text off, and a terminal would obey the others.
inline std::string quote(std::string_view piece) {
    std::string text = "\"";
    for (const char c : piece) {
        const bool isControl = static_cast<unsigned char>(c) < ' ' || c == '\x7F';
        text += isControl ? "\xEF\xBF\xBD" : std::string(1, c);
    }
    return text + '"';
}

}  // namespace fleetwright
