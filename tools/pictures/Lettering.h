#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace fleetwright {

/// The program's own letters: strokes of a pen, as SVG path data.
///
/// Its file has one letter a line: the letter, its width, and its path, with the origin at the
/// left end of the base line and capitals `capitalHeight` units high. Lines that begin with "# "
/// are comments.
class Lettering {
public:
    static constexpr double capitalHeight = 20;

    /// Throws FileError.
    explicit Lettering(const std::filesystem::path& file);

    /// Width of a text in the letters' units, with so much more between any two of them.
    double width(std::string_view text, double spacing = 0) const;

    /// Path data of a text; a letter that is not there is an Error.
    std::string outline(std::string_view text, double spacing = 0) const;

private:
    struct Letter {
        double width = 0;
        std::string path;
    };
    const Letter& letter(char which) const;

    std::map<char, Letter> m_letters;
};

}  // namespace fleetwright
