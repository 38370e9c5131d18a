#include "comparisonTexts.h"

#include "TextColumns.h"
#include "text.h"

#include <utility>

namespace fleetwright {

namespace {

using Rows = std::vector<std::vector<std::string>>;

/// Rows of as many cells, which stand below each other.
std::string textOf(const Rows& rows) {
    TextColumns columns(std::vector(rows.front().size(), TextColumns::Align::Left));
    for (const std::vector<std::string>& row : rows) {
        columns.measure(row);
    }
    std::string text;
    for (const std::vector<std::string>& row : rows) {
        text += columns.line(row) + '\n';
    }
    return text;
}

std::vector<std::string> rowOf(const ComparedLine& line) {
    std::vector<std::string> row = {(line.differs() ? "* " : "  ") + shownText(line.title)};
    const bool isPair = line.cells.size() == 2;
    for (std::size_t i = 0; i < line.cells.size(); ++i) {
        row.push_back(shownText(line.cells[i].text) + (!isPair && line.differs(i) ? " *" : ""));
    }
    if (isPair) {
        row.push_back(line.difference(1));
    }
    return row;
}

std::string renamedTo(const CatalogueChanges::Gone& gone) {
    return gone.renamed ? "; renamed? " + quote(*gone.renamed) +
                              " has the same mass, cost, category and arcs"
                        : "";
}

/// What a change means besides that it is one.
std::string meaningOf(const ComparedLine& change, const CatalogueChanges& catalogue) {
    const ComparedLine::Cell &was = change.cells.front(), &is = change.cells.back();
    if (change.about == ComparedLine::About::System && is.numbers.front() == 0) {
        const CatalogueChanges::Gone* const gone = catalogue.find(change.key);
        return gone == nullptr ? "the ship loses it"
                               : "the ship loses it, since it is gone" + renamedTo(*gone);
    }
    if (change.key == "massLeft" && was.numbers.front() >= 0 && is.numbers.front() < 0) {
        return "the ship no longer fits";
    }
    return {};
}

}  // namespace

std::string columnName(std::size_t ship) {
    constexpr std::size_t letters = 26;
    const std::string last(1, static_cast<char>('A' + ship % letters));
    return ship < letters ? last : columnName(ship / letters - 1) + last;
}

std::string tableOf(std::span<const std::string> names, std::span<const ComparedLine> lines) {
    Rows ships, table;
    std::vector<std::string> head = {""};
    for (std::size_t i = 0; i < names.size(); ++i) {
        ships.push_back({columnName(i), shownText(names[i])});
        head.push_back(columnName(i));
    }
    if (names.size() == 2) {
        head.emplace_back("Difference");
    }
    table.push_back(std::move(head));
    for (const ComparedLine& line : lines) {
        table.push_back(rowOf(line));
    }
    return textOf(ships) + '\n' + textOf(table) + '\n' + differencesIn(lines) + '\n';
}

std::string textOf(const CatalogueChanges& changes) {
    std::string text;
    for (const CatalogueChanges::Gone& each : changes.gone) {
        text += "Gone: " + shownText(each.name) + renamedTo(each) + '\n';
    }
    for (const std::string& name : changes.added) {
        text += "New: " + shownText(name) + '\n';
    }
    return text;
}

std::string impactText(std::span<const ComparedLine> changes, const CatalogueChanges& catalogue) {
    std::string text;
    for (const ComparedLine& change : changes) {
        const std::string difference = change.difference(1), meaning = meaningOf(change, catalogue);
        text += "    " + shownText(change.title) + ": " + shownText(change.cells.front().text) +
                " -> " + shownText(change.cells.back().text) +
                (difference.empty() ? "" : " (" + difference + ')') +
                (meaning.empty() ? "" : ": " + meaning) + '\n';
    }
    return text;
}

}  // namespace fleetwright
