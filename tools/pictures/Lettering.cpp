#include "Lettering.h"

#include "Error.h"
#include "readFile.h"
#include "text.h"

#include <cctype>
#include <cstring>
#include <sstream>
#include <stdexcept>

namespace fleetwright {

namespace {

/// Path data moved to the right. Paths hold absolute M, L, H, V, C and Q commands, with a blank
/// behind each command and number.
std::string moved(const std::string& path, double by) {
    std::istringstream words(path);
    std::ostringstream result;
    std::string word;
    char command = 'M';
    bool isX = true;
    while (words >> word) {
        if (std::isalpha(static_cast<unsigned char>(word.front())) != 0) {
            command = word.front();
            if (word.size() > 1 || !std::strchr("MLHVCQ", command)) {
                throw std::invalid_argument(word);
            }
            isX = command != 'V';
            result << command << ' ';
            continue;
        }
        result << std::stod(word) + (isX ? by : 0) << ' ';
        isX = command == 'H' || (command != 'V' && !isX);
    }
    return result.str();
}

}  // namespace

Lettering::Lettering(const std::filesystem::path& file) {
    const std::string text = readTextFile(file);
    LineReader lines(text);
    std::string_view line;
    while (lines.next(line)) {
        if (line.empty() || line.starts_with("# ")) {
            continue;
        }
        std::istringstream words{std::string(line)};
        char which = 0;
        Letter letter;
        if (!(words >> which >> letter.width)) {
            throw FileError(file, "line " + std::to_string(lines.lineNumber()) +
                                      ": no letter with a width");
        }
        std::getline(words, letter.path);
        try {
            moved(letter.path, 0);
        } catch (const std::logic_error&) {
            throw FileError(file, "line " + std::to_string(lines.lineNumber()) +
                                      ": a path that is not understood");
        }
        m_letters[which] = letter;
    }
    constexpr double blankWidth = 9;
    m_letters[' '].width = blankWidth;
}

double Lettering::width(std::string_view text, double spacing) const {
    double width = text.empty() ? 0 : -spacing;
    for (const char which : text) {
        width += letter(which).width + spacing;
    }
    return width;
}

std::string Lettering::outline(std::string_view text, double spacing) const {
    std::string path;
    double x = 0;
    for (const char which : text) {
        path += moved(letter(which).path, x);
        x += letter(which).width + spacing;
    }
    return path;
}

const Lettering::Letter& Lettering::letter(char which) const {
    const auto found = m_letters.find(which);
    if (found == m_letters.end()) {
        throw Error(std::string("the lettering has no \"") + which + '"');
    }
    return found->second;
}

}  // namespace fleetwright
