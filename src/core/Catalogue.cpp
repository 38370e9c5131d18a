#include "Catalogue.h"

#include "TextFile.h"
#include "checkedArithmetic.h"
#include "strfcns.h"

namespace fleetwright {

bool isCatalogueComment(std::string_view line) {
    return line.empty() || line.front() == '#';
}

CatalogueLine cutCatalogueLine(std::string_view line) {
    LineCutter cutter(line);
    CatalogueLine fields;
    fields.name = cutter.next(',');
    fields.massform = cutter.next(',');
    fields.costform = cutter.next(',');
    fields.parentKey = cutter.next(',');
    fields.categoryKey = cutter.next(',');
    fields.arclist = cutter.next(',');
    fields.icon = cutter.rest();
    return fields;
}

void Catalogue::loadWeaps(const std::filesystem::path& file) {
    m_text = readTextFile(file);
    // Room for short lines: what is not used of it is never touched, but growing would move all.
    constexpr std::size_t shortLineLength = 40;
    m_records.reserve(m_text.size() / shortLineLength);

    LineReader lines(m_text);
    std::string_view line;
    while (lines.next(line)) {
        if (isCatalogueComment(line)) {
            continue;
        }
        const CatalogueLine fields = cutCatalogueLine(line);
        if (fields.name == cloakName) {
            m_cloakIndex = narrow<std::int32_t>(static_cast<std::int64_t>(m_records.size()));
        }
        m_records.push_back({.name = fields.name,
                             .massform = fields.massform,
                             .costform = fields.costform,
                             .arclist = fields.arclist,
                             .icon = fields.icon});
    }
    // An empty first line of a ship file goes on with what the last cutting has left.
    leaveForStrTok(m_records.empty() ? std::string_view() : m_records.back().icon);
}

}  // namespace fleetwright
