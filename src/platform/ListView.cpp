#include "ListView.h"

#include <algorithm>
#include <utility>

namespace fleetwright {

void ListView::addColumn(const std::string& title, int width) {
    m_columns.push_back({title, width});
    Changed.raise();
}

std::optional<std::size_t> ListView::find(std::string_view key) const {
    const auto found = std::find_if(m_content.rows.begin(), m_content.rows.end(),
                                    [key](const Row& row) { return row.key == key; });
    if (found == m_content.rows.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - m_content.rows.begin());
}

void ListView::add(const std::string& key, const std::string& text, const std::string& subItem) {
    m_content.rows.push_back({key, text, subItem});
    Changed.raise();
}

void ListView::setSubItem(std::size_t row, const std::string& subItem) {
    if (m_content.rows.at(row).subItem != subItem) {
        m_content.rows[row].subItem = subItem;
        Changed.raise();
    }
}

void ListView::remove(std::size_t row) {
    m_content.rows.erase(m_content.rows.begin() + static_cast<std::ptrdiff_t>(row));
    if (m_content.rows.empty()) {
        m_content.selected.reset();
    } else if (m_content.selected > row || m_content.selected == m_content.rows.size()) {
        --*m_content.selected;
    }
    Changed.raise();
}

void ListView::setContent(Content content) {
    m_content = std::move(content);
    Changed.raise();
}

void ListView::select(std::size_t row) {
    if (takesActs() && row < m_content.rows.size() && m_content.selected != row) {
        m_content.selected = row;
        Changed.raise();
    }
}

}  // namespace fleetwright
