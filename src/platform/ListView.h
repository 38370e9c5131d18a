#pragma once

#include "PointedControl.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace fleetwright {

/// Rows under column headers, each with a key, a text and a second column.
class ListView : public PointedControl {
public:
    struct Row {
        std::string key;
        std::string text;
        std::string subItem = {};                 ///< what stands in the second column
        std::vector<std::string> moreItems = {};  ///< and in those behind it
        bool isStrong = false;                    ///< in bold letters
        bool isAlarming = false;                  ///< in the colour of what is wrong

        bool operator==(const Row&) const = default;
    };
    struct Column {
        std::string title;
        int width;  ///< twips
    };

    /// All rows, and which of them is selected.
    struct Content {
        std::vector<Row> rows;
        std::optional<std::size_t> selected;
    };

    ListView(Container& container, ControlDesign design)
        : PointedControl(&container, std::move(design)) {}

    void addColumn(const std::string& title, int width);
    const std::vector<Column>& columns() const { return m_columns; }

    const std::vector<Row>& rows() const { return m_content.rows; }
    /// Place of the row with this key.
    std::optional<std::size_t> find(std::string_view key) const;
    /// Adds a row at the end.
    void add(const std::string& key, const std::string& text, const std::string& subItem);
    void setSubItem(std::size_t row, const std::string& subItem);
    /// Removes a row. If it was the selected one, the next is selected then, or else the last.
    void remove(std::size_t row);
    void clear() { setContent({}); }
    const Content& content() const { return m_content; }
    void setContent(Content content);

    /// Place of the selected row, if there is one.
    std::optional<std::size_t> selected() const { return m_content.selected; }

    /// The user has selected this row.
    void select(std::size_t row);
    /// The user wants the selected row to go.
    void pressDelete() {
        if (takesActs()) {
            raise(onDelete);
        }
    }

    /// The user has pressed the Enter key, which is the form's where there is no `onEnter`.
    void pressEnter() {
        if (takesActs()) {
            raise(onEnter);
        }
    }

    Handler onDelete;
    Handler onEnter;

    /// What is to be said of a row that the pointer rests on. May be empty.
    std::function<std::string(const Row&)> rowToolTip;

private:
    std::vector<Column> m_columns;
    Content m_content;
};

}  // namespace fleetwright
