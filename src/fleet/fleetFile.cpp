#include "fleetFile.h"

#include "FaultError.h"
#include "fleetKeys.h"
#include "fleetLines.h"
#include "readFile.h"
#include "saveFile.h"
#include "text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace fleetwright {

namespace {

constexpr std::string_view firstWords = "FleetWright fleet ";
constexpr std::string_view version = "1";

/// Throws FaultError if a text does not begin like a fleet file of this version.
void checkBeginning(std::string_view text) {
    if (!isFleet(text)) {
        throw FaultError({0, "is no fleet file"});
    }
    const std::string_view line = cutFleetLine(text).text;
    if (trimmed(line.substr(firstWords.size())) != version) {
        throw FaultError({1, "is a fleet file of another version: " + quote(line)});
    }
}

/// A text of several lines, taken apart where a ship begins.
struct Sections {
    std::vector<std::string_view> texts;  ///< what is in front of the ships, and one for each
    std::vector<int> firstLines;          ///< from 1 on
};

/// Comments right above a ship are about it, and go with it, as do the empty lines above those.
Sections sectionsOf(std::string_view text) {
    Sections sections{{}, {1}};
    std::size_t begin = 0;
    std::size_t above = 0;  // where the empty lines and comments above the next line begin
    int line = 1, lineAbove = 1;
    bool endsInComment = false;
    for (std::string_view rest = text; !rest.empty(); ++line) {
        const std::size_t at = text.size() - rest.size();
        const FleetLine cut = cutFleetLine(rest);
        if (cut.key == shipKeys().front().key) {
            if (sections.texts.size() >= Fleet::mostDesigns) {
                throw FaultError({line, "a fleet has " + std::to_string(Fleet::mostDesigns) +
                                            " designs at the most"});
            }
            sections.texts.push_back(text.substr(begin, above - begin));
            sections.firstLines.push_back(lineAbove);
            begin = above;
        }
        const std::size_t behind = text.size() - rest.size();
        const bool startsAnew = cut.isBlank() && endsInComment;
        if (!cut.isBlank() && !cut.isComment()) {
            above = behind;
            lineAbove = line + 1;
        } else if (startsAnew) {
            above = at;
            lineAbove = line;
        }
        endsInComment = cut.isComment();
    }
    sections.texts.push_back(text.substr(begin));
    return sections;
}

void endLine(std::string& text, std::string_view lineEnd) {
    if (!text.empty() && !text.ends_with('\n') && !text.ends_with('\r')) {
        text += lineEnd;
    }
}

/// Puts the lines of a section together again.
template <typename Section>
class SectionWriter {
public:
    SectionWriter(KeyRows<Section> rows, const Section& now, std::string_view lineEnd)
        : m_rows(rows), m_lineEnd(lineEnd) {
        Section before;
        std::vector<Fault> ignored;
        const std::vector<KeyLine> lines = readLines(rows, now.asRead, before, 1, ignored);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            m_keys.push_back({.before = rows[row].values(before), .now = rows[row].values(now)});
        }
        for (const KeyLine& line : lines) {
            take(line);
        }
    }

    std::string text(std::string_view beginning) {
        if (m_pieces.empty() && !beginning.empty()) {
            m_pieces.push_back({KeyLine::none, std::string(beginning)});
        }
        for (std::size_t row = 0; row < m_keys.size(); ++row) {
            addMissing(row);
        }
        std::string text;
        for (const Piece& piece : m_pieces) {
            endLine(text, m_lineEnd);
            text += piece.text;
        }
        return text;
    }

private:
    struct Key {
        std::vector<std::string> before, now;
        std::size_t nextBefore = 0, next = 0;
        bool isSame() const { return before == now; }
    };
    struct Piece {
        std::size_t row;
        std::string text;
    };

    /// A line as it was, with another value, or left out; in front of it what is new.
    void take(const KeyLine& line) {
        if (line.row == KeyLine::none || m_keys[line.row].isSame()) {
            m_pieces.push_back({line.row, std::string(line.cut.whole)});
            return;
        }
        Key& key = m_keys[line.row];
        const auto next = key.now.begin() + static_cast<std::ptrdiff_t>(key.next);
        auto found = key.now.end();
        if (!line.isFaulty && key.nextBefore < key.before.size()) {
            found = std::find(next, key.now.end(), key.before[key.nextBefore++]);
        }
        if (found != key.now.end()) {
            while (key.now[key.next] != *found) {
                addNext(line.row, m_pieces.size());
            }
            m_pieces.push_back({line.row, std::string(line.cut.whole)});
            ++key.next;
        } else if (next != key.now.end() && !comesLater(key, *next)) {
            m_pieces.push_back({line.row, withValue(line.cut, *next)});
            ++key.next;
        }
    }

