#include "TextColumns.h"

#include "text.h"

#include <utf8proc.h>

#include <algorithm>

namespace fleetwright {

std::size_t shownWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const auto code = static_cast<utf8proc_int32_t>(codePoint(text));
        width += static_cast<std::size_t>(utf8proc_charwidth(code));
        text.remove_prefix(characterLength(text));
    }
    return width;
}

void TextColumns::measure(const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
        m_widths[i] = std::max(m_widths[i], shownWidth(cells[i]));
    }
}

std::string TextColumns::line(const std::vector<std::string>& cells) const {
    constexpr std::size_t gap = 2;
    std::string line;
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
        const std::string room(m_widths[i] - shownWidth(cells[i]), ' ');
        line += m_columns[i] == Align::Right ? room + cells[i] : cells[i] + room;
        line.append(gap, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

}  // namespace fleetwright
