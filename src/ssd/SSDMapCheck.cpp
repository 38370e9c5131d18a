#include "SSDMapCheck.h"

#include "Error.h"
#include "SSDMap.h"
#include "fileCalls.h"
#include "text.h"

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <utility>

namespace fleetwright {

namespace fs = std::filesystem;

namespace {

class MapChecker {
public:
    explicit MapChecker(const fs::path& appFolder) : m_appFolder(appFolder) {}

    std::vector<Fault> check(std::string_view text);

private:
    void checkLine(const SSDMapLine& line);
    void countLine(const SSDMapLine& line);
    void checkSize(std::string_view value);
    void checkImage(std::string_view value);
    void checkPoint(const SSDMapLine& line);
    void checkFields(const SSDMapLine& line);
    void checkRounding(std::string_view number);
    void complain(std::string text) { m_faults.push_back({m_line, std::move(text)}); }

    fs::path m_appFolder;
    std::vector<Fault> m_faults;
    std::map<MapKeyword, int> m_lastLines;
    std::map<MapKeyword, int> m_counts;
    int m_line = 0;
};

std::vector<Fault> MapChecker::check(std::string_view text) {
    SSDMapLines lines(text);
    SSDMapLine line;
    while (lines.next(line)) {
        m_line = line.number;
        checkLine(line);
    }
    if (!m_lastLines.contains(MapKeyword::Image)) {
        m_line = 0;
        complain("no line " + quote(mapWord(MapKeyword::Image)));
    }
    return std::move(m_faults);
}

void MapChecker::checkLine(const SSDMapLine& line) {
    if (line.keyword == MapKeyword::Unknown) {
        complain("nobody reads the key " + quote(line.word));
        return;
    }
    countLine(line);
    try {
        switch (line.keyword) {
        case MapKeyword::Size:
            return checkSize(line.value);
        case MapKeyword::Image:
            return checkImage(line.value);
        default:
            return checkPoint(line);
        }
    } catch (const Error& error) {
        complain(error.what());
    }
}

void MapChecker::countLine(const SSDMapLine& line) {
    const auto [earlier, isFirst] = m_lastLines.try_emplace(line.keyword, m_line);
    if (!isFirst && !isAppending(line.keyword)) {
        complain("a second line " + quote(line.word) + ": also line " +
                 std::to_string(earlier->second));
        earlier->second = m_line;
    }
    constexpr int most = std::numeric_limits<std::int16_t>::max();
    if (++m_counts[line.keyword] == most + 1 && isAppending(line.keyword)) {
        complain("more than " + std::to_string(most) + " lines " + quote(line.word));
    }
}

void MapChecker::checkSize(std::string_view value) {
    mapNumber(value);
    checkRounding(value);
}

void MapChecker::checkImage(std::string_view value) {
    try {
        std::error_code unknown;
        const fs::file_status outline = fs::status(outlineFile(m_appFolder, value), unknown);
        if (value.empty() || !fs::exists(outline)) {
            complain("there is no outline " + quote(value));
        } else if (const std::error_code why = whyNoFile(outline)) {
            complain("the outline " + quote(value) + " cannot be read: " + why.message());
        }
    } catch (const FileError& error) {
        complain("the outline " + quote(value) + " " + error.what());
    }
}

void MapChecker::checkPoint(const SSDMapLine& line) {
    mapPoint(line);
    if (!line.value.starts_with('(') || !line.value.ends_with(')')) {
        complain("no parentheses around " + quote(line.value) + ", which is read as " +
                 quote(withoutEnds(line.value)));
    }
    checkFields(line);
}

/// Looks at the fields of a point that can be read.
void MapChecker::checkFields(const SSDMapLine& line) {
    std::string_view inside = withoutEnds(line.value);
    int coordinates = 2;
    int fields = 0;
    while (true) {
        const std::size_t comma = inside.find(',');
        if (coordinates-- > 0) {
            checkRounding(inside.substr(0, comma));
        }
        ++fields;
        if (comma == std::string_view::npos) {
            break;
        }
        inside.remove_prefix(comma + 1);
    }
    constexpr int weaponFields = 3;
    if (line.keyword == MapKeyword::Weap && fields > weaponFields) {
        complain("what stands behind the third comma is lost");
    }
}

void MapChecker::checkRounding(std::string_view number) {
    if (number.find('.') != std::string_view::npos) {
        complain(quote(number) + " is read as " + std::to_string(mapNumber(number)));
    }
}

}  // namespace

std::vector<Fault> checkMapFile(std::string_view text, const fs::path& appFolder) {
    return MapChecker(appFolder).check(text);
}

}  // namespace fleetwright