    static bool comesLater(const Key& key, const std::string& value) {
        const auto from = key.before.begin() + static_cast<std::ptrdiff_t>(key.nextBefore);
        return std::find(from, key.before.end(), value) != key.before.end();
    }

    std::string withValue(const FleetLine& line, const std::string& value) const {
        const std::string_view inFront = line.text.substr(0, line.valueAt);
        const std::string_view lineEnd = line.whole.substr(line.text.size());
        std::string text(inFront);
        if (inFront.ends_with('=')) {
            text += ' ';
        }
        return text.append(writtenValue(value)).append(lineEnd);
    }

    void addNext(std::size_t row, std::size_t at) {
        Key& key = m_keys[row];
        const std::string value = writtenValue(key.now[key.next++]);
        std::string text(m_rows[row].key);
        text += value.empty() ? " =" : " = " + value;
        m_pieces.insert(m_pieces.begin() + static_cast<std::ptrdiff_t>(at),
                        {row, text.append(m_lineEnd)});
    }

    /// Behind the last line with this key or one in front of it.
    void addMissing(std::size_t row) {
        Key& key = m_keys[row];
        if (key.isSame()) {
            return;
        }
        const auto last = std::find_if(m_pieces.rbegin(), m_pieces.rend(),
                                       [&](const Piece& piece) { return piece.row <= row; });
        const auto behind = m_pieces.rend() - last;
        std::size_t at = behind != 0 ? static_cast<std::size_t>(behind)
                                     : std::min<std::size_t>(1, m_pieces.size());
        while (key.next < key.now.size()) {
            addNext(row, at++);
        }
    }

    KeyRows<Section> m_rows;
    std::string_view m_lineEnd;
    std::vector<Key> m_keys;
    std::vector<Piece> m_pieces;
};

/// Adds the numbers of the lines that say something with this key.
void addLinesOf(std::string_view key, const std::vector<KeyLine>& lines,
                std::vector<int>& numbers) {
    for (const KeyLine& line : lines) {
        if (line.cut.key == key && line.row != KeyLine::none && !line.isFaulty) {
            numbers.push_back(line.number);
        }
    }
}

}  // namespace

bool isFleet(std::string_view text) {
    return text.starts_with(firstWords);
}

ReadFleet parseFleet(std::string_view text) {
    checkBeginning(text);
    ReadFleet read;
    const Sections sections = sectionsOf(text);
    const std::vector<KeyLine> head =
        readLines(headKeys(), sections.texts.front(), read.fleet, 1, read.faults);
    for (const std::string_view key : {pointsLimitKey, limitKey}) {
        addLinesOf(key, head, read.limitLines);
    }
    for (std::size_t i = 1; i < sections.texts.size(); ++i) {
        FleetShip& ship = read.fleet.ships.emplace_back();
        const std::vector<KeyLine> lines =
            readLines(shipKeys(), sections.texts[i], ship, sections.firstLines[i], read.faults);
        read.shipLines.push_back(std::find_if(lines.begin(), lines.end(), [](const KeyLine& line) {
                                     return line.row == 0;
                                 })->number);
    }
    sortByLine(read.faults);
    return read;
}

ReadFleet readFleet(const std::filesystem::path& file) {
    const std::string text = readTextFile(file);
    try {
        return parseFleet(text);
    } catch (const Error& error) {
        throw FileError(file, error.what());
    }
}

const std::string& WrittenShips::text(std::size_t place, const FleetShip& ship,
                                      std::string_view lineEnd) {
    m_written.resize(std::max(m_written.size(), place + 1));
    Written& written = m_written[place];
    if (written.text.empty() || written.lineEnd != lineEnd || written.ship != ship) {
        written = {ship, std::string(lineEnd),
                   SectionWriter(shipKeys(), ship, lineEnd).text(lineEnd)};
    }
    return written.text;
}

std::string fleetText(const Fleet& fleet) {
    WrittenShips none;
    return fleetText(fleet, none);
}

std::string fleetText(const Fleet& fleet, WrittenShips& written) {
    const std::string_view lineEnd = lineEndOf(fleet.asRead);
    std::string text =
        SectionWriter(headKeys(), fleet, lineEnd)
            .text(std::string(firstWords) + std::string(version) + std::string(lineEnd));
    for (std::size_t place = 0; place < fleet.ships.size(); ++place) {
        endLine(text, lineEnd);
        text += written.text(place, fleet.ships[place], lineEnd);
    }
    return text;
}

void saveFleet(const std::filesystem::path& file, const Fleet& fleet) {
    saveFile(file, fleetText(fleet));
}

}  // namespace fleetwright
