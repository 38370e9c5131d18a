#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fleetwright {

/// How many columns of a terminal a text takes: two for a Chinese character, none for an accent
/// that goes on the letter before it.
std::size_t shownWidth(std::string_view text);

/// Cells that stand below each other in a terminal, whatever their letters are. Each line is handed
/// in twice, to be measured and to be written, so that any number of them can be.
class TextColumns {
public:
    enum class Align { Left, Right };

    explicit TextColumns(std::vector<Align> columns)
        : m_columns(std::move(columns)), m_widths(m_columns.size()) {}

    void measure(const std::vector<std::string>& cells);
    /// A line of cells, without blanks at its end. There are as many cells as columns.
    std::string line(const std::vector<std::string>& cells) const;

private:
    std::vector<Align> m_columns;
    std::vector<std::size_t> m_widths;
};

}  // namespace fleetwright
